// Line breaks in what a user types or pastes.
#pragma once

#include <string>
#include <string_view>

namespace kestedit {

/// For a field of one line: each line break ("\r\n", "\r" or "\n") and each NUL becomes one blank. The job file could
/// not hold them either.
[[nodiscard]] std::string singleLine(std::string_view text);

/// For a memo: each line break becomes "\r\n", which is what the comment of a job file knows, and each NUL a blank.
[[nodiscard]] std::string windowsLines(std::string_view text);

}  // namespace kestedit
