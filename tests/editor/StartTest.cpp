// How the editor starts: settings, texts, defaults, an opened job; and that a job comes back as it was saved.
#include <set>

#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

struct Start : test::EditorTest {};
struct RoundTrip : test::EditorTest {
    /// Changes every control by the user's events, under one action after the other, until each has been reached.
    void changeEverything();
    void changeWhatCanBeReached();
    void change(EditorControl& control);
    [[nodiscard]] std::string storedLook();
    std::set<const EditorControl*> unchanged;
};

TEST_F(Start, WindowSettings) {
    struct Row {
        std::string_view file;
        bool icons, paths, disable;
        std::int64_t back, front;
    };
    constexpr Row rows[] = {
        {"", true, true, false, 14737632, 0},
        {"[EditWin]\nShowIcons=0\nchkEditPaths=0\nDisableInsteadOfHide=1\n[Global]\nRowBgCol=255\nRowTxtCol=16777215\n",
         false, false, true, 255, 16777215},
        {"[EditWin]\nShowIcons=ja\nchkEditPaths=\nDisableInsteadOfHide=0x\n[Global]\nRowBgCol=grau\nRowTxtCol=\n", true,
         true, false, 14737632, 0},
        {"[EditWin]\nShowIcons=0 aus\n[Global]\nRowBgCol=12abc\nRowTxtCol=16777216\n", true, true, false, 14737632, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.file);
        folder.file("program.ini", row.file);
        create();
        EXPECT_EQ(form().Navigation.ShowIcons, row.icons);
        EXPECT_EQ(form().chkEditPaths.isSet(), row.paths);
        EXPECT_EQ(form().dxSource.ReadOnly, !row.paths);
        EXPECT_EQ(form().DisableInsteadOfHide, row.disable);
        EXPECT_EQ(form().Navigation.RowColour, row.back);
        EXPECT_EQ(form().Navigation.RowTextColour, row.front);
    }
}

TEST_F(Start, EditPathsIsWrittenBackAndHoldsForEveryForm) {
    create();
    check("chkEditPaths", 0);
    EXPECT_TRUE(form().dxSource.ReadOnly && form().dxDest.ReadOnly && form().dxMonitorPath.ReadOnly);
    EXPECT_EQ(test::bytesOf(values.INIFile), "[EditWin]\r\nchkEditPaths=0\r\n");
    putJob("damaged", "no section\n");
    for (const int view : test::allViews) {
        EXPECT_TRUE(edit("damaged", view).dxSource.ReadOnly);
        EXPECT_TRUE(show("new", view).dxSource.ReadOnly);
    }
    check("chkEditPaths");
    EXPECT_EQ(test::bytesOf(values.INIFile), "[EditWin]\r\nchkEditPaths=1\r\n");
}

TEST_F(Start, NewJobDefaults) {
    create();
    for (const EditorControl* control : form().controls()) {
        if (control->Kind == ControlKind::option) {
            EXPECT_EQ(control->State, control->Member == 0) << control->Name();
        }
        if (control->Kind == ControlKind::check) {
            const std::set<std::string> on{"chkEditPaths", "chkZipIntStruct", "chkDestKeepZStruct"};
            EXPECT_EQ(control->State, on.contains(control->Name())) << control->Name();
        }
        if (control->Kind == ControlKind::date) {
            EXPECT_EQ(control->date(), test::now.date) << control->Name();
        }
    }
    EXPECT_EQ(form().dxDateTime.time(), test::now.time);
    EXPECT_EQ(form().dxIntWeekDay.text(), "Montag");
    EXPECT_EQ(form().dxZipGrade.text(), "Normal");
    EXPECT_FALSE(form().fraSync.Visible);
    EXPECT_TRUE(form().chkOnlyCompare.Visible);
    EXPECT_EQ(form().FocusedControl, &form().dxName);
}

TEST_F(Start, OnlyANewJobHasDefaults) {
    EXPECT_EQ(create().Caption, "kestEdit - Neuer Auftrag");
    const auto expectDesignTimeValues = [this](std::string_view caption) {
        EXPECT_EQ(form().Caption, caption);
        EXPECT_EQ(form().dxName.text(), "");
        EXPECT_EQ(form().optAction.selected(), std::nullopt);
        EXPECT_EQ(form().dxHours.number(), 1);
        EXPECT_EQ(form().dxDate.date(), std::nullopt);
    };
    putJob("unreadable", "[Other]\nName=a\nAction=5\n");
    for (const auto job : {"unreadable", "missing"}) {
        edit(job);
        expectDesignTimeValues("kestEdit - Auftrag bearbeiten");
    }
    show("new", 4);
    expectDesignTimeValues("");
}

TEST_F(Start, FindingsAppearWithTheTimerAndFollowTheirChoices) {
    create();
    const std::string noSource = "Es ist kein Quellverzeichnis angegeben.";
    number("dxHours", 0);
    EXPECT_FALSE(form().lblChkPathMsg.Visible || form().lblChkTimeMsg.Visible);
    form().onTimer();
    EXPECT_FALSE(form().isTimerRunning());
    EXPECT_EQ(form().lblChkPathMsg.Caption, noSource);
    EXPECT_EQ(form().lblChkTimeMsg.Caption, "Zwischen zwei Läufen muss mindestens eine Minute liegen.");
    EXPECT_TRUE(form().lblChkPathMsg.Visible && form().lblChkTimeMsg.Visible);
    type("dxSource", jobs.string());
    form().onTimer();
    EXPECT_EQ(form().lblChkPathMsg.Caption, noSource) << "not while typing, and the timer fires once only";
    form().onEditingFinished(form().dxSource);
    EXPECT_EQ(form().lblChkPathMsg.Caption, "Für diese Aktion ist kein Zielverzeichnis angegeben.");
    act(2);
    EXPECT_FALSE(form().lblChkPathMsg.Visible) << "deleting needs none";
    number("dxMinutes", 1);
    EXPECT_FALSE(form().lblChkTimeMsg.Visible);
    choose("optIntervall", 1);
    choose("optIntTime", 3);
    form().onDateChosen(form().dxDate, addDays(test::now.date, -1));
    EXPECT_EQ(form().lblChkTimeMsg.Caption, "Der gewählte Zeitpunkt ist schon vorbei.");
    choose("optIntervall", 2);
    EXPECT_FALSE(form().lblChkTimeMsg.Visible);
    choose("optMonitorPath", 2);
    EXPECT_EQ(form().lblChkPathMsg.Caption, "Es ist kein überwachter Ordner angegeben.");
}

