// The subcommands `ini get` and `ini set`.
#pragma once

#include <ostream>

#include "host/Command.h"

namespace kestedit {

/// Prints the value and a line feed. A missing file gives the default; one that exists and cannot be read throws
/// std::system_error.
void readIniKey(const ReadIniKey& command, std::ostream& out);

/// Throws std::system_error with the system's reason when the key could not be written.
void writeIniKey(const WriteIniKey& command);

}  // namespace kestedit
