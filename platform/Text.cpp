#include "platform/Text.h"

#include <clocale>
#include <cstddef>
#include <cwctype>
#include <utility>

namespace kestedit {

namespace {

constexpr char32_t replacement = 0xFFFD;

/// Length that a lead byte announces, the bits it carries, and the smallest character that needs this length.
struct Lead {
    std::size_t length;
    char32_t bits;
    char32_t smallest;
};

Lead leadOf(unsigned char byte) {
    if (byte < 0x80) return {1, byte, 0};
    if (byte >= 0xC2 && byte <= 0xDF) return {2, byte & 0x1FU, 0x80};
    if (byte >= 0xE0 && byte <= 0xEF) return {3, byte & 0x0FU, 0x800};
    if (byte >= 0xF0 && byte <= 0xF4) return {4, byte & 0x07U, 0x10000};
    return {0, 0, 0};
}

bool isScalar(char32_t codePoint) {
    return codePoint <= 0x10FFFF && (codePoint < 0xD800 || codePoint > 0xDFFF);
}

/// The decoded first character of `text`, or length 0 when its first byte starts no valid sequence.
Lead decodeFirst(std::string_view text) {
    const Lead lead = leadOf(static_cast<unsigned char>(text[0]));
    if (lead.length == 0 || lead.length > text.size()) return {0, 0, 0};
    char32_t codePoint = lead.bits;
    for (std::size_t i = 1; i < lead.length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0U) != 0x80) return {0, 0, 0};
        codePoint = (codePoint << 6U) | (byte & 0x3FU);
    }
    if (codePoint < lead.smallest || !isScalar(codePoint)) return {0, 0, 0};
    return {lead.length, codePoint, lead.smallest};
}

/// The case tables of all of Unicode; the process's own locale may be "C", which knows ASCII only.
locale_t unicodeLocale() {
    static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", locale_t{});
    return locale;
}

}  // namespace

Character takeCharacter(std::string_view& rest) {
    const Lead decoded = decodeFirst(rest);
    const std::size_t length = decoded.length == 0 ? 1 : decoded.length;
    const Character character{decoded.length == 0 ? replacement : decoded.bits, rest.substr(0, length)};
    rest.remove_prefix(length);
    return character;
}

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const auto [codePoint, sequence] = takeCharacter(text);
        if (codePoint == replacement && sequence.size() == 1) return false;
    }
    return true;
}

void appendCharacter(std::string& text, char32_t codePoint) {
    const auto append = [&text](char32_t byte) { text.push_back(static_cast<char>(static_cast<unsigned char>(byte))); };
    const auto appendTail = [&append](char32_t bits) { append(0x80U | (bits & 0x3FU)); };
    if (codePoint < 0x80) {
        append(codePoint);
    } else if (codePoint < 0x800) {
        append(0xC0U | (codePoint >> 6U));
        appendTail(codePoint);
    } else if (codePoint < 0x10000) {
        append(0xE0U | (codePoint >> 12U));
        appendTail(codePoint >> 6U);
        appendTail(codePoint);
    } else {
        append(0xF0U | (codePoint >> 18U));
        appendTail(codePoint >> 12U);
        appendTail(codePoint >> 6U);
        appendTail(codePoint);
    }
}

char32_t lowerCase(char32_t codePoint) {
    if (codePoint < 0x80) return codePoint >= U'A' && codePoint <= U'Z' ? codePoint + 0x20 : codePoint;
    const locale_t locale = unicodeLocale();
    if (locale == locale_t{}) return codePoint;
    return static_cast<char32_t>(towlower_l(static_cast<wint_t>(codePoint), locale));
}

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); ++count)
        (void)takeCharacter(text);
    return count;
}

bool hasShape(char32_t codePoint) {
    constexpr std::pair<char32_t, char32_t> invisible[] = {{0x200B, 0x200F},  {0x2028, 0x202E}, {0x2060, 0x206F},
                                                           {0xFE00, 0xFE0F},  {0xFEFF, 0xFEFF}, {0xFFF9, 0xFFFB},
                                                           {0xE0000, 0xE0FFF}};
    for (const auto& [first, last] : invisible)
        if (codePoint >= first && codePoint <= last) return false;
    const locale_t locale = unicodeLocale();
    return locale != locale_t{} && iswgraph_l(static_cast<wint_t>(codePoint), locale) != 0;
}

std::string quotable(std::string_view text) {
    constexpr int most = 40;
    std::string quoted;
    for (int i = 0; !text.empty(); ++i) {
        if (i == most) return quoted + "...";
        appendCharacter(quoted, takeCharacter(text).codePoint);
    }
    return quoted;
}

std::string_view trimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace kestedit
