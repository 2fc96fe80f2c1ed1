// From a stored job, or from the new-job defaults, into the controls.
#pragma once

#include <string_view>

#include "form/FormModel.h"
#include "persistence/JobStore.h"
#include "platform/DateFormat.h"
#include "platform/DateTime.h"

namespace kestedit {

/// Selects the job's action, and nothing else: the action's rule runs next, so that the values that follow stand.
void GetAction(FormModel& form, const JobRecord& job);

/// Copies every other value. A date that is missing or does not read under `dates` is replaced (DateFrom by yesterday,
/// the others by today); for one that does not read, DateFormatChanged is set. `comment` is the stored text of that
/// key.
void GetValues(FormModel& form, const JobRecord& job, std::string_view comment, const DateFormat& dates, Date today);

/// Selects member 0 of the groups that a new job decides, and sets dates and time to now.
void SetNewJobDefaults(FormModel& form, const LocalTime& now);

/// The date and time controls of a form that is to hold a new job.
void SetPresentDates(FormModel& form, const LocalTime& now);

}  // namespace kestedit
