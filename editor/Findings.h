// What the checks of paths and schedule found, as the user reads it.
#pragma once

#include <string>

#include "editor/rules/paths.h"
#include "editor/rules/schedule.h"
#include "persistence/modIniHandler.h"

namespace kestedit {

[[nodiscard]] std::string FindingText(const modIniHandler& texts, PathFinding finding, const FormModel& form);
[[nodiscard]] std::string FindingText(const modIniHandler& texts, ScheduleFinding finding);

}  // namespace kestedit
