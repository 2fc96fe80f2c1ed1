// The two durations of a job, each three spin editors in the form and one number of minutes in the file.
#pragma once

#include <cstdint>

#include "form/FormModel.h"

namespace kestedit {

/// The editors of one duration, not owned.
struct DurationEditors {
    EditorControl& days;
    EditorControl& hours;
    EditorControl& minutes;
};

[[nodiscard]] DurationEditors runInterval(FormModel& form);
[[nodiscard]] DurationEditors fileAge(FormModel& form);

/// Carries minutes above 60 into the hours and then hours above 24 into the days. Exactly 60 and exactly 24 stay.
void normalise(const DurationEditors& editors);

/// The whole duration; stops at the end of the number range. An empty editor counts as 0.
[[nodiscard]] std::int64_t runIntervalMinutes(const FormModel& form);
[[nodiscard]] std::int64_t fileAgeMinutes(const FormModel& form);

void showMinutes(const DurationEditors& editors, std::int64_t total);

}  // namespace kestedit
