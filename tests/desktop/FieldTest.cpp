// Typing, stepping and choosing in fields.
#include <QAbstractButton>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTimer>
#include <set>

#include "desktop/widgets/NumberEdit.h"
#include "desktop/widgets/PasswordEdit.h"
#include "desktop/widgets/PathEdit.h"
#include "editor/NumberRanges.h"
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
    EXPECT_TRUE(label.text().contains("*, ?"));
    enter("dxFileName", "a*b");
    press("chkRegExFile");
    EXPECT_TRUE(label.text().contains("RegEx"));
    EXPECT_EQ(notice("dxFileName"), "");
    QTest::keyClicks(&line("dxFileName"), "(");
    EXPECT_NE(notice("dxFileName"), "");
    EXPECT_EQ(line("dxFileName").accessibleDescription(), notice("dxFileName"));
    EXPECT_EQ(at("dxFileName").text(), "a*b(");
    QTest::keyClicks(&line("dxFileName"), ")");
    EXPECT_EQ(notice("dxFileName"), "");
    EXPECT_EQ(line("dxFileName").accessibleDescription(), "");
}

TEST_F(Field, TextThatTheJobCannotHoldIsToldAndNotTaken) {
    open();
    prompts.answers = {Answer::no, Answer::no};
    enter("dxName", "Plan日本b");
    EXPECT_EQ(line("dxName").text(), "Planb");
    EXPECT_EQ(at("dxName").text(), "Planb");
    EXPECT_EQ(prompts.messages.size(), 1U) << "one question for all that is typed into the field";
    prompts.answers = {Answer::no, Answer::no};
    enter("dxName", "日");
    EXPECT_TRUE(notice("dxName").contains(u'日'));
    enter("dxComment", "one\ntwo日");
    EXPECT_EQ(shownBy<QPlainTextEdit>("dxComment").toPlainText(), "one\ntwo");
    EXPECT_EQ(at("dxComment").text(), "one\r\ntwo");
    EXPECT_EQ(focusOf("dxComment").accessibleDescription(), notice("dxComment"));
    EXPECT_TRUE(notice("dxComment").contains(u'日'));
    EXPECT_EQ(notice("dxName"), "");
    press("optIntervall(1)");
    press("optIntTime(2)");
    enter("dxIntMonthDay", "32");
    EXPECT_EQ(at("dxIntMonthDay").number(), 3);
    EXPECT_TRUE(notice("dxIntMonthDay").contains("31"));
}

TEST_F(Field, AChoiceThatTheJobCannotHoldIsToldInAMessage) {
    open();
    press("chkExecDo");
    for (const char* name : {"dxSource", "dxExecPath"}) {
        turnTo(name);
        prompts.choices = {"/srv/two\nlines"};
        prompts.answers = {Answer::ok};
        QTest::mouseClick(shownBy<PathEdit>(name).buttons().front(), Qt::LeftButton);
        ASSERT_TRUE(prompts.answers.empty()) << name;
        EXPECT_NE(prompts.messages.back().text.find("U+000A"), std::string::npos) << prompts.messages.back().text;
        EXPECT_EQ(line(name).text(), "");
    }
}

TEST_F(Field, BlanksInNotesThatDoNotBreakStayOnes) {
    putJob("Night", "[Job]\r\nName=Night\r\nComment=10\xA0km\r\n");
    openJob("Night");
    auto& notes = shownBy<QPlainTextEdit>("dxComment");
    notes.moveCursor(QTextCursor::End);
    QTest::keyClicks(&notes, " away");
    EXPECT_EQ(at("dxComment").text(), "10\u00A0km away");
    enter("dxComment", "5\u00A0m\nhigh");
    EXPECT_EQ(at("dxComment").text(), "5\u00A0m\r\nhigh");
}

