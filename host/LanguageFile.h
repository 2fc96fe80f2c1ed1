// Which of the language files that come with the program fits its user.
#pragma once

#include <filesystem>
#include <string_view>

namespace kestedit {

/// "german.lng" for a locale such as "de_AT.UTF-8", "english.lng" for every other.
[[nodiscard]] std::string_view languageFileOf(std::string_view locale);

/// The language file for the locale of the user's messages, in ../share/kestedit/lang beside the program's own folder:
/// so an installed tree can be moved, and the build tree has the same shape. The file may be missing; the editor then
/// shows what it shows without one.
[[nodiscard]] std::filesystem::path userLanguageFile();

}  // namespace kestedit
