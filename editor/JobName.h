// What a job may be called: its name becomes a file name.
#pragma once

#include <string>
#include <string_view>

namespace kestedit {

/// The characters of `name` that a job's name must not contain, each once.
[[nodiscard]] std::string invalidNameCharacters(std::string_view name);

/// Whether the file would be a hidden one, or no file at all: ".", "..", a dot in front.
[[nodiscard]] bool isHiddenName(std::string_view name);

/// Whether a tab, an escape or another character that nobody sees stands in it.
[[nodiscard]] bool hasControlCharacter(std::string_view name);

/// Whether none of this is so. An empty name passes: there are questions of its own for it.
[[nodiscard]] bool isFileName(std::string_view name);

}  // namespace kestedit
