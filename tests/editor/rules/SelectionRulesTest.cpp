#include <gtest/gtest.h>

#include "editor/rules/compression.h"
#include "editor/rules/selection.h"
#include "tests/editor/rules/RuleForm.h"

namespace kestedit {
namespace {

using test::reachable;
using test::RuleForm;

class SelectionRules : public testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(DisableOrHide, SelectionRules, testing::Bool());

TEST_P(SelectionRules, PatternAppliesOnceSomethingIsLeftOut) {
    struct Group {
        std::string_view base;
        void (*rule)(FormModel&);
        std::string fields;
        Page page;
    };
    const Group groups[] = {
        {"optFolderMatch", ApplyFolderMatch, "lblFolder dxFolderMatch chkRegExFolder", Page::folders},
        {"optFileMatch", ApplyFileMatch, "lblFileName dxFileName chkRegExFile", Page::files},
        {"optExt", ApplyExt, "lblExt dxExt", Page::extensions},
        {"optSize", ApplySize, "dxSize lblSize", Page::filesize},
    };
    for (const Group& group : groups) {
        RuleForm form(GetParam());
        form.chkSubFolder.State = 1;
        form.dxFolderMatch.EditValue = form.dxFileName.EditValue = form.dxExt.EditValue = "kept";
        for (const int member : {-1, 0, 1, 2, 0}) {
            form.choose(group.base, member);
            group.rule(form);
            SCOPED_TRACE(std::string{group.base} + " " + std::to_string(member));
            EXPECT_EQ(form.applying(group.fields), member > 0 ? group.fields : "");
            EXPECT_EQ(form.mark(group.page), member > 0 || group.page == Page::folders ? "8" : "");
        }
        EXPECT_EQ(form.dxFolderMatch.text() + form.dxFileName.text() + form.dxExt.text(), "keptkeptkept");
    }
}

TEST_P(SelectionRules, SubfoldersGovernAllThatChoosesAmongThem) {
    const std::string search =
        "lblFolderTitle optFolderMatch(0) optFolderMatch(1) optFolderMatch(2) lblFolder dxFolderMatch chkRegExFolder "
        "lblNoScans chkNoHiddenFolder chkNoSystemFolder chkNoReadOnlyFolder";
    const std::string elsewhere = "chkFStruct chkDelEFolSource chkZipExtStruct";
    RuleForm form(GetParam());
    form.act(Action::move);
    form.optFolderMatch.select(2);
    form.chkZipAll.State = 1;
    for (const int state : {0, 1, 2, 1, 0}) {
        form.chkSubFolder.State = state;
        ApplySubFolder(form);
        SCOPED_TRACE(state);
        EXPECT_EQ(form.applying(search), state == 1 ? search : "");
        EXPECT_EQ(form.applying(elsewhere), state == 1 ? elsewhere : "");
        EXPECT_EQ(form.chkDelEFol.Enabled, state == 1);
        EXPECT_EQ(form.mark(Page::folders), state == 1 ? "8" : "");
    }
}

TEST_P(SelectionRules, EmptyFoldersNeedDeletingAndSubfoldersWhicheverChangedLast) {
    for (const auto action : {Action::copy, Action::remove}) {
        for (const int order : {0, 1, 2, 3}) {
            RuleForm form(GetParam());
            form.act(action);
            form.chkSubFolder.State = order / 2;
            if (order % 2 == 0) ApplyAction(form);
            ApplySubFolder(form);
            if (order % 2 == 1) ApplyAction(form);
            EXPECT_EQ(reachable(form.chkDelEFol), action == Action::remove && form.chkSubFolder.isSet());
        }
    }
}

TEST(RegularExpressions, ForgetDroppedCharactersOfTheirOwnFieldWhenSwitchedOn) {
    RuleForm form;
    form.InvalidFileNameChars = form.InvalidFolderMatchChars = true;
    ApplyRegExFile(form);
    ApplyRegExFolder(form);
    EXPECT_TRUE(form.InvalidFileNameChars && form.InvalidFolderMatchChars);
    form.chkRegExFolder.State = 1;
    ApplyRegExFile(form);
    ApplyRegExFolder(form);
    EXPECT_TRUE(form.InvalidFileNameChars && !form.InvalidFolderMatchChars);
}

}  // namespace
}  // namespace kestedit
