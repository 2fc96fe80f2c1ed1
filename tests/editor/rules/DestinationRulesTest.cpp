// Existing files and synchronisation: the options share the destination page.
#include <gtest/gtest.h>

#include "editor/rules/existing.h"
#include "editor/rules/selection.h"
#include "editor/rules/synchronise.h"
#include "tests/editor/rules/RuleForm.h"

namespace kestedit {
namespace {

using test::reachable;
using test::RuleForm;

const std::string choices = "lblExist optExist(0) optExist(1) optExist(2) optExist(3) optExist(4)";
const std::string renaming =
    "lblRenamer dxRenamer optRenameSelect(0) optRenameSelect(1) lblAnd dxPickRenamer chkDelSourceRename";
const std::string times = "lblExistTime optExtFileTime(0) optExtFileTime(1) optExtFileTime(2)";
const std::string condition = "dxPickExistSelecter";
const std::string governed = choices + " " + renaming + " " + condition + " " + times;

class DestinationRules : public testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(DisableOrHide, DestinationRules, testing::Bool());

TEST_P(DestinationRules, EachChoiceBringsItsOwnEditors) {
    const std::string expected[] = {choices, choices + " " + times, choices + " " + renaming, choices,
                                    choices + " " + condition + " " + times};
    RuleForm form(GetParam());
    form.dxPickExistSelecter.EditValue = form.dxPickExistSelecter.Items[0];
    form.optSyncExist.select(2);  // of no concern to the other actions
    form.dxRenamer.EditValue = "old";
    for (const int action : {0, 1, 2, 3, 4, 5}) {
        for (const int choice : {2, 4, 0, 1, 3}) {
            form.act(static_cast<Action>(action));
            form.choose("optExist", choice);
            ApplyExist(form);
            SCOPED_TRACE(std::to_string(action) + " " + std::to_string(choice));
            const bool handles = action == 0 || action == 1 || action == 3;
            const std::string other = action == 5 ? condition + " " + times : "";
            EXPECT_EQ(form.applying(governed), handles ? expected[choice] : other);
        }
    }
    EXPECT_EQ(form.dxRenamer.text(), "old");
}

TEST_P(DestinationRules, TimeStampsMatterToConditionsThatCompareTimes) {
    constexpr bool comparesTimes[] = {true, true, false, true, true, false, true, true};
    for (const auto action : {Action::copy, Action::synchronise}) {
        RuleForm form(GetParam());
        form.act(action);
        form.optExist.select(4);
        form.optSyncExist.select(2);
        ApplyExist(form);
        EXPECT_EQ(form.applying(times), "") << "nothing picked yet";
        for (std::size_t i = 0; i < std::size(comparesTimes); ++i) {
            form.dxPickExistSelecter.EditValue = form.dxPickExistSelecter.Items[i];
            ApplyExist(form);
            EXPECT_EQ(form.applying(times), comparesTimes[i] ? times : "") << i;
        }
    }
}

TEST_P(DestinationRules, FolderOptionsByActionAndSubfolders) {
    const std::string all = "chkFStruct chkDelTypeSource chkDelEFolSource";
    const std::string withSubfolders[] = {"chkFStruct", all, "", "", "", ""};
    const std::string without[] = {"", "chkDelTypeSource", "", "", "", ""};
    RuleForm form(GetParam());
    form.chkFStruct.State = form.chkDelEFolSource.State = 1;
    for (const std::size_t action : {0U, 1U, 2U, 3U, 4U, 5U}) {
        form.act(static_cast<Action>(action));
        for (const int subfolders : {1, 0}) {
            form.chkSubFolder.State = subfolders;
            ApplySubFolder(form);
            EXPECT_EQ(form.applying(all), (subfolders ? withSubfolders : without)[action]) << action;
        }
    }
    EXPECT_TRUE(form.chkFStruct.isSet() && form.chkDelEFolSource.isSet());
}

TEST_P(DestinationRules, PageShowsTheGroupOfItsActionOrSaysThatItHasNone) {
    const std::string unzip = "lblDestZExist optUnZip(0) optUnZip(1) optUnZip(2)";
    RuleForm form(GetParam());
    for (const int action : {4, 2, 0}) {
        form.act(static_cast<Action>(action));
        ShowDestinationFrames(form);
        EXPECT_EQ(form.applying(unzip), action == 4 ? unzip : "");
        EXPECT_EQ(form.applying(choices), action == 0 ? choices : "");
        EXPECT_EQ(form.lblNoOptionMsg[1].Visible, action == 2);
    }
}

TEST_P(DestinationRules, DeletingWhatTheSourceLacksNeedsOneWayAndAllFilesInAnyOrder) {
    for (const int compareOnly : {0, 1}) {
        for (const int bothWays : {0, 1}) {
            for (const bool startFirst : {false, true}) {
                RuleForm form(GetParam());
                form.act(Action::synchronise);
                form.chkOnlyCompare.State = compareOnly;
                form.choose("optSyncStart", bothWays);
                form.chkSyncDelete.State = 1;
                if (startFirst) ApplySyncStart(form);
                ApplyOnlyCompare(form);
                if (!startFirst) ApplySyncStart(form);
                EXPECT_EQ(reachable(form.chkSyncDelete), !compareOnly && !bothWays);
                EXPECT_TRUE(form.chkSyncDelete.isSet());
            }
        }
    }
}

TEST(DestinationMarks, FollowTheChoiceWhileCopying) {
    RuleForm form;
    form.chkSubFolder.State = 1;
    form.optExist.select(3);
    ApplyExist(form);
    EXPECT_EQ(form.mark(Page::existing), "8");
    form.act(Action::synchronise);
    ApplyAction(form);
    form.optSyncExist.select(2);
    ApplySyncExist(form, 2);
    EXPECT_EQ(form.mark(Page::existing), "");
    form.act(Action::remove);
    ApplyAction(form);
    ShowDestinationFrames(form);
    EXPECT_EQ(form.mark(Page::existing), "10");
}

}  // namespace
}  // namespace kestedit
