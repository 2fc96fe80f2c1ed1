#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "platform/PatternMatcher.h"
#include "platform/Text.h"

namespace kestedit {

namespace {

using Match = Pattern::Match;

constexpr std::size_t wordBits = 64;

/// Sets of places in the pattern: place n is ahead of its character n.
using Places = std::vector<std::uint64_t>;

/// Keeps all places that the name so far can have led to at once, a bit each. So it never tries again, however many
/// stars there are, and every character of the name costs one step for 64 characters of the pattern.
class Wildcards final : public Pattern::Matcher {
  public:
    Wildcards(std::string_view text, Pattern::Letters letters) : letters_(letters) {
        std::u32string pattern;
        while (!text.empty()) {
            const char32_t next = taken(text);
            const bool again = next == U'*' && !pattern.empty() && pattern.back() == U'*';
            if (!again) pattern += next;
        }
        end_ = pattern.size();
        stars_ = anyOne_ = Places(end_ / wordBits + 1);
        for (std::size_t place = 0; place < end_; ++place) {
            if (pattern[place] == U'*') add(place, stars_);
            if (pattern[place] == U'?') add(place, anyOne_);
        }
        for (std::size_t place = 0; place < end_; ++place) {
            if (pattern[place] != U'*' && pattern[place] != U'?')
                add(place, takers_.try_emplace(pattern[place], anyOne_).first->second);
        }
    }

    [[nodiscard]] Match matches(std::string_view name) const override {
        Places reached(stars_.size());
        reached[0] = 1 | (stars_[0] & 1) << 1U;  // a star may stand for nothing
        while (!name.empty()) {
            const auto taker = takers_.find(taken(name));
            advance(reached, taker == takers_.end() ? anyOne_ : taker->second);
        }
        const bool atEnd = (reached[end_ / wordBits] >> end_ % wordBits & 1) != 0;
        return atEnd ? Match::taken : Match::notTaken;
    }

  private:
    [[nodiscard]] char32_t taken(std::string_view& rest) const {
        const char32_t character = takeCharacter(rest).codePoint;
        return letters_ == Pattern::Letters::exact ? character : lowerCase(character);
    }

    static void add(std::size_t place, Places& places) {
        places[place / wordBits] |= std::uint64_t{1} << place % wordBits;
    }

    /// By one character of the name, which the places of `takers` take.
    void advance(Places& reached, const Places& takers) const {
        std::uint64_t carriedStep = 0;
        std::uint64_t carriedSkip = 0;
        for (std::size_t word = 0; word < reached.size(); ++word) {
            const std::uint64_t step = reached[word] & takers[word];
            std::uint64_t next = (reached[word] & stars_[word]) | step << 1U | carriedStep | carriedSkip;
            const std::uint64_t skip = next & stars_[word];
            next |= skip << 1U;
            carriedStep = step >> (wordBits - 1);
            carriedSkip = skip >> (wordBits - 1);
            reached[word] = next;
        }
    }

    Pattern::Letters letters_;
    std::size_t end_ = 0;
    Places stars_;
    Places anyOne_;
    std::map<char32_t, Places> takers_;  // of a character that the pattern names: these places and those of "?"
};

}  // namespace

std::shared_ptr<const Pattern::Matcher> wildcards(std::string_view text, Pattern::Letters letters) {
    return std::make_shared<const Wildcards>(text, letters);
}

}  // namespace kestedit
