// What the program tells the shell.
#pragma once

namespace kestedit {

/// Scripts and other programs test for these numbers: they never change.
enum class ExitCode : int {
    done = 0,
    failed = 1,      ///< a script line failed, or a file could not be read or written
    wrongUsage = 2,  ///< the command line was not understood; nothing was done
    noWindow = 3     ///< a window was asked for and there is none
};

}  // namespace kestedit