TEST_F(Field, TextThatIsAskedAboutStandsInTheFieldAndIsKeptOrTakenBackWhole) {
    open();
    enter("dxName", "Plan!");
    QLineEdit& name = line("dxName");
    const auto paste = [&](Answer answer) {
        prompts.answers = {answer};
        prompts.whileAsked = [&] {
            window().refresh();
            EXPECT_EQ(name.text().toStdString(), "Plan αβγ!") << "while the question stands in front";
        };
        name.setCursorPosition(4);
        QApplication::clipboard()->setText(" αβγ");
        QTest::keyClick(&name, Qt::Key_V, Qt::ControlModifier);
    };
    paste(Answer::no);
    EXPECT_EQ(name.text().toStdString() + at("dxName").text(), "Plan!Plan!");
    QTest::keyClick(&name, Qt::Key_Return);  // ends the editing
    paste(Answer::yes);
    EXPECT_EQ(name.text().toStdString() + at("dxName").text(), "Plan αβγ!Plan αβγ!");
    EXPECT_EQ(name.cursorPosition(), 8);
    QTest::keyClick(&name, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(name.text(), "Plan!");
    enter("dxComment", "ελ");
    EXPECT_EQ(at("dxComment").text(), "ελ");
    press("cmdSave");
    EXPECT_NE(jobBytes("Plan!").find("Comment=ελ\r\n"), std::string::npos);
    EXPECT_EQ(prompts.messages.size(), 2U);
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

TEST_F(Field, NumbersShowTheLargestThatTheyTakeWhole) {
    std::ofstream(values.INIFile) << "[EditWin]\r\nDisableInsteadOfHide=1\r\n";
    open().makeAllPages();
    for (const auto& shown : window().binder().bindings()) {
        auto* const edit = qobject_cast<NumberEdit*>(&shown->widget());
        if (!edit) continue;
        turnTo(shown->control().Name());
        edit->setNumber(numberRange(shown->control().Base).most);
        const int text = edit->line().fontMetrics().horizontalAdvance(edit->text());
        EXPECT_GE(edit->line().width() - 5, text) << shown->control().Name();  // its margins and the caret
    }
}

TEST_F(Field, NumbersHaveTheirUnitBesideThem) {
    open();
    turnTo("dxHours");
    const QPoint place = binding("dxMinutes").widget().pos();
    std::set<QString> units;
    for (const char* hours : {"0", "1", "2"}) {
        enter("dxHours", hours);
        settle();
        EXPECT_EQ(binding("dxMinutes").widget().pos(), place) << hours;
        units.insert(shownBy<QLabel>("lblHours").text());
    }
    EXPECT_EQ(units.size(), 2U);
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

// A command that turns the page takes the focus from a field while it is handled.
TEST_F(Field, LeavingAPathByACommandHasItLookedAt) {
    for (const auto& [key, with] : {std::pair{Qt::Key_PageDown, Qt::ControlModifier},
                                    {Qt::Key_PageUp, Qt::ControlModifier},
                                    {Qt::Key_W, Qt::AltModifier}}) {  // "&Weiter"
        open();
        press("optAction(2)");
        EXPECT_TRUE(QTest::qWaitFor([this] { return at("lblChkPathMsg").Visible; }));
        enter("dxSource", (jobs / "gone").c_str());
        QTest::keyClick(&line("dxSource"), key, with);
        EXPECT_TRUE(QTest::qWaitFor([this] { return visibleFrames() != "fraPath"; }));
        EXPECT_TRUE(QTest::qWaitFor([this] { return at("lblChkPathMsg").Visible; })) << key;
        EXPECT_EQ(at("lblChkPathMsg").Caption, "Das Quellverzeichnis existiert nicht.");
        EXPECT_EQ(form().FocusedControl, &at("dxTreeList1"));
    }
}

TEST_F(Field, RightClickOpensTheMenuOfEveryField) {
    open();
    const auto menuOn = [&](const char* name) {
        QWidget& field = focusOf(name);
        QTest::mousePress(&field, Qt::RightButton);
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(4, 4), field.mapToGlobal(QPoint(4, 4)));
        bool opened = false;
        QTimer::singleShot(0, &field, [&opened] {  // some menus return when they have gone
            QWidget* const menu = QApplication::activePopupWidget();
            opened = menu != nullptr;
            if (menu) menu->close();
        });
        QApplication::sendEvent(&field, &event);
        settle();
        return opened;
    };
    for (const char* option : {"optFileMatch(1)", "optExt(1)", "optSize(1)"})
        press(option);
    for (const char* name : {"dxName", "dxSource", "dxDest", "dxExt", "dxSize", "dxFileName"}) {
        focus(name);
        EXPECT_TRUE(menuOn(name)) << name;
    }
}

}  // namespace
}  // namespace kestedit::test
