#include "editor/PatternNotice.h"

#include <string_view>

#include "platform/Pattern.h"
#include "platform/Text.h"

namespace kestedit {

namespace {

TextId textFor(PatternMistake::Reason reason) {
    using enum PatternMistake::Reason;
    switch (reason) {
        case parenthesisMissing:
            return TextId::regExNeedsParenthesis;
        case parenthesisSurplus:
            return TextId::regExSpareParenthesis;
        case bracketMissing:
            return TextId::regExNeedsBracket;
        case nothingToRepeat:
            return TextId::regExNothingToRepeat;
        case endsInBackslash:
            return TextId::regExOpenBackslash;
        case tooLong:
            return TextId::regExTooLong;
        case tooDeep:
            return TextId::regExTooDeep;
        case other:
            break;
    }
    return TextId::badRegEx;
}

/// The end of the pattern's first `position` characters, short enough to stand in a sentence.
std::string endOfHead(std::string_view pattern, std::size_t position) {
    constexpr std::size_t shown = 12;
    const std::size_t hidden = position > shown ? position - shown : 0;
    std::string text = hidden > 0 ? "..." : "";
    for (std::size_t i = 0; i < position && !pattern.empty(); ++i) {
        const Character character = takeCharacter(pattern);
        if (i >= hidden) text += character.bytes;
    }
    return text;
}

}  // namespace

Noticed regularExpressionNotice(const std::string& pattern) {
    try {
        static_cast<void>(Pattern::regularExpression(pattern));
        return std::nullopt;
    } catch (const PatternMistake& mistake) {
        const std::size_t position = mistake.position();
        return Notice{textFor(mistake.reason()), {std::to_string(position), endOfHead(pattern, position)}};
    }
}

}  // namespace kestedit
