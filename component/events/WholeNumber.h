// Whole numbers on the command line and in scripts.
#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>

namespace kestedit {

/// Decimal digits, a "-" ahead of them for a negative number, and nothing else; nothing for a number outside the
/// bounds.
[[nodiscard]] inline std::optional<std::int64_t> parseWholeNumber(std::string_view text, std::int64_t least,
                                                                  std::int64_t most) {
    std::int64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{} || stop != end || number < least || number > most) return std::nullopt;
    return number;
}

}  // namespace kestedit
