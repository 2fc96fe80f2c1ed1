// Any text as a pattern, any bytes as a name: the pattern is one or says where it is none, and both kinds agree on what
// wildcards mean. The input: a line with the pattern, then the name.
#include "platform/Pattern.h"
#include "platform/Text.h"
#include "tests/fuzz/Fuzzing.h"

namespace {

using namespace kestedit;
using test::require;
using Match = Pattern::Match;

Match tried(std::string_view text, std::string_view name, Pattern::Letters letters) {
    try {
        return Pattern::regularExpression(text, letters).matches(name);
    } catch (const PatternMistake& mistake) {
        require(mistake.position() >= 1 && mistake.position() <= characterCount(text),
                "a mistake stands in the pattern");
        return Match::limitExceeded;
    }
}

/// The regular expression for the names that `wildcards` match.
std::string translated(std::string_view wildcards) {
    std::string text = "^";
    while (!wildcards.empty()) {
        const auto [codePoint, bytes] = takeCharacter(wildcards);
        if (codePoint == U'*') {
            text += ".*";
        } else if (codePoint == U'?') {
            text += '.';
        } else if (codePoint < 0x80) {
            constexpr std::string_view digits = "0123456789abcdef";
            text.append("\\x").append(1, digits[codePoint / 16]).append(1, digits[codePoint % 16]);
        } else {
            text += bytes;
        }
    }
    return text + '$';
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::string_view pattern = input.substr(0, input.find('\n'));
    const std::string_view name = input.substr(std::min(input.size(), pattern.size() + 1));

    const Match exact = tried(pattern, name, Pattern::Letters::exact);
    static_cast<void>(tried(pattern, name, Pattern::Letters::ofAnyCase));
    require(tried(pattern, name, Pattern::Letters::exact) == exact, "a pattern finds the same again");

    const Match whole = Pattern::wildcards(pattern).matches(name);
    require(whole != Match::limitExceeded, "wildcards always answer");
    const Match other = tried(translated(pattern), name, Pattern::Letters::exact);
    require(other == whole || other == Match::limitExceeded, "wildcards are what their regular expression is");
    const bool wider = Pattern::wildcards(pattern, Pattern::Letters::ofAnyCase).matches(name) == Match::taken;
    require(wider || whole == Match::notTaken, "a name that matches does so in any case");
    return 0;
}
