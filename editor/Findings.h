// What the checks of paths and schedule found, as the user reads it.
#pragma once

#include <string>
#include <string_view>

#include "editor/rules/paths.h"
#include "editor/rules/schedule.h"
#include "persistence/modIniHandler.h"
#include "platform/CodePage.h"

namespace kestedit {

[[nodiscard]] std::string FindingText(const modIniHandler& texts, PathFinding finding, const FormModel& form);
[[nodiscard]] std::string FindingText(const modIniHandler& texts, ScheduleFinding finding);

/// Whether a job of this code page can hold the path of a folder or program. A line break would stand there as a blank,
/// and the path lead elsewhere.
[[nodiscard]] bool IsStorablePath(const CodePage& page, std::string_view path);

/// Why a text cannot be taken over: it holds characters that a job file cannot hold.
[[nodiscard]] std::string UnstorableText(const modIniHandler& texts, std::string_view text);

}  // namespace kestedit
