// Settings of the user, kept apart from jobs and from the program settings file that a host hands over.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/Export.h"

namespace kestedit {

/// An INI file of the editor's own in the user's configuration folder, always UTF-8.
class KESTEDIT_EXPORT UserSettings {
  public:
    virtual ~UserSettings() = default;

    /// The stored text; `fallback` when there is none.
    [[nodiscard]] virtual std::string read(std::string_view section, std::string_view key,
                                           std::string_view fallback) const = 0;
    /// Creates folder and file when needed. A failure is returned and changes nothing.
    virtual std::error_code write(std::string_view section, std::string_view key, std::string_view value) = 0;
};

/// The folders of one user by the XDG base directory rules, each with the product's name at its end.
struct UserFolders {
    std::filesystem::path config;  ///< $XDG_CONFIG_HOME/kestedit or ~/.config/kestedit
    std::filesystem::path data;    ///< $XDG_DATA_HOME/kestedit or ~/.local/share/kestedit
    std::string dataFrom;          ///< what `data` follows from: "XDG_DATA_HOME", "HOME" or "the account's home folder"
};

/// A relative or empty XDG variable counts as unset.
[[nodiscard]] KESTEDIT_EXPORT UserFolders userFolders();

/// Creates a folder of the program's own and what is missing above it, for the user alone, as the base directory rules
/// ask. One that is there stays as it is.
[[nodiscard]] KESTEDIT_EXPORT std::error_code createUserFolder(const std::filesystem::path& folder);

/// The user's settings in `file`, usually userFolders().config / "user.ini".
class KESTEDIT_EXPORT UserSettingsFile final : public UserSettings {
  public:
    explicit UserSettingsFile(std::filesystem::path file) : file_(std::move(file)) {}
    [[nodiscard]] std::string read(std::string_view section, std::string_view key,
                                   std::string_view fallback) const override;
    std::error_code write(std::string_view section, std::string_view key, std::string_view value) override;

  private:
    std::filesystem::path file_;
};

}  // namespace kestedit
