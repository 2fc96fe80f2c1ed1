// Characters as a user can look them up: by their number, and by their shape where they have one.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace kestedit {

/// "U+65E5 日, U+672C 本": the characters of `text` for which `isMeant`, each once, "…" behind the first five. A byte
/// that belongs to no character is told as such ("0xFF").
[[nodiscard]] std::string CharacterNames(std::string_view text,
                                         const std::function<bool(std::string_view character)>& isMeant);

}  // namespace kestedit
