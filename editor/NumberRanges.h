// What each number editor takes.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/Export.h"

namespace kestedit {

struct NumberRange {
    std::int64_t least;
    std::int64_t most;
};

/// The numbers that a user can type into an editor. A spin step may leave the range by one on its way into the next
/// unit.
[[nodiscard]] KESTEDIT_EXPORT NumberRange numberRange(std::string_view editor);

}  // namespace kestedit
