// How the editor starts: settings, defaults, an opened job.
#include <set>

#include "editor/NodeImages.h"
#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

using Start = test::EditorTest;

TEST_F(Start, WindowSettings) {
    const std::pair<std::string_view, std::string> rows[] = {
        {"[EditWin]\nShowIcons=0\nchkEditPaths=FALSE\nDisableInsteadOfHide=1\n[Global]\nRowBgCol=255\n"
         "RowTxtCol=16777215\n",
         "(false, false, true, true, 255, 16777215)"},
        {"[EditWin]\nShowIcons=0 aus\nchkEditPaths=\nDisableInsteadOfHide=0x\n[Global]\nRowBgCol=12abc\n"
         "RowTxtCol=16777216\n",
         "(true, true, false, false, 14737632, 0)"},
    };
    for (const auto& [file, expected] : rows) {
        folder.file("program.ini", file);
        create();
        const auto& [nodes, focused, icons, back, front] = form().Navigation;
        const std::tuple found{
            icons, form().chkEditPaths.isSet(), form().dxSource.ReadOnly, form().DisableInsteadOfHide, back, front};
        EXPECT_EQ(testing::PrintToString(found), expected) << file;
    }
}

TEST_F(Start, EditPathsIsWrittenBack) {
    create();
    for (const int state : {0, 1}) {
        check("chkEditPaths", state);
        for (const EditorControl* field : {&form().dxSource, &form().dxDest, &form().dxMonitorPath})
            EXPECT_EQ(field->ReadOnly, state == 0) << field->Name();
        EXPECT_EQ(test::bytesOf(values.INIFile), "[EditWin]\r\nchkEditPaths=" + std::to_string(state) + "\r\n");
    }
}

TEST_F(Start, NewJobDefaults) {
    create();
    for (const EditorControl* control : form().controls()) {
        const std::set<std::string> on{"chkEditPaths", "chkZipIntStruct", "chkDestKeepZStruct"};
        const bool first = control->Kind == ControlKind::option && control->Member == 0;
        EXPECT_EQ(control->State, first || on.contains(control->Name())) << control->Name();
        EXPECT_TRUE(control->Kind != ControlKind::date || control->date() == test::now.date) << control->Name();
    }
    EXPECT_EQ(form().dxDateTime.time(), test::now.time);
    EXPECT_EQ(form().dxIntWeekDay.text(), "Montag");
    EXPECT_EQ(form().dxZipGrade.text(), "Normal");
    EXPECT_EQ(form().FocusedControl, &form().dxName);
}

TEST_F(Start, OnlyANewJobHasDefaults) {
    EXPECT_EQ(create().Caption, "kestEdit - Neuer Auftrag");
    putJob("other", "[Other]\nName=a\nAction=5\n");
    const std::string editing = "kestEdit - Auftrag bearbeiten";
    const std::tuple<const char*, const char*, std::string> rows[] = {
        {"Edit", "other", editing}, {"Edit", "missing", editing}, {"new", "other", ""}};
    for (const auto& [mode, job, caption] : rows) {
        values.JobFile = jobFile(job);
        show(mode, 4);
        EXPECT_EQ(form().Caption, caption);
        EXPECT_EQ(form().dxName.text(), "");
        EXPECT_EQ(form().optAction.selected(), std::nullopt);
        EXPECT_EQ(form().dxDate.date(), std::nullopt);
    }
    type("dxName", "a");
    click("cmdSave");
    EXPECT_FALSE(form().isOpen());
    EXPECT_EQ(jobNames(), "other.job ") << "a mode of another name writes nothing";
}

TEST_F(Start, WrongDatesAreRepairedAndReportedOnce) {
    putJob("a", "[Job]\nName=a\nDateFrom=11/30/2026\nDateTo=2026-01-01\nFileDateDate=31.02.2026\nIntervalDate=x\n");
    prompts.answers = {Answer::ok};
    edit("a");
    const std::string notice = prompts.messages.front().title + ": " + prompts.messages.front().text;
    EXPECT_TRUE(
        notice.starts_with("Information: Das Datumsformat des Systems scheint geändert worden zu sein.\r\n\r\n"));
    EXPECT_EQ(form().dxDateFrom.date(), addDays(test::now.date, -1));
    for (const EditorControl* date : {&form().dxDateTo, &form().dxFileDate, &form().dxDate})
        EXPECT_EQ(date->date(), test::now.date);
    putJob("b", "[Job]\nName=b\nDateTo=01.02.2026\n");
    edit("b");
    EXPECT_EQ(prompts.messages.size(), 1U) << "an empty date is no wrong one";
}

}  // namespace
}  // namespace kestedit
