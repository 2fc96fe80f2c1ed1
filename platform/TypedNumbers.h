// The numbers of a date or time that a person types.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace kestedit {

struct TypedNumber {
    int value = 0;
    std::size_t digits = 0;
};

/// Up to three numbers of up to eight digits, in whatever script's digits, with blanks or one of `separators` between
/// them; a separator behind the last changes nothing. Empty when anything else stands in the text.
[[nodiscard]] std::vector<TypedNumber> typedNumbers(std::string_view text, std::u32string_view separators);

}  // namespace kestedit
