#include "platform/UserSettings.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/IniStore.h"

namespace kestedit {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t longestValue = 65536;

/// A folder, and what has led to it, for messages.
struct Base {
    fs::path folder;
    std::string source;
};

Base homeFolder() {
    if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0') return {home, "HOME"};
    Base account{"/", "the account's home folder"};
    std::array<char, 4096> buffer{};
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found != nullptr)
        account.folder = found->pw_dir;
    return account;
}

Base baseFolder(const char* variable, const char* standard) {
    const char* value = std::getenv(variable);
    if (const fs::path chosen = value == nullptr ? "" : value; chosen.is_absolute()) return {chosen, variable};
    Base home = homeFolder();
    home.folder /= standard;
    return home;
}

}  // namespace

UserFolders userFolders() {
    const Base data = baseFolder("XDG_DATA_HOME", ".local/share");
    return {baseFolder("XDG_CONFIG_HOME", ".config").folder / "kestedit", data.folder / "kestedit", data.source};
}

std::error_code createUserFolder(const fs::path& folder) {
    if (folder.empty() || ::mkdir(folder.c_str(), 0700) == 0 || errno == EEXIST) return {};
    if (errno == ENOENT && folder.has_relative_path()) {
        if (const std::error_code error = createUserFolder(folder.parent_path())) return error;
        if (::mkdir(folder.c_str(), 0700) == 0 || errno == EEXIST) return {};
    }
    return {errno, std::system_category()};
}

std::string UserSettingsFile::read(std::string_view section, std::string_view key, std::string_view fallback) const {
    return IniStore(CodePage(CodePage::utf8)).read(file_, section, key, fallback, longestValue);
}

std::error_code UserSettingsFile::write(std::string_view section, std::string_view key, std::string_view value) {
    if (const std::error_code error = createUserFolder(file_.parent_path())) return error;
    return IniStore(CodePage(CodePage::utf8)).write(file_, section, key, value);
}

}  // namespace kestedit
