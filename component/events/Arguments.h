// What the words behind a verb may be, and how each becomes a value.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/DateTime.h"

namespace kestedit {

using Argument = std::variant<std::string, std::int64_t, bool, Date, TimeOfDay>;
using Arguments = std::vector<Argument>;

struct ArgumentKind {
    std::string_view placeholder;                              ///< in usage lines: "YYYY-MM-DD"
    std::string_view wanted;                                   ///< in errors: "a date such as 2026-11-21"
    std::optional<Argument> (*read)(const std::string& word);  ///< nothing for a word that does not fit
};

namespace arguments {

[[nodiscard]] std::optional<Argument> readText(const std::string& word);
[[nodiscard]] std::optional<Argument> readProperty(const std::string& word);
[[nodiscard]] std::optional<Argument> readState(const std::string& word);
[[nodiscard]] std::optional<Argument> readIndex(const std::string& word);
[[nodiscard]] std::optional<Argument> readNumber(const std::string& word);
[[nodiscard]] std::optional<Argument> readDirection(const std::string& word);
[[nodiscard]] std::optional<Argument> readDate(const std::string& word);
[[nodiscard]] std::optional<Argument> readTime(const std::string& word);

// clang-format off
inline constexpr ArgumentKind control   {"CONTROL",       "a control",                       readText};
inline constexpr ArgumentKind group     {"GROUP",         "an option group",                 readText};
inline constexpr ArgumentKind text      {"TEXT",          "a text",                          readText};
inline constexpr ArgumentKind property  {"NAME.PROPERTY", "a name, a dot and a property",    readProperty};
inline constexpr ArgumentKind state     {"0|1|2",         "0, 1 or 2",                       readState};
inline constexpr ArgumentKind index     {"N",             "a position from 0",               readIndex};
inline constexpr ArgumentKind member    {"INDEX",         "an index from 0",                 readIndex};
inline constexpr ArgumentKind number    {"N",             "a whole number",                  readNumber};
inline constexpr ArgumentKind direction {"up|down",       "up or down",                      readDirection};
inline constexpr ArgumentKind date      {"YYYY-MM-DD",    "a date such as 2026-11-21",       readDate};
inline constexpr ArgumentKind time      {"HH:MM:SS",      "a time of day such as 14:05:00",  readTime};
// clang-format on

}  // namespace arguments

}  // namespace kestedit
