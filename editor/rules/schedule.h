// When a job runs: at an interval, at a time, or when a folder changes.
#pragma once

#include <optional>
#include <string>

#include "form/FormModel.h"
#include "platform/DateTime.h"

namespace kestedit {

/// Change rule of optIntervall: 0 every days, hours and minutes, 1 at a time, 2 by folder monitoring.
void ApplyIntervall(FormModel& form);
/// Change rule of optIntTime: 0 daily, 1 weekly, 2 monthly, 3 on a date.
void ApplyIntTime(FormModel& form);
/// The run-time rule of the rule pass: the editors that the choice of a time uses.
void ApplyRunTime(FormModel& form);
/// Change rule of optMonitorPath: 0 source, 1 destination, 2 a folder of its own.
void ApplyMonitorPath(FormModel& form);

/// A job without a destination folder cannot watch it: it watches the source from then on. Part of the user's choice of
/// an action; a loaded job keeps what it holds.
void LeaveMissingDestination(FormModel& form);

/// Whether the page makes the job run otherwise than at an interval.
[[nodiscard]] bool ChangesSchedule(const FormModel& form);

/// What is wrong with the schedule at `now`.
enum class ScheduleFinding { datePassed, intervalZero };
[[nodiscard]] std::optional<ScheduleFinding> CheckSchedule(const FormModel& form, const LocalTime& now);

}  // namespace kestedit
