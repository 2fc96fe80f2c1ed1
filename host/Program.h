// The program behind main, with its streams given.
#pragma once

#include <ostream>

#include "host/ExitCode.h"

namespace kestedit {

/// Carries out one command line. Results go to `out`, errors as one line to `err`. An `out` that does not take
/// everything is an error too.
[[nodiscard]] ExitCode runProgram(int argc, const char* const* argv, std::ostream& out, std::ostream& err);

}  // namespace kestedit
