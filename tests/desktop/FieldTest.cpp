// Typing, stepping and choosing in fields.
#include <QAbstractButton>
#include <QCalendarWidget>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QToolTip>

#include "desktop/widgets/DateEdit.h"
#include "desktop/widgets/NoticeLabel.h"
#include "desktop/widgets/NumberEdit.h"
#include "desktop/widgets/PasswordEdit.h"
#include "desktop/widgets/PathEdit.h"
#include "desktop/widgets/TimeEdit.h"
#include "tests/desktop/WindowFixture.h"

namespace kestedit::test {
namespace {

using Field = WindowTest;

TEST_F(Field, FilterKeepsTheCaretAndUndoPassesByWhatItDropped) {
    open();
    press("optExt(1)");
    QLineEdit& types = line("dxExt");
    enter("dxExt", "txt_-;");
    QTest::keyClick(&types, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(types.text(), "");
    EXPECT_EQ(at("dxExt").text(), "");
    QTest::keyClick(&types, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(types.text(), "txt");
    EXPECT_EQ(at("dxExt").text(), "txt");
    QTest::keyClicks(&types, ", log");
    types.setCursorPosition(3);
    QTest::keyClicks(&types, "_x?y");
    EXPECT_EQ(types.text(), "txtxy, log");
    EXPECT_EQ(types.cursorPosition(), 5);
    QApplication::clipboard()->setText("a-b-c");
    types.setCursorPosition(0);
    QTest::keyClick(&types, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(types.text(), "abctxtxy, log");
    EXPECT_EQ(types.cursorPosition(), 3);
}

TEST_F(Field, PatternSaysWhatItMeansAndWhatIsWrongWithIt) {
    open();
    press("optFileMatch(1)");
    auto& label = shownBy<QLabel>("lblFileName");
    const auto& notice = *window().currentPage()->findChild<NoticeLabel*>("dxFileName_notice");
    EXPECT_TRUE(label.text().contains("*, ?"));
    enter("dxFileName", "a*b");
    press("chkRegExFile");
    EXPECT_TRUE(label.text().contains("RegEx"));
    EXPECT_FALSE(notice.isVisible());
    QTest::keyClicks(&line("dxFileName"), "(");
    EXPECT_TRUE(notice.isVisible());
    EXPECT_EQ(line("dxFileName").accessibleDescription(), notice.text());
    EXPECT_EQ(at("dxFileName").text(), "a*b(");
    QTest::keyClicks(&line("dxFileName"), ")");
    EXPECT_FALSE(notice.isVisible());
}

TEST_F(Field, TextThatTheJobCannotHoldIsToldAndNotTaken) {
    open();
    enter("dxName", "Plan日b");
    EXPECT_EQ(line("dxName").text(), "Planb");
    EXPECT_EQ(at("dxName").text(), "Planb");
    EXPECT_FALSE(QToolTip::text().isEmpty());
    enter("dxComment", "one\ntwo日");
    EXPECT_EQ(shownBy<QPlainTextEdit>("dxComment").toPlainText(), "one\ntwo");
    EXPECT_EQ(at("dxComment").text(), "one\r\ntwo");
}

TEST_F(Field, WheelPassesOverFieldsWithoutTheFocus) {
    open();
    window().resize(700, 260);
    press("optIntervall(1)");
    press("optIntTime(1)");
    const auto before = dumpOf(form());
    QScrollBar& bar = *window().currentPage()->verticalScrollBar();
    for (const char* name : {"dxDateTime", "dxIntWeekDay"}) {
        bar.setValue(0);
        list().setFocus();
        turnWheel(focusOf(name));
        EXPECT_GT(bar.value(), 0) << name;
        EXPECT_EQ(dumpOf(form()), before) << name;
        EXPECT_FALSE(focusOf(name).hasFocus()) << name;
    }
    QTest::keyClick(&focus("dxIntWeekDay"), Qt::Key_End);
    EXPECT_EQ(at("dxIntWeekDay").text(), "Sonntag");
    press("optIntervall(0)");
    const std::int64_t hours = at("dxHours").number();
    turnWheel(focusOf("dxHours"));
    EXPECT_EQ(at("dxHours").number(), hours);
    turnWheel(focus("dxHours"));
    EXPECT_LT(at("dxHours").number(), hours);
}

TEST_F(Field, NumberMayBeEmptyAndLargeAndKeepsItsRange) {
    open();
    press("optSize(1)");
    enter("dxSize", "900000000000x");
    EXPECT_EQ(at("dxSize").number(), 900'000'000'000);
    enter("dxSize", "");
    EXPECT_TRUE(at("dxSize").isEmpty());
    press("optIntervall(1)");
    press("optIntTime(2)");
    enter("dxIntMonthDay", "31");
    QTest::keyClick(&focusOf("dxIntMonthDay"), Qt::Key_Up);
    EXPECT_EQ(shownBy<NumberEdit>("dxIntMonthDay").text(), "31");
    QTest::keyClick(&focusOf("dxIntMonthDay"), Qt::Key_Down);
    EXPECT_EQ(shownBy<NumberEdit>("dxIntMonthDay").text(), "30");
}

TEST_F(Field, NumbersHaveTheirUnitBesideThem) {
    open();
    press("optSize(1)");
    press("optAge(1)");
    press("optIntervall(0)");
    for (const auto& [number, unit] : {std::pair{"dxSize", "lblSize"},
                                       {"dxDays", "lblDays"},
                                       {"dxMinutes", "lblMinutes"},
                                       {"dxAge", "lblFileAgeDays"}}) {
        turnTo(number);
        const auto& label = shownBy<QLabel>(unit);
        const QRect field = binding(number).widget().geometry();
        EXPECT_TRUE(label.isVisible() && !label.text().isEmpty()) << unit;
        EXPECT_GT(label.x(), field.right()) << unit;
        EXPECT_LE(label.x(), field.right() + 12) << unit;
        EXPECT_TRUE(field.intersects(label.geometry().translated(field.x() - label.x(), 0))) << "in one row: " << unit;
    }
}

TEST_F(Field, DatesFollowTheUsersFormatAndMayBeEmpty) {
    QLocale::setDefault(QLocale("en_US"));  // whose week begins on Sunday, and whose times have no seconds
    open();
    press("optAge(4)");
    auto& date = shownBy<DateEdit>("dxFileDate");
    EXPECT_EQ(date.text(), "21.11.2026");
    EXPECT_EQ(date.calendarWidget()->firstDayOfWeek(), Qt::Sunday);
    QStringList captions;
    for (const auto* button : date.calendarWidget()->findChildren<QAbstractButton*>())
        captions += button->text();
    EXPECT_TRUE(captions.contains("Heute") && captions.contains("Leeren"));
    QTest::keyClicks(&focus("dxFileDate"), "28022027");
    EXPECT_EQ(dates.text(*at("dxFileDate").date()), "28.02.2027");
    date.selectAll();
    QTest::keyClick(&date, Qt::Key_Delete);
    EXPECT_TRUE(at("dxFileDate").isEmpty());
    EXPECT_EQ(date.text(), "");
    QTest::keyClick(&date, Qt::Key_Up);
    EXPECT_TRUE(at("dxFileDate").date().has_value());
    EXPECT_NE(date.text(), "");

    press("optIntervall(1)");
    EXPECT_EQ(shownBy<TimeEdit>("dxDateTime").text(), "2:05:00 PM");
    QTest::keyClick(&focus("dxDateTime"), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&focusOf("dxDateTime"), "113015");
    EXPECT_EQ(timeText(*at("dxDateTime").time()), "23:30:15");
    QLocale::setDefault(QLocale::system());
}

TEST_F(Field, ButtonsInsideShowAPasswordAndFillAPathThatCannotBeTyped) {
    open();
    press("optAction(3)");
    auto& password = shownBy<PasswordEdit>("dxZipPwd");
    turnTo("dxZipPwd");
    for (const auto mode : {QLineEdit::Password, QLineEdit::Normal, QLineEdit::Password}) {
        EXPECT_EQ(password.line().echoMode(), mode);
        QTest::mouseClick(password.buttons().front(), Qt::LeftButton);
    }
    press("chkEditPaths");
    const auto& source = shownBy<PathEdit>("dxSource");
    EXPECT_TRUE(line("dxSource").isReadOnly());
    prompts.choices = {"/srv/<b>a</b>"};
    QTest::mouseClick(source.buttons().front(), Qt::LeftButton);
    EXPECT_EQ(line("dxSource").text(), "/srv/<b>a</b>");
    EXPECT_FALSE(source.toolTip().contains("<b>")) << "a tool tip is never markup";
    EXPECT_FALSE(shownBy<PathEdit>("dxExecPath").newFolderButton());
}

TEST_F(Field, LeavingAPathHasItLookedAt) {
    open();
    press("optAction(2)");  // needs a source alone
    EXPECT_TRUE(QTest::qWaitFor([this] { return at("lblChkPathMsg").Visible; }));
    enter("dxSource", jobs.c_str());
    list().setFocus();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !at("lblChkPathMsg").Visible; }));
}

TEST_F(Field, RightClickOpensNoMenuWhereTheFormSaysSo) {
    open();
    const auto menuOn = [&](const char* name) {
        QTest::mousePress(&line(name), Qt::RightButton);
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(2, 2), line(name).mapToGlobal(QPoint(2, 2)));
        QApplication::sendEvent(&line(name), &event);
        QWidget* const menu = QApplication::activePopupWidget();
        if (menu) menu->close();
        return menu != nullptr;
    };
    EXPECT_FALSE(menuOn("dxName"));
    press("optFileMatch(1)");
    EXPECT_TRUE(menuOn("dxFileName"));
}

}  // namespace
}  // namespace kestedit::test
