#include <gtest/gtest.h>

#include "editor/rules/schedule.h"
#include "tests/editor/rules/RuleForm.h"

namespace kestedit {
namespace {

using namespace std::chrono_literals;

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
    test::RuleForm form;
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
}

}  // namespace
}  // namespace kestedit
