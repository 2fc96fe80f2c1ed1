// The command line of the program.
#pragma once

#include <stdexcept>

#include "host/Command.h"

namespace kestedit {

/// A command line that does not say what to do; the text tells why in one line.
class UsageError : public std::invalid_argument {
  public:
    using std::invalid_argument::invalid_argument;
};

/// Reads the arguments as main gets them. Touches no file. Throws UsageError.
[[nodiscard]] Command parseOptions(int argc, const char* const* argv);

}  // namespace kestedit
