#include "editor/CharacterNames.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "platform/Text.h"

namespace kestedit {

namespace {

constexpr std::size_t mostNames = 5;

std::string inHex(char32_t number) {
    std::string digits(8, '0');
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), std::uint32_t{number}, 16);
    digits.erase(static_cast<std::size_t>(end - digits.data()));
    for (char& digit : digits)
        if (digit >= 'a') digit = static_cast<char>(digit - 'a' + 'A');
    return digits;
}

std::string nameOf(const Character& character) {
    const auto first = static_cast<unsigned char>(character.bytes.front());
    if (character.bytes.size() == 1 && first >= 0x80) return "0x" + inHex(first);
    const std::string digits = inHex(character.codePoint);
    const std::string number = "U+" + std::string(digits.size() < 4 ? 4 - digits.size() : 0, '0') + digits;
    return hasShape(character.codePoint) ? number + ' ' + std::string(character.bytes) : number;
}

}  // namespace

std::string CharacterNames(std::string_view text, const std::function<bool(std::string_view)>& isMeant) {
    std::vector<std::string> names;
    while (!text.empty() && names.size() <= mostNames) {
        const Character character = takeCharacter(text);
        if (!isMeant(character.bytes)) continue;
        const std::string name = nameOf(character);
        if (std::ranges::find(names, name) == names.end()) names.push_back(name);
    }
    if (names.size() > mostNames) names.back() = "…";
    std::string list;
    for (const std::string& name : names)
        list += (list.empty() ? "" : ", ") + name;
    return list;
}

}  // namespace kestedit
