#include "editor/modBrowseFolders.h"

namespace kestedit {

namespace {

// The flags of a folder request.
constexpr unsigned fileSystemFoldersOnly = 1;
constexpr unsigned statusLine = 4;
constexpr unsigned resizableDialog = 64;
constexpr unsigned filesListed = 16384;

constexpr std::string_view statusPrefix = "Auswahl: ";

}  // namespace

std::string BrowseForFolder(Prompts& prompts, std::string_view title, std::string_view initialPath, bool showStatus,
                            const std::optional<std::string>& root, bool newDialogStyle, bool includeFiles) {
    FolderRequest request;
    if (!showStatus || title != "$") request.title = title;
    request.initialPath = initialPath;
    request.root = root;
    request.flags = fileSystemFoldersOnly | (showStatus ? statusLine : 0U) | (newDialogStyle ? resizableDialog : 0U) |
                    (includeFiles ? filesListed : 0U);
    if (showStatus) request.statusPrefix = statusPrefix;
    return prompts.chooseFolder(request).value_or(std::string{});
}

}  // namespace kestedit
