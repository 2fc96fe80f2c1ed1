// The help key.
#include <filesystem>
#include <string>
#include <utility>

#include "editor/frmEdit.h"
#include "platform/DataFolder.h"

namespace kestedit {

std::optional<std::string> frmEdit::onHelpKey() {
    requireOpen();
    const std::string& own = values_.HelpFile;
    const std::string file = own.empty() ? installedManual() : own;
    if (!file.empty() && platform_.files.FileExists(file)) return platform_.files.Absolute(file);
    std::string text = own.empty() ? textOf(ini_, TextId::noHelp) : textOf(ini_, TextId::helpMissing) + "\r\n" + own;
    (void)platform_.prompts.showMessage({values_.AppTitle, std::move(text), Buttons::ok, MessageIcon::information});
    return std::nullopt;
}

// The language file says which manual is in its language: a name, never a path.
std::string frmEdit::installedManual() const {
    const std::filesystem::path data = platform_.data ? *platform_.data : dataFolder();
    const std::string name = platform_.files.GetFileName(textOf(ini_, TextId::manualFile));
    return data.empty() || name.empty() ? std::string{} : (data / "manual" / name).string();
}

}  // namespace kestedit
