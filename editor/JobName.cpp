#include "editor/JobName.h"

#include "platform/Text.h"

namespace kestedit {

namespace {

// The slash stands here three times.
constexpr std::string_view invalidNameChars = "<>|/\\//:´~^¨¦`*?\"";

bool isControlCharacter(char32_t codePoint) {
    return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0) || codePoint == 0x2028 || codePoint == 0x2029;
}

}  // namespace

std::string invalidNameCharacters(std::string_view name) {
    std::string found;
    for (std::string_view rest = name; !rest.empty();) {
        const std::string_view character = takeCharacter(rest).bytes;
        const bool invalid = invalidNameChars.find(character) != std::string_view::npos;
        if (invalid && found.find(character) == std::string::npos) found += character;
    }
    return found;
}

bool isHiddenName(std::string_view name) {
    return trimBlanks(name).starts_with('.');
}

bool hasControlCharacter(std::string_view name) {
    while (!name.empty()) {
        if (isControlCharacter(takeCharacter(name).codePoint)) return true;
    }
    return false;
}

bool isFileName(std::string_view name) {
    return invalidNameCharacters(name).empty() && !isHiddenName(name) && !hasControlCharacter(name);
}

}  // namespace kestedit
