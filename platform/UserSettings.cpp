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

fs::path homeFolder() {
    if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0') return home;
    std::array<char, 4096> buffer{};
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found != nullptr)
        return found->pw_dir;
    return "/";
}

fs::path baseFolder(const char* variable, const char* standard) {
    const char* value = std::getenv(variable);
    const fs::path chosen = value == nullptr ? "" : value;
    return chosen.is_absolute() ? chosen : homeFolder() / standard;
}

/// Creates `folder` and what is missing above it, for the user alone, as the base directory rules ask.
std::error_code makeFolders(const fs::path& folder) {
    if (folder.empty() || ::mkdir(folder.c_str(), 0700) == 0 || errno == EEXIST) return {};
    if (errno == ENOENT && folder.has_relative_path()) {
        if (const std::error_code error = makeFolders(folder.parent_path())) return error;
        if (::mkdir(folder.c_str(), 0700) == 0 || errno == EEXIST) return {};
    }
    return {errno, std::system_category()};
}

}  // namespace

UserFolders userFolders() {
    return {baseFolder("XDG_CONFIG_HOME", ".config") / "kestedit",
            baseFolder("XDG_DATA_HOME", ".local/share") / "kestedit"};
}

std::string UserSettingsFile::read(std::string_view section, std::string_view key, std::string_view fallback) const {
    return IniStore(CodePage(CodePage::utf8)).read(file_, section, key, fallback, longestValue);
}

std::error_code UserSettingsFile::write(std::string_view section, std::string_view key, std::string_view value) {
    if (const std::error_code error = makeFolders(file_.parent_path())) return error;
    return IniStore(CodePage(CodePage::utf8)).write(file_, section, key, value);
}

}  // namespace kestedit
