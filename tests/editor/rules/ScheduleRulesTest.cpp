#include <gtest/gtest.h>

#include "editor/rules/schedule.h"
#include "tests/editor/rules/RuleForm.h"

namespace kestedit {
namespace {

using namespace std::chrono_literals;
using test::RuleForm;

const std::string interval = "dxDays lblDays dxHours lblHours dxMinutes lblMinutes";
const std::string timed = "optIntTime(0) optIntTime(1) optIntTime(2) optIntTime(3) lblDateTime dxDateTime";
const std::string watching = "lblRTMon lblMonDelay dxMonDelay lblWatchWhat dxMonWatch chkMonSubFolder";
const std::string dayEditors = "dxIntWeekDay dxIntMonthDay lblDate dxDate";
const std::string watched = "optMonitorPath(0) optMonitorPath(1) optMonitorPath(2) dxMonitorPath";

class ScheduleRules : public testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(DisableOrHide, ScheduleRules, testing::Bool());

TEST_P(ScheduleRules, OnlyThePartOfTheChosenStartApplies) {
    const std::string expected[] = {interval, timed, watching};
    RuleForm form(GetParam());
    form.optIntTime.select(3);
    form.optMonitorPath.select(2);
    for (const int choice : {2, 1, 0, -1}) {
        form.choose("optIntervall", choice);
        ApplyIntervall(form);
        EXPECT_EQ(form.applying(interval + " " + timed + " " + watching), choice < 0 ? "" : expected[choice]);
        EXPECT_EQ(form.applying(dayEditors), choice == 1 ? "lblDate dxDate" : "");
        EXPECT_EQ(form.applying(watched), choice == 2 ? watched : "");
        EXPECT_EQ(form.mark(Page::monitoring), choice > 0 ? "8" : "");
    }
}

TEST_P(ScheduleRules, DayEditorFollowsTheKindOfTime) {
    const std::string expected[] = {"", "dxIntWeekDay", "dxIntMonthDay", "lblDate dxDate"};
    RuleForm form(GetParam());
    form.optIntervall.select(1);
    for (const int kind : {3, 2, 1, 0}) {
        form.choose("optIntTime", kind);
        ApplyIntTime(form);
        EXPECT_EQ(form.applying(dayEditors), expected[kind]);
        EXPECT_EQ(form.applying("dxDateTime"), "dxDateTime");
        RuleForm atIntervals(GetParam());
        atIntervals.choose("optIntTime", kind);
        ApplyIntTime(atIntervals);
        EXPECT_EQ(atIntervals.applying("dxDateTime " + dayEditors), "");
    }
}

TEST_P(ScheduleRules, DestinationIsWatchedOnlyWhereThereIsOne) {
    RuleForm form(GetParam());
    form.optIntervall.select(2);
    form.optMonitorPath.select(1);
    for (const auto action : {Action::remove, Action::synchronise, Action::copy}) {
        form.act(action);
        ApplyMonitorPath(form);
        EXPECT_EQ(form.applying(watched), action == Action::remove
                                              ? "optMonitorPath(0) optMonitorPath(2)"
                                              : "optMonitorPath(0) optMonitorPath(1) optMonitorPath(2)");
    }
    EXPECT_TRUE(form.optMonitorPath[1].isSet());
}

TEST(ScheduleCheck, FindsADateThatHasPassedAndAnIntervalOfNothing) {
    const Date today = std::chrono::year{2026} / 11 / 21;
    const LocalTime now{today, 9h + 30min};
    struct Case {
        std::optional<Date> date;
        std::optional<TimeOfDay> time;
        bool passed;
    };
    const Case cases[] = {
        {addDays(today, -1), 23h, true}, {today, 9h + 29min, true}, {today, 9h + 30min, false},
        {addDays(today, 1), 0h, false},  {today, {}, false},        {{}, 9h, true},
        {addDays(today, -1), {}, true},  {{}, {}, false},
    };
    RuleForm form;
    form.optIntervall.select(1);
    form.optIntTime.select(3);
    for (const Case& one : cases) {
        form.dxDate.EditValue = one.date ? Value{*one.date} : Value{};
        form.dxDateTime.EditValue = one.time ? Value{*one.time} : Value{};
        EXPECT_EQ(CheckSchedule(form, now), one.passed ? std::optional{ScheduleFinding::datePassed} : std::nullopt)
            << &one - cases;
    }
    form.dxDate.EditValue = addDays(today, -1);
    form.optIntTime.select(0);
    EXPECT_FALSE(CheckSchedule(form, now)) << "a daily job has no date";
    form.optIntervall.select(0);
    EXPECT_FALSE(CheckSchedule(form, now)) << "every hour";
    form.dxHours.EditValue = std::int64_t{0};
    EXPECT_EQ(CheckSchedule(form, now), ScheduleFinding::intervalZero);
    form.optIntervall.select(2);
    EXPECT_FALSE(CheckSchedule(form, now)) << "monitoring needs no interval";
}

}  // namespace
}  // namespace kestedit
