// Questions that the editor puts to the user while an event is handled: message boxes, choosers, its own small dialog.
#pragma once

#include <optional>
#include <string>

#include "platform/Export.h"

namespace kestedit {

class dlgNewFolder;

enum class Buttons { ok, yesNo, cancelRetryContinue, yesNoCancel };
enum class Answer { ok, yes, no, cancel, retry, proceed };
enum class MessageIcon { none, information, question, error };

struct MessageBox {
    std::string title;
    std::string text;  ///< lines end with "\r\n"
    Buttons buttons = Buttons::ok;
    MessageIcon icon = MessageIcon::none;
};

/// A request to choose one folder.
struct FolderRequest {
    std::string title;
    std::string initialPath;          ///< the folder to open on; may be empty or missing
    std::optional<std::string> root;  ///< nothing above it can be chosen
    unsigned flags = 0;               ///< as modBrowseFolders computes them
    std::string statusPrefix;         ///< stands in the status line, the selected path behind it; empty without one
};

/// A request to choose one existing file.
struct FileRequest {
    std::string title;
    std::string filter;  ///< pairs of description and patterns, all separated by "|", patterns by ";"
    int filterIndex = 1;
    unsigned flags = 0;
};

/// Each call returns when the user has answered. Nothing is chosen when the user cancels.
class KESTEDIT_EXPORT Prompts {
  public:
    virtual ~Prompts() = default;

    virtual Answer showMessage(const MessageBox& box) = 0;
    [[nodiscard]] virtual std::optional<std::string> chooseFolder(const FolderRequest& request) = 0;
    [[nodiscard]] virtual std::optional<std::string> chooseFile(const FileRequest& request) = 0;
    /// Shows the loaded dialog and hands it the user's events until it has closed.
    virtual void runNewFolder(dlgNewFolder& dialog) = 0;
};

}  // namespace kestedit
