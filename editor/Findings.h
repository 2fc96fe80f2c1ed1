// What the checks of paths and schedule found, as the user reads it.
#pragma once

#include <string>
#include <string_view>

#include "editor/rules/paths.h"
#include "editor/rules/schedule.h"
#include "persistence/modIniHandler.h"

namespace kestedit {

[[nodiscard]] std::string FindingText(const modIniHandler& texts, PathFinding finding, const FormModel& form);
[[nodiscard]] std::string FindingText(const modIniHandler& texts, ScheduleFinding finding);

/// Why a text cannot be taken over: it holds characters that the job file's code page lacks.
[[nodiscard]] std::string UnstorableText(const modIniHandler& texts, std::string_view text);

}  // namespace kestedit
