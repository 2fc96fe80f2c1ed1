#include "persistence/DurationMinutes.h"

#include <limits>

namespace kestedit {

namespace {

constexpr std::int64_t minutesPerHour = 60;
constexpr std::int64_t hoursPerDay = 24;

constexpr std::int64_t endOfRange(bool negative) {
    return negative ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max();
}

std::int64_t plus(std::int64_t a, std::int64_t b) {
    std::int64_t sum = 0;
    return __builtin_add_overflow(a, b, &sum) ? endOfRange(a < 0) : sum;
}

std::int64_t times(std::int64_t a, std::int64_t factor) {
    std::int64_t product = 0;
    return __builtin_mul_overflow(a, factor, &product) ? endOfRange(a < 0) : product;
}

void carry(EditorControl& unit, EditorControl& largerUnit, std::int64_t range) {
    const std::int64_t value = unit.number();
    if (value <= range) return;
    largerUnit.EditValue = plus(largerUnit.number(), value / range);
    unit.EditValue = value % range;
}

std::int64_t totalMinutes(const EditorControl& days, const EditorControl& hours, const EditorControl& minutes) {
    const std::int64_t total = plus(times(days.number(), hoursPerDay), hours.number());
    return plus(times(total, minutesPerHour), minutes.number());
}

}  // namespace

DurationEditors runInterval(FormModel& form) {
    return {form.dxDays, form.dxHours, form.dxMinutes};
}

DurationEditors fileAge(FormModel& form) {
    return {form.dxAge, form.dxAgeHours, form.dxAgeMinutes};
}

void normalise(const DurationEditors& editors) {
    carry(editors.minutes, editors.hours, minutesPerHour);
    carry(editors.hours, editors.days, hoursPerDay);
}

std::int64_t runIntervalMinutes(const FormModel& form) {
    return totalMinutes(form.dxDays, form.dxHours, form.dxMinutes);
}

std::int64_t fileAgeMinutes(const FormModel& form) {
    return totalMinutes(form.dxAge, form.dxAgeHours, form.dxAgeMinutes);
}

void showMinutes(const DurationEditors& editors, std::int64_t total) {
    const std::int64_t hours = total / minutesPerHour;
    editors.days.EditValue = hours / hoursPerDay;
    editors.hours.EditValue = hours % hoursPerDay;
    editors.minutes.EditValue = total % minutesPerHour;
}

}  // namespace kestedit
