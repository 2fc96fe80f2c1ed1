#include "platform/TypedNumbers.h"

#include <array>
#include <optional>

#include "platform/Text.h"

namespace kestedit {

namespace {

constexpr std::size_t mostNumbers = 3;
constexpr std::size_t mostDigits = 8;

/// Zero of each script whose keyboards type digits of their own: ASCII, Arabic, Persian, Devanagari, Bengali, Thai,
/// Tibetan, Burmese, full width.
constexpr std::array<char32_t, 9> zeros{U'0', 0x660, 0x6F0, 0x966, 0x9E6, 0xE50, 0xF20, 0x1040, 0xFF10};

std::optional<int> digitValue(char32_t character) {
    for (const char32_t zero : zeros) {
        if (character >= zero && character < zero + 10) return static_cast<int>(character - zero);
    }
    return std::nullopt;
}

/// The no-break and the narrow blanks stand in texts that are pasted.
bool isBlank(char32_t character) {
    return std::u32string_view{U" \t\r\n\u00A0\u2009\u202F\u3000"}.find(character) != std::u32string_view::npos;
}

}  // namespace

std::vector<TypedNumber> typedNumbers(std::string_view text, std::u32string_view separators) {
    std::vector<TypedNumber> numbers;
    bool isOpen = false;       // the last number goes on
    bool isSeparated = false;  // there is a separator behind it
    while (!text.empty()) {
        const char32_t character = takeCharacter(text).codePoint;
        if (const auto digit = digitValue(character)) {
            if (!isOpen) numbers.emplace_back();
            TypedNumber& number = numbers.back();
            if (numbers.size() > mostNumbers || ++number.digits > mostDigits) return {};
            number.value = number.value * 10 + *digit;
            isOpen = true;
            isSeparated = false;
            continue;
        }
        isOpen = false;
        if (isBlank(character)) continue;
        if (separators.find(character) == separators.npos || numbers.empty() || isSeparated) return {};
        isSeparated = true;
    }
    return numbers;
}

}  // namespace kestedit
