// From the controls to the lines of a job file.
#pragma once

#include <vector>

#include "form/FormModel.h"
#include "persistence/JobStore.h"
#include "platform/DateFormat.h"
#include "platform/DateTime.h"

namespace kestedit {

/// The least free space, in MB, that a job can ask for.
inline constexpr std::int64_t leastFreeSpace = 2000;

/// As many bytes of the notes come back from the file; the rest is stored all the same.
inline constexpr std::size_t mostShownOfComment = 255;

/// The notes as the line that the file holds: "^" for every line break.
[[nodiscard]] std::string storedComment(const FormModel& form);

/// Makes the form show what a save writes: folders are not deleted without the search in subfolders, the free space is
/// raised to 2000, minutes and hours above their range are carried into hours and days.
void CorrectValues(FormModel& form);

/// All lines of a save, in file order; the same before and after CorrectValues. With `skipComment` the keys "Comment"
/// and "NodeIcon" are left out.
[[nodiscard]] std::vector<JobLine> SaveValues(const FormModel& form, const DateFormat& dates, const LocalTime& now,
                                              bool skipComment = false);

}  // namespace kestedit
