// From the controls to the lines of a job file.
#pragma once

#include <vector>

#include "form/FormModel.h"
#include "persistence/JobStore.h"
#include "platform/DateFormat.h"
#include "platform/DateTime.h"

namespace kestedit {

/// All lines of a save, in file order. Corrects the form on the way, so that it shows what was written: folders are not
/// deleted without the search in subfolders, the free space is raised to 2000, minutes and hours above their range are
/// carried into hours and days. With `skipComment` the keys "Comment" and "NodeIcon" are left out.
[[nodiscard]] std::vector<JobLine> SaveValues(FormModel& form, const DateFormat& dates, const LocalTime& now,
                                              bool skipComment = false);

}  // namespace kestedit
