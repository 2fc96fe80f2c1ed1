#include "host/LanguageFile.h"

#include <cstdlib>
#include <system_error>

namespace kestedit {

namespace {

/// The locale of messages, by the order in which these variables count.
std::string_view messageLocale() {
    for (const char* const variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* const value = std::getenv(variable);
        if (value && *value != '\0') return value;
    }
    return "";
}

}  // namespace

std::string_view languageFileOf(std::string_view locale) {
    const std::string_view language = locale.substr(0, locale.find_first_of("_.@"));
    return language == "de" ? "german.lng" : "english.lng";
}

std::filesystem::path userLanguageFile() {
    std::error_code ignored;  // without /proc the path is relative, and the file just missing
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", ignored);
    return program.parent_path().parent_path() / "share/kestedit/lang" / languageFileOf(messageLocale());
}

}  // namespace kestedit
