// Typing, stepping and choosing in fields.
#include <QCalendarWidget>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "desktop/bindings/LineText.h"
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

TEST_F(Field, FilterKeepsTheCaretBehindTheKeptCharacters) {
    open();
    press("optExt(1)");
    enter("dxExt", "txt, log");
    line("dxExt").setCursorPosition(3);
    QTest::keyClicks(&line("dxExt"), "_x?y");
    EXPECT_EQ(line("dxExt").text(), "txtxy, log");
    EXPECT_EQ(line("dxExt").cursorPosition(), 5);
    EXPECT_TRUE(form().InvalidExtChars);
    QApplication::clipboard()->setText("a-b-c");
    line("dxExt").setCursorPosition(0);
    QTest::keyClick(&line("dxExt"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(line("dxExt").text(), "abctxtxy, log");
    EXPECT_EQ(line("dxExt").cursorPosition(), 3);
}

TEST_F(Field, CaretAmongKeptCharactersOfRepeatedText) {
    EXPECT_EQ(caretAmongKept("a_a_", 4, "aa"), 2);
    EXPECT_EQ(caretAmongKept("aa_aa", 3, "aaaa"), 2);
    EXPECT_EQ(caretAmongKept("__", 2, ""), 0);
    EXPECT_EQ(caretAmongKept("abc", 2, "abc"), 2);
}

TEST_F(Field, UndoPassesByWhatTheFilterDropped) {
    open();
    press("optExt(1)");
    enter("dxExt", "txt");
    QTest::keyClicks(&line("dxExt"), "_-;");
    QTest::keyClick(&line("dxExt"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(line("dxExt").text(), "");
    EXPECT_EQ(at("dxExt").text(), "");
    QTest::keyClick(&line("dxExt"), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(line("dxExt").text(), "txt");
    EXPECT_EQ(at("dxExt").text(), "txt");
}

TEST_F(Field, PatternSaysWhatItMeansAndWhatIsWrongWithIt) {
    open();
    press("optFileMatch(1)");
    auto& label = shownBy<QLabel>("lblFileName");
    const auto& notice = *window().currentPage()->findChild<NoticeLabel*>("dxFileName_notice");
    EXPECT_TRUE(label.text().contains("*, ?"));
    EXPECT_FALSE(notice.isVisible());

    enter("dxFileName", "a*b");
    press("chkRegExFile");
    EXPECT_TRUE(label.text().contains("RegEx"));
    EXPECT_FALSE(notice.isVisible());
    QTest::keyClicks(&line("dxFileName"), "(");
    EXPECT_TRUE(notice.isVisible());
    EXPECT_FALSE(notice.text().isEmpty());
    EXPECT_EQ(line("dxFileName").accessibleDescription(), notice.text());
    EXPECT_EQ(at("dxFileName").text(), "a*b(");
    QTest::keyClicks(&line("dxFileName"), ")");
    EXPECT_FALSE(notice.isVisible());
}

TEST_F(Field, TextThatTheJobCannotHoldIsToldAndNotTaken) {
    open();
    enter("dxName", "Plan");
    typeLetters(line("dxName"), "日b");
    EXPECT_EQ(line("dxName").text(), "Planb");
    EXPECT_EQ(at("dxName").text(), "Planb");
    auto& memo = shownBy<QPlainTextEdit>("dxComment");
    memo.setFocus();
    QTest::keyClicks(&memo, "one");
    QTest::keyClick(&memo, Qt::Key_Return);
    typeLetters(memo, "two日");
    EXPECT_EQ(memo.toPlainText(), "one\ntwo");
    EXPECT_EQ(at("dxComment").text(), "one\r\ntwo");
}

TEST_F(Field, WheelPassesOverFieldsWithoutTheFocus) {
    open();
    window().resize(700, 260);
    press("optIntervall(1)");
    press("optIntTime(1)");
    const auto before = dumpOf(form());
    QScrollBar& bar = *window().currentPage()->verticalScrollBar();
    ASSERT_GT(bar.maximum(), 0);
    for (const char* name : {"dxDateTime", "dxIntWeekDay"}) {
        bar.setValue(0);
        list().setFocus();
        turnWheel(focusOf(name));
        EXPECT_GT(bar.value(), 0) << name;
        EXPECT_EQ(differences(before, dumpOf(form())), "") << name;
        EXPECT_FALSE(focusOf(name).hasFocus()) << name;
    }
    press("optIntervall(0)");
    const std::int64_t hours = at("dxHours").number();
    turnWheel(focusOf("dxHours"));
    EXPECT_EQ(at("dxHours").number(), hours);
    focusOf("dxHours").setFocus();
    turnWheel(focusOf("dxHours"));
    EXPECT_NE(at("dxHours").number(), hours);
}

TEST_F(Field, SpinButtonsCarryIntoTheNextUnit) {
    open();
    turnTo("dxMinutes");
    enter("dxHours", "23") /* typed into the spin field's own line */;
    enter("dxMinutes", "59");
    QTest::keyClick(&focusOf("dxMinutes"), Qt::Key_Up);
    EXPECT_EQ(shownBy<NumberEdit>("dxDays").text(), "1");
    EXPECT_EQ(shownBy<NumberEdit>("dxHours").text(), "0");
    EXPECT_EQ(shownBy<NumberEdit>("dxMinutes").text(), "0");
    EXPECT_EQ(shownBy<QLabel>("lblDays").text(), "Tag");
}

TEST_F(Field, NumberMayBeEmptyAndLargeAndKeepsItsRange) {
    open();
    press("optSize(1)");
    EXPECT_EQ(shownBy<NumberEdit>("dxSize").text(), "");
    QWidget& size = focusOf("dxSize");
    size.setFocus();
    QTest::keyClicks(&size, "900000000000x");
    EXPECT_EQ(at("dxSize").number(), 900'000'000'000);
    QTest::keyClick(&size, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&size, Qt::Key_Delete);
    EXPECT_TRUE(at("dxSize").isEmpty());
    press("optIntervall(1)");
    press("optIntTime(2)");
    QWidget& day = focusOf("dxIntMonthDay");
    day.setFocus();
    QTest::keyClick(&day, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&day, "31");
    QTest::keyClick(&day, Qt::Key_Up);
    EXPECT_EQ(shownBy<NumberEdit>("dxIntMonthDay").text(), "31");
    EXPECT_EQ(at("dxIntMonthDay").number(), 31);
}

TEST_F(Field, DatesFollowTheUsersFormatAndMayBeEmpty) {
    open();
    press("optAge(4)");
    auto& date = shownBy<DateEdit>("dxFileDate");
    EXPECT_EQ(date.text(), "21.11.2026");
    EXPECT_EQ(date.calendarWidget()->firstDayOfWeek(), QLocale().firstDayOfWeek());
    date.setFocus();
    date.setSelectedSection(QDateTimeEdit::DaySection);
    QTest::keyClick(&date, Qt::Key_Up);
    EXPECT_EQ(dates.text(*at("dxFileDate").date()), "22.11.2026");
    date.selectAll();
    QTest::keyClick(&date, Qt::Key_Delete);
    EXPECT_TRUE(at("dxFileDate").isEmpty());
    EXPECT_EQ(date.text(), "");
    QTest::keyClick(&date, Qt::Key_Up);
    EXPECT_TRUE(at("dxFileDate").date().has_value());
    EXPECT_NE(date.text(), "");
}

TEST_F(Field, CalendarSpeaksTheEditorsLanguage) {
    open();
    press("optAge(4)");
    auto& date = shownBy<DateEdit>("dxFileDate");
    QStringList captions;
    for (const auto* button : date.calendarWidget()->findChildren<QAbstractButton*>())
        captions += button->text();
    EXPECT_TRUE(captions.contains("Heute"));
    EXPECT_TRUE(captions.contains("Leeren"));
}

TEST_F(Field, TimeHasItsSeconds) {
    open();
    press("optIntervall(1)");
    auto& time = shownBy<TimeEdit>("dxDateTime");
    EXPECT_TRUE(time.displayFormat().contains("ss"));
    time.setFocus();
    time.setSelectedSection(QDateTimeEdit::SecondSection);
    QTest::keyClick(&time, Qt::Key_Up);
    EXPECT_EQ(timeText(*at("dxDateTime").time()), "14:05:01");
}

TEST_F(Field, DigitsTypedOverTheWholeTimeReplaceIt) {
    open();
    press("optIntervall(1)");
    auto& time = shownBy<TimeEdit>("dxDateTime");
    time.setFocus();
    QTest::keyClick(&time, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&time, "183000");
    EXPECT_EQ(timeText(*at("dxDateTime").time()), "18:30:00");
}

TEST_F(Field, PasswordIsHiddenUntilItsButtonShowsIt) {
    open();
    press("optAction(3)");
    turnTo("dxZipPwd");
    auto& password = shownBy<PasswordEdit>("dxZipPwd");
    enter("dxZipPwd", "secret");
    EXPECT_EQ(password.line().echoMode(), QLineEdit::Password);
    QTest::mouseClick(password.buttons().front(), Qt::LeftButton);
    EXPECT_EQ(password.line().echoMode(), QLineEdit::Normal);
    EXPECT_EQ(at("dxZipPwd").text(), "secret");
    QTest::mouseClick(password.buttons().front(), Qt::LeftButton);
    EXPECT_EQ(password.line().echoMode(), QLineEdit::Password);
}

TEST_F(Field, InnerButtonsBrowseAndFillTheField) {
    open();
    turnTo("dxSource");
    prompts.choices = {folder.path().string()};
    auto& path = shownBy<PathEdit>("dxSource");
    QTest::mouseClick(path.buttons().front(), Qt::LeftButton);
    EXPECT_EQ(path.line().text().toStdString(), folder.path().string());
    EXPECT_EQ(path.toolTip().toStdString(), folder.path().string());
    EXPECT_FALSE(shownBy<PathEdit>("dxExecPath").newFolderButton());
}

TEST_F(Field, PathsWithoutTypingAreReadOnlyAndTheirButtonsWork) {
    open();
    press("chkEditPaths");
    EXPECT_TRUE(line("dxSource").isReadOnly());
    EXPECT_TRUE(shownBy<PathEdit>("dxSource").buttons().front()->isEnabled());
}

TEST_F(Field, ListEntryIsPickedByKey) {
    open();
    press("optIntervall(1)");
    press("optIntTime(1)");
    QWidget& days = focusOf("dxIntWeekDay");
    days.setFocus();
    QTest::keyClick(&days, Qt::Key_End);
    EXPECT_EQ(at("dxIntWeekDay").text(), "Sonntag");
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
