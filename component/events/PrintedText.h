// Values in their printed form, the one of scripts and of the C interface. docs/script.md gives it to users.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "form/EditorControl.h"

namespace kestedit {

/// `text` in double quotes, with the escapes that a script word may hold: reading it as a word gives `text` back. A
/// byte that is not UTF-8 comes out as U+FFFD, because what the program prints is always UTF-8.
[[nodiscard]] std::string quotedText(std::string_view text);

/// "True" or "False".
[[nodiscard]] std::string flagText(bool flag);

/// Text in quotes, a number in decimal, a date as 2026-11-21, a time as 14:05:00, no value at all as "Empty".
[[nodiscard]] std::string valueText(const Value& value);

/// ["Keine", "Gering"]
[[nodiscard]] std::string listText(std::span<const std::string> entries);

inline constexpr std::string_view emptyText = "Empty";

}  // namespace kestedit
