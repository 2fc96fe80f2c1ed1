// Calendar dates and times of day as the form, the clock and the job file exchange them.
#pragma once

#include <chrono>

namespace kestedit {

/// A calendar date without a time zone.
using Date = std::chrono::year_month_day;

/// Seconds since local midnight, 0 to 86399.
using TimeOfDay = std::chrono::seconds;

/// A moment on the user's own clock.
struct LocalTime {
    Date date;
    TimeOfDay time;
};

/// Whether a person is still at the text that is read. While typing goes on, a text that more keys could turn into
/// something else, such as the "1/2/20" of "1/2/2026", says nothing yet.
enum class Typing { underWay, finished };

/// `date` moved by whole days, over month and year ends.
[[nodiscard]] inline Date addDays(Date date, int days) {
    return Date{std::chrono::sys_days{date} + std::chrono::days{days}};
}

}  // namespace kestedit
