// Where the files that come with the program and the library stand.
#pragma once

#include <filesystem>

#include "platform/Export.h"

namespace kestedit {

/// The folder share/kestedit of the tree that holds this code, be it in a program (bin/) or in a library (lib/, or a
/// folder below it). Found from the code's own file, so an installed tree can be moved, and the build tree has the same
/// shape. Empty when there is no such folder.
[[nodiscard]] KESTEDIT_EXPORT std::filesystem::path dataFolder();

}  // namespace kestedit
