#include "editor/JobName.h"

#include "platform/Text.h"

namespace kestedit {

namespace {

// The slash stands here three times.
constexpr std::string_view invalidNameChars = "<>|/\\//:´~^¨¦`*?\"";

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

}  // namespace kestedit
