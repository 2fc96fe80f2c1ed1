// What a job may be called: its name becomes a file name.
#pragma once

#include <string>
#include <string_view>

namespace kestedit {

/// The characters of `name` that a job's name must not contain, each once.
[[nodiscard]] std::string invalidNameCharacters(std::string_view name);

}  // namespace kestedit
