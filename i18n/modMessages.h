// The built-in German texts.
#pragma once

#include <span>
#include <string>

namespace kestedit {

/// Catalogue entries that have a built-in text.
inline constexpr std::size_t builtInTexts = 63;

/// Writes entries 0 to 62 of `catalogue` and all of `replaceIf`, copies of entries 52 to 59. Throws std::out_of_range
/// when either is too small. Entries from 63 on stay as they are.
void FillBuiltInTexts(std::span<std::string> catalogue, std::span<std::string> replaceIf);

/// Copies catalogue entries 52 to 59, the conditions under which an existing file is replaced.
void FillReplaceIfTexts(std::span<const std::string> catalogue, std::span<std::string> replaceIf);

}  // namespace kestedit
