// Choosing a folder through the desktop's own chooser.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Prompts.h"

namespace kestedit {

/// The chosen folder, empty when the user cancels. With `showStatus` the chooser shows the selected path in its status
/// line, and the title "$" stands for none.
[[nodiscard]] std::string BrowseForFolder(Prompts& prompts, std::string_view title, std::string_view initialPath,
                                          bool showStatus, const std::optional<std::string>& root, bool newDialogStyle,
                                          bool includeFiles);

}  // namespace kestedit
