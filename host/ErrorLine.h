// The one form in which the program reports an error.
#pragma once

#include <ostream>
#include <string_view>

namespace kestedit {

/// Writes "kestedit: TEXT" and a line feed. Control characters in `text`, such as a line feed in a file name, become
/// "?", so that an error is always one line.
void writeErrorLine(std::ostream& err, std::string_view text);

}  // namespace kestedit