TEST_F(Start, WrongDatesAreRepairedAndReportedOnce) {
    putJob("a", "[Job]\nName=a\nDateFrom=11/30/2026\nDateTo=2026-01-01\nFileDateDate=31.02.2026\nIntervalDate=x\n");
    prompts.answers = {Answer::ok};
    edit("a");
    ASSERT_EQ(prompts.messages.size(), 1U);
    const MessageBox& notice = prompts.messages.front();
    EXPECT_EQ(notice.title, "Information");
    EXPECT_TRUE(notice.text.starts_with("Das Datumsformat des Systems scheint geändert worden zu sein.\r\n\r\n"));
    EXPECT_EQ(form().dxDateFrom.date(), addDays(test::now.date, -1));
    for (const EditorControl* date : {&form().dxDateTo, &form().dxFileDate, &form().dxDate})
        EXPECT_EQ(date->date(), test::now.date);
    putJob("b", "[Job]\nName=b\nDateTo=01.02.2026\n");
    edit("b");
    EXPECT_EQ(prompts.messages.size(), 1U) << "an empty date is no wrong one";
    EXPECT_EQ(form().dxDateFrom.date(), addDays(test::now.date, -1));
}

void RoundTrip::change(EditorControl& control) {
    using enum ControlKind;
    const auto days = static_cast<int>(control.Name().size());
    switch (control.Kind) {
        case check:
            return form().onCheckClicked(control, control.isSet() ? 2 : 1);
        case option:
            return form().onOptionChosen(control);
        case text:
        case password:
        case path:
        case memo:
            return form().onTextTyped(control,
                                      "the " + control.Name() + (control.Kind == memo ? "\nin two lines" : ""));
        case pick:
            return form().onItemPicked(control, control.Items.back());
        case number:
        case spin:
            return form().onNumberTyped(control, control.number() + (&control == &form().dxFreeSpace ? 5000 : 7));
        case date:
            return form().onDateChosen(control, addDays(test::now.date, days));
        case time:
            return form().onTimeChosen(control, std::chrono::seconds{1 + 2 * 60 + 3 * 3600});
        default:
            return;
    }
}

void RoundTrip::changeWhatCanBeReached() {
    for (EditorControl* control : form().controls()) {
        if (!unchanged.contains(control) || form().obstacle(*control)) continue;
        change(*control);
        unchanged.erase(control);
    }
}

void RoundTrip::changeEverything() {
    for (EditorControl* control : form().controls()) {
        using enum ControlKind;
        const bool still = control->Kind <= nodeList || control->Kind == option;
        const bool later = control == &form().chkEditPaths || control == &form().chkOnlyCompare;
        if (!still && !later) unchanged.insert(control);
    }
    for (int action = 0; action < test::actionCount; ++action) {
        act(action);
        walkAllPages();
        choose("optIntervall", 1);
        for (int kind = 0; kind < 4; ++kind) {
            choose("optIntTime", kind);
            changeWhatCanBeReached();
        }
        for (EditorControl* member : form().controls()) {
            if (member->Kind != ControlKind::option || member->Base == "optAction" || form().obstacle(*member))
                continue;
            form().onOptionChosen(*member);
            changeWhatCanBeReached();
        }
    }
    act(0);
    check("chkOnlyCompare");
    std::string left;
    for (const EditorControl* control : unchanged)
        left += control->Name() + " ";
    EXPECT_EQ(left, "") << "never reached";
}

/// All controls, without the captions that nobody sees: some rules set theirs only when it is to be shown.
std::string RoundTrip::storedLook() {
    std::string look = "picture " + std::to_string(form().ActionPicture) + "\n";
    for (EditorControl* control : form().controls()) {
        if (control == &form().chkZipDelDeCompBin) continue;  // no key brings it back
        if (form().obstacle(*control)) control->Caption.clear();
        look += test::lineOf(*control);
    }
    return look + test::marksOf(form());
}

TEST_F(RoundTrip, AJobWithEverythingChangedComesBackTheSameInEveryView) {
    create();
    changeEverything();
    for (int action = 0; action < test::actionCount; ++action) {
        SCOPED_TRACE(action);
        if (action > 0) create();
        if (action > 0) changeEverything();
        act(action);
        node(0);
        const std::string name = "all" + std::to_string(action);
        type("dxName", name);
        walkAllPages();
        click("cmdSave");
        ASSERT_FALSE(form().isOpen());
        const std::string look = storedLook();
        const std::string bytes = jobBytes(name);
        edit(name);
        walkAllPages();
        EXPECT_EQ(test::differences(look, storedLook()), "");
        for (const int view : test::allViews) {
            edit(name, view);
            walkAllPages();
            click("cmdSave");
            EXPECT_FALSE(form().isOpen());
            EXPECT_EQ(jobBytes(name), bytes) << "view " << view;
        }
    }
}

}  // namespace
}  // namespace kestedit
