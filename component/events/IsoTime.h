// Dates and times of day as scripts and options write them, whatever the user's locale is.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/DateTime.h"

namespace kestedit {

/// "2026-11-21".
[[nodiscard]] std::string isoText(Date date);

// Each reads its own full form with every digit; anything else, an impossible day among it, is nothing.
[[nodiscard]] std::optional<Date> parseIsoDate(std::string_view text);         ///< "2026-11-21"
[[nodiscard]] std::optional<TimeOfDay> parseIsoTime(std::string_view text);    ///< "14:05:00"
[[nodiscard]] std::optional<LocalTime> parseIsoMoment(std::string_view text);  ///< "2026-11-21T14:05:00"

}  // namespace kestedit
