// Questions about ASCII text that are asked of every name and value, so they look at eight bytes at a time.
#pragma once

#include <cstdint>
#include <string_view>

namespace kestedit {

[[nodiscard]] bool isAscii(std::string_view text);

/// A hash that is the same for both cases of an ASCII letter; it takes no other byte for a letter. It differs from one
/// process to the next, so that the author of a file cannot choose names that share it.
[[nodiscard]] std::uint32_t hashWithoutCase(std::string_view name);

}  // namespace kestedit
