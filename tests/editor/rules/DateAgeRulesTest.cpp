#include <gtest/gtest.h>

#include "editor/rules/dateAge.h"
#include "tests/editor/rules/RuleForm.h"

namespace kestedit {
namespace {

using test::RuleForm;

const std::string stamps = "optFileAgeType(0) optFileAgeType(1) optFileAgeType(2)";
const std::string age = "dxAge lblFileAgeDays dxAgeHours lblFileAgeHours dxAgeMinutes lblFileAgeMinutes";
const std::string range = "lblDatefrom dxDateFrom lblDateTo dxDateTo";
const std::string oneDate = "optFileDate(0) optFileDate(1) optFileDate(2) lblFileDate dxFileDate";

TEST(DateAgeRules, OnlyTheEditorsOfTheChoiceApply) {
    const std::string expected[] = {"", stamps + " " + age, stamps + " " + age, stamps + " " + range,
                                    stamps + " " + oneDate};
    for (const bool disable : {false, true}) {
        RuleForm form(disable);
        for (const int choice : {4, 1, 3, 0, 2}) {
            form.choose("optAge", choice);
            ApplyAge(form);
            EXPECT_EQ(form.applying(stamps + " " + age + " " + range + " " + oneDate),
                      expected[static_cast<std::size_t>(choice)]);
            EXPECT_EQ(form.mark(Page::date), choice == 0 ? "" : "8");
        }
    }
}

TEST(DateAgeRules, TimeStampsAreSetWhereFilesAreWritten) {
    const std::string boxes = "lblDestTime chkDestFileTime(0) chkDestFileTime(1) chkDestFileTime(2)";
    for (const bool disable : {false, true}) {
        RuleForm form(disable);
        form.chkDestFileTime[2].State = 1;
        for (const auto action :
             {Action::copy, Action::remove, Action::synchronise, Action::compress, Action::move, Action::extract}) {
            form.act(action);
            ApplyDestFileTime(form);
            const bool applies = action == Action::copy || action == Action::move || action == Action::synchronise;
            EXPECT_EQ(form.applying(boxes), applies ? boxes : "") << form.SelectedAction;
            EXPECT_EQ(form.mark(Page::date), applies ? "8" : "") << form.SelectedAction;
        }
        EXPECT_TRUE(form.chkDestFileTime[2].isSet());
    }
}

TEST(DateAgeRules, OneNeutralPartDoesNotTakeTheOthersMarkAway) {
    RuleForm form;
    form.optAge.select(1);
    ApplyAge(form);
    ApplyDestFileTime(form);
    EXPECT_EQ(form.mark(Page::date), "8");
    form.optAge.select(0);
    form.chkDestFileTime[0].State = 1;
    ApplyDestFileTime(form);
    ApplyAge(form);
    EXPECT_EQ(form.mark(Page::date), "8");
}

}  // namespace
}  // namespace kestedit
