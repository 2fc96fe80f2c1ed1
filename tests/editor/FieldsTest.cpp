// Events that are refused, and texts that are not left yet, very long or of another locale.
#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

using Events = test::EditorTest;
using PatternNotice = test::EditorTest;
using TypedMoments = test::EditorTest;

TEST_F(Events, RefusedWhereAUserCouldNotActAndNothingChanges) {
    create();
    check("chkEditPaths", 0);
    choose("optIntervall", 1);
    choose("optIntTime", 2);
    const std::pair<const char*, std::function<void()>> events[] = {
        {"hidden", [this] { type("dxRenamer", "x"); }},
        {"disabled", [this] { number("dxFreeSpace", 5000); }},
        {"in a hidden frame", [this] { choose("optSyncStart", 1); }},
        {"of another kind", [this] { check("dxName"); }},
        {"no state of a box", [this] { check("chkPreview", 3); }},
        {"no day of a month", [this] { number("dxIntMonthDay", 32); }},
        {"no entry of the list", [this] { form().onItemPicked(at("dxZipGrade"), "x"); }},
        {"no time of a day", [this] { form().onTimeChosen(at("dxDateTime"), std::chrono::hours{24}); }},
        {"no button of the field", [this] { button("dxSource", 2); }},
        {"the button of a hidden field", [this] { button("dxMonitorPath", 0); }},
        {"filled by its buttons only", [this] { type("dxSource", "/typed"); }},
        {"not UTF-8", [this] { type("dxName", "bad \xff"); }},
    };
    for (const auto& [reason, event] : events) {
        SCOPED_TRACE(reason);
        expectRefused(event);
    }
    act(3);
    check("chkZipAll");  // on a page that is not shown
    EXPECT_EQ(form().chkZipAll.State, 1);
    check("chkExecDo");
    button("dxExecPath", 0);
    EXPECT_EQ(prompts.lastChooser, "Alle Dateien|*|Programme (*.exe, *.com, *.bat)|*.exe;*.com;*.bat");
}

TEST_F(Events, AClosedWindowTakesNone) {
    const std::function<void()> events[] = {
        [this] { type("dxName", "x"); },
        [this] { form().onEditingFinished(at("dxSource")); },
        [this] { check("chkSubFolder"); },
        [this] { choose("optAction", 1); },
        [this] { pick("dxZipGrade", 1); },
        [this] { form().onDateChosen(at("dxDate"), test::now.date); },
        [this] { form().onTimeChosen(at("dxDateTime"), test::now.time); },
        [this] { number("dxDays", 3); },
        [this] { spin("dxHours", true); },
        [this] { button("dxSource", 0); },
        [this] { click("cmdCancel"); },
        [this] { click("cmdSave"); },
        [this] { node(3); },
        [this] { form().onNodeKey(40); },
        [this] { form().onMousePressed(at("dxName"), 2); },
        [this] { form().onFocused(at("dxSource")); },
        [this] { form().onTimer(); },
        [this] { form().onCloseBox(); },
    };
    for (const std::string way : {"cmdSave", "cmdCancel", "close box"}) {
        SCOPED_TRACE(way);
        values.Cancelled = false;
        create();
        type("dxName", way);
        way == "close box" ? form().onCloseBox() : click(way);
        for (const auto& event : events)
            expectRefused(event);
        EXPECT_EQ(values.Cancelled, way == "cmdCancel");
        EXPECT_EQ(form().FocusedControl, &at("dxName"));
        EXPECT_TRUE(form().isTimerRunning());
    }
    EXPECT_EQ(jobNames(), "cmdSave.job ");
}

TEST_F(Events, AClosedDialogTakesNone) {
    create();
    type("dxSource", jobs.string());
    prompts.newFolder = [](dlgNewFolder& dialog) {
        dialog.onTextTyped(dialog.dxTextEdit1, "kept");
        dialog.onCommand(dialog.cmdCancel);
        EXPECT_THROW(dialog.onTextTyped(dialog.dxTextEdit1, "other"), EventRefused);
        EXPECT_THROW(dialog.onCommand(dialog.cmdCreate), EventRefused);
        EXPECT_THROW(dialog.onCloseBox(), EventRefused);
        EXPECT_EQ(dialog.dxTextEdit1.text(), "kept");
    };
    button("dxSource", 1);
    EXPECT_EQ(test::namesIn(jobs), "");
}

TEST_F(TypedMoments, AreTakenWhenWholeOrLeftOrSaved) {
    create();
    choose("optIntervall", 1);
    choose("optIntTime", 3);
    EditorControl& date = at("dxDate");
    EditorControl& time = at("dxDateTime");
    const auto dateOf = [&](std::string_view keys) {
        for (std::size_t size = 1; size <= keys.size(); ++size)
            type("dxDate", keys.substr(0, size));
        return dates.text(*date.date());
    };
    EXPECT_EQ(dateOf("1/2/20"), "21.11.2026") << "the year may go on";
    EXPECT_EQ(dateOf("1/2/2028"), "01.02.2028");
    EXPECT_EQ(dateOf("1/2/20289"), "21.11.2026") << "the value from before the typing";
    type("dxDate", "1/2/27");
    form().onEditingFinished(date);
    EXPECT_FALSE(date.Typed) << "the field shows the date";

    type("dxName", "a");
    node(0);
    EXPECT_EQ(dateOf("31.2.2027"), "01.02.2027");
    EXPECT_EQ(date.Notice, "") << "nothing is said while it is typed";
    click("cmdSave");
    ASSERT_TRUE(form().isOpen());
    EXPECT_EQ(visibleFrames() + form().FocusedControl->Name(), "fraMonitoringdxDate");
    EXPECT_EQ(date.Typed->text, "31.2.2027") << "stays in the field";
    type("dxDate", "31.3.2");
    EXPECT_NE(date.Notice, "") << "goes when it is mended";
    type("dxDate", "31.3.27");
    EXPECT_EQ(date.Notice, "");

    platform.times = TimeFormat::ofLocaleFormat("%I:%M:%S %p", "AM", "PM");
    type("dxDateTime", "25:00");
    form().onEditingFinished(time);
    EXPECT_EQ(time.Notice, "„25:00“ ist keine Uhrzeit wie 2:05 PM. Der Auftrag behält 2:05 PM.");
    type("dxDateTime", "830");
    EXPECT_EQ(time.time(), test::now.time);
    click("cmdSave");
    EXPECT_NE(jobBytes("a").find("IntervalDate=31.03.2027\r\nIntervalTime=08:30:00\r\n"), std::string::npos);
}

TEST_F(PatternNotice, ALoadedPatternMayBeOfAnyLength) {
    const std::string notice = "Der reguläre Ausdruck wird an Stelle 10000 zu lang oder wiederholt zu viel.";
    for (const std::string& pattern : {std::string(100'000, 'a'), std::string(16'000, '(')}) {
        putJob("Night", "[Job]\nName=Night\nDoFileMatch=1\nUseFileRegEx=1\nFileName=" + pattern + "\n");
        edit("Night");
        EXPECT_EQ(at("dxFileName").text(), pattern);
        EXPECT_EQ(at("dxFileName").Notice, notice);
        type("dxFileName", "");
        type("dxFileName", pattern);
        EXPECT_EQ(at("dxFileName").Notice, notice);
        click("cmdSave");
        EXPECT_NE(jobBytes("Night").find("FileName=" + pattern), std::string::npos);
    }
}

}  // namespace
}  // namespace kestedit
