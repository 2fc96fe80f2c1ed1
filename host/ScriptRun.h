// The subcommand `script`.
#pragma once

#include <ostream>

#include "host/Command.h"
#include "host/ExitCode.h"

namespace kestedit {

/// Runs the script and prints its results to `out`, the host's event as the last line whatever happens. What fails is
/// one line on `err`.
[[nodiscard]] ExitCode runScript(const RunScript& command, std::ostream& out, std::ostream& err);

}  // namespace kestedit
