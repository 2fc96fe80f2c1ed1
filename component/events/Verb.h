// What a driver can be told in words: a verb and what stands behind it.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "component/events/Arguments.h"

namespace kestedit {

struct Verb {
    std::string_view name;
    std::array<const ArgumentKind*, 2> takes{};  ///< null behind the last
    std::string_view meaning;                    ///< for the help text
};

/// "set-date CONTROL YYYY-MM-DD"
[[nodiscard]] std::string usage(const Verb& verb);

/// Throws WrongWord when the words are not those that the verb takes.
[[nodiscard]] Arguments readArguments(const Verb& verb, std::span<const std::string> words);

}  // namespace kestedit
