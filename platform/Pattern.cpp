#include "platform/Pattern.h"

#include <array>
#include <string>
#include <utility>

#include "platform/PatternMatcher.h"
#include "platform/Text.h"

namespace kestedit {

namespace {

// In the order of PatternMistake::Reason.
constexpr std::array reasons{
    "a closing parenthesis is missing",  "a closing parenthesis has no opening one", "a closing bracket is missing",
    "there is nothing to repeat",        "a backslash has nothing behind it",        "the pattern is too long",
    "parentheses are nested too deeply", "the pattern cannot be understood",
};
static_assert(reasons.size() == static_cast<std::size_t>(PatternMistake::Reason::other) + 1);

void requireLength(std::string_view text) {
    if (text.size() > Pattern::longest)
        throw PatternMistake(PatternMistake::Reason::tooLong, characterCount(text.substr(0, Pattern::longest)));
}

}  // namespace

PatternMistake::PatternMistake(Reason reason, std::size_t position)
    : std::invalid_argument(std::string(reasons.at(static_cast<std::size_t>(reason))) + " at character " +
                            std::to_string(position)),
      reason_(reason),
      position_(position) {}

Pattern::Pattern(std::shared_ptr<const Matcher> matcher) : matcher_(std::move(matcher)) {}

Pattern Pattern::regularExpression(std::string_view text, Letters letters) {
    requireLength(text);
    return Pattern(kestedit::regularExpression(text, letters));
}

Pattern Pattern::wildcards(std::string_view text, Letters letters) {
    requireLength(text);
    return Pattern(kestedit::wildcards(text, letters));
}

Pattern::Match Pattern::matches(std::string_view name) const {
    return matcher_->matches(name);
}

}  // namespace kestedit
