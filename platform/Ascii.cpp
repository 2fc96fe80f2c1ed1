#include "platform/Ascii.h"

#include <cstring>

namespace kestedit {

namespace {

template <class Number>
std::uint64_t numberAt(const char* place) {
    Number number{};
    std::memcpy(&number, place, sizeof number);
    return number;
}

/// Calls `visit` with every byte of `text`, eight at a time. The last eight overlap the ones before, because a copy of
/// the odd bytes would take longer than all the rest of a short name.
template <class Visit>
void visitWords(std::string_view text, Visit visit) {
    const char* const end = text.data() + text.size();
    if (text.size() >= 8) {
        for (const char* place = text.data(); end - place > 8; place += 8)
            visit(numberAt<std::uint64_t>(place));
        visit(numberAt<std::uint64_t>(end - 8));
    } else if (text.size() >= 4) {
        visit(numberAt<std::uint32_t>(text.data()) | numberAt<std::uint32_t>(end - 4) << 32U);
    } else if (!text.empty()) {
        const auto byte = [text](std::size_t index) { return numberAt<std::uint8_t>(text.data() + index); };
        visit(byte(0) | byte(text.size() / 2) << 8U | byte(text.size() - 1) << 16U);
    }
}

}  // namespace

bool isAscii(std::string_view text) {
    constexpr std::uint64_t highBits = 0x8080808080808080;
    std::uint64_t bits = 0;
    visitWords(text, [&bits](std::uint64_t word) { bits |= word; });
    return (bits & highBits) == 0;
}

std::uint32_t hashWithoutCase(std::string_view name) {
    constexpr std::uint64_t lowerCaseBits = 0x2020202020202020;
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15;
    std::uint64_t hash = name.size();
    visitWords(name, [&hash](std::uint64_t word) {
        hash = (hash ^ (word | lowerCaseBits)) * factor;
        hash ^= hash >> 32U;
    });
    // Names often differ in their last characters only, which reach none but the upper bits of the product above.
    return static_cast<std::uint32_t>((hash * factor) >> 32U);
}

}  // namespace kestedit
