#define PCRE2_CODE_UNIT_WIDTH 8
#include <algorithm>
#include <array>
#include <memory>
#include <new>
#include <pcre2.h>
#include <string>

#include "platform/PatternMatcher.h"
#include "platform/Text.h"

namespace kestedit {

namespace {

using Match = Pattern::Match;
using Reason = PatternMistake::Reason;

// A name has 255 bytes and a path 4096: an honest pattern is done with one long before the first of these limits, and
// the worst takes some hundredths of a second.
constexpr std::uint32_t longestSearch = 1'000'000;  // steps
constexpr std::uint32_t deepestSearch = 100'000;    // steps to take back
constexpr std::uint32_t searchMemory = 16 * 1024;   // KiB
constexpr std::uint32_t deepestNesting = 250;       // parentheses in one another; the library's compiler recurses

template <auto release>
struct Release {
    template <class Object>
    void operator()(Object* object) const {
        release(object);
    }
};
using Code = std::unique_ptr<pcre2_code, Release<pcre2_code_free>>;
using CompileContext = std::unique_ptr<pcre2_compile_context, Release<pcre2_compile_context_free>>;
using MatchContext = std::unique_ptr<pcre2_match_context, Release<pcre2_match_context_free>>;
using MatchData = std::unique_ptr<pcre2_match_data, Release<pcre2_match_data_free>>;

/// An object that the library has made, unless there was no memory for it.
template <class Owner>
Owner owned(typename Owner::pointer object) {
    if (object == nullptr) throw std::bad_alloc();
    return Owner(object);
}

PCRE2_SPTR unitsOf(std::string_view text) {
    return reinterpret_cast<PCRE2_SPTR>(text.data());
}

std::string wellFormed(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty())
        appendCharacter(result, takeCharacter(text).codePoint);
    return result;
}

struct KnownMistake {
    int error;
    Reason reason;
    std::size_t behind = 0;  // how far behind the mistake the library's offset stands
};

constexpr std::array knownMistakes{
    KnownMistake{PCRE2_ERROR_MISSING_CLOSING_PARENTHESIS, Reason::parenthesisMissing},
    KnownMistake{PCRE2_ERROR_MISSING_COMMENT_CLOSING, Reason::parenthesisMissing},
    KnownMistake{PCRE2_ERROR_MISSING_CONDITION_CLOSING, Reason::parenthesisMissing},
    KnownMistake{PCRE2_ERROR_UNMATCHED_CLOSING_PARENTHESIS, Reason::parenthesisSurplus},
    KnownMistake{PCRE2_ERROR_MISSING_SQUARE_BRACKET, Reason::bracketMissing},
    KnownMistake{PCRE2_ERROR_QUANTIFIER_INVALID, Reason::nothingToRepeat},
    KnownMistake{PCRE2_ERROR_END_BACKSLASH, Reason::endsInBackslash},
    KnownMistake{PCRE2_ERROR_END_BACKSLASH_C, Reason::endsInBackslash},
    KnownMistake{PCRE2_ERROR_PATTERN_TOO_LARGE, Reason::tooLong},
    KnownMistake{PCRE2_ERROR_PATTERN_TOO_COMPLICATED, Reason::tooLong},
    KnownMistake{PCRE2_ERROR_PARENTHESES_NEST_TOO_DEEP, Reason::tooDeep, 1},
    KnownMistake{PCRE2_ERROR_PARENTHESES_STACK_CHECK, Reason::tooDeep},
};

PatternMistake mistakeIn(std::string_view text, int error, std::size_t offset) {
    const auto* const found = std::ranges::find(knownMistakes, error, &KnownMistake::error);
    const KnownMistake known = found == knownMistakes.end() ? KnownMistake{error, Reason::other} : *found;
    const std::size_t place = characterCount(text.substr(0, offset)) + 1 - known.behind;
    return {known.reason, std::min(place, characterCount(text))};
}

Code compiled(std::string_view text, Pattern::Letters letters) {
    const auto context = owned<CompileContext>(pcre2_compile_context_create(nullptr));
    pcre2_set_parens_nest_limit(context.get(), deepestNesting);
    // Names are single texts, so "." takes a line break, and "$" none at the end. One byte of a character is nothing.
    std::uint32_t options = PCRE2_UTF | PCRE2_UCP | PCRE2_DOTALL | PCRE2_DOLLAR_ENDONLY | PCRE2_NEVER_BACKSLASH_C;
    if (letters == Pattern::Letters::ofAnyCase) options |= PCRE2_CASELESS;
    int error = 0;
    std::size_t offset = 0;
    Code code(pcre2_compile(unitsOf(text), text.size(), options, &error, &offset, context.get()));
    if (code) return code;
    if (error == PCRE2_ERROR_HEAP_FAILED) throw std::bad_alloc();
    throw mistakeIn(text, error, offset);
}

MatchContext limits() {
    auto context = owned<MatchContext>(pcre2_match_context_create(nullptr));
    pcre2_set_match_limit(context.get(), longestSearch);
    pcre2_set_depth_limit(context.get(), deepestSearch);
    pcre2_set_heap_limit(context.get(), searchMemory);
    return context;
}

/// Interpreted, because machine code would have limits of its own, and names are short.
class RegularExpression final : public Pattern::Matcher {
  public:
    RegularExpression(std::string_view text, Pattern::Letters letters)
        : code_(compiled(text, letters)), limits_(limits()) {}

    [[nodiscard]] Match matches(std::string_view name) const override {
        const std::string subject = wellFormed(name);
        const auto data = owned<MatchData>(pcre2_match_data_create(1, nullptr));
        const int result = pcre2_match(code_.get(), unitsOf(subject), subject.size(), 0, 0, data.get(), limits_.get());
        if (result >= 0) return Match::taken;
        if (result == PCRE2_ERROR_NOMATCH) return Match::notTaken;
        if (result == PCRE2_ERROR_NOMEMORY) throw std::bad_alloc();
        return Match::limitExceeded;
    }

  private:
    Code code_;
    MatchContext limits_;
};

}  // namespace

std::shared_ptr<const Pattern::Matcher> regularExpression(std::string_view text, Pattern::Letters letters) {
    return std::make_shared<const RegularExpression>(wellFormed(text), letters);
}

}  // namespace kestedit
