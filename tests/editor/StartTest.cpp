// How the editor starts, as far as no story of tests/golden can say it.
#include <set>

#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

using Start = test::EditorTest;

TEST_F(Start, NewJobDefaults) {
    create();
    for (const EditorControl* control : form().controls()) {
        const std::set<std::string> on{"chkEditPaths", "chkZipIntStruct", "chkDestKeepZStruct"};
        const bool first = control->Kind == ControlKind::option && control->Member == 0;
        EXPECT_EQ(control->State, first || on.contains(control->Name())) << control->Name();
        EXPECT_TRUE(control->Kind != ControlKind::date || control->date() == test::now.date) << control->Name();
        EXPECT_LE(control->TabIndex, form().cmdSave.TabIndex) << control->Name();
    }
}

TEST_F(Start, EditPathsIsWrittenBackAlone) {
    create();
    for (const int state : {0, 1}) {
        check("chkEditPaths", state);
        EXPECT_EQ(test::bytesOf(values.INIFile), "[EditWin]\r\nchkEditPaths=" + std::to_string(state) + "\r\n");
    }
}

TEST_F(Start, OnlyANewJobHasDefaults) {
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

}  // namespace
}  // namespace kestedit
