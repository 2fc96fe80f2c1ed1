// Search patterns for names: regular expressions and wildcards, within limits that no pattern and no name breaks.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string_view>

namespace kestedit {

/// A text that is no pattern. what() says in plain words what is wrong with it and where.
class PatternMistake : public std::invalid_argument {
  public:
    enum class Reason : std::uint8_t {
        parenthesisMissing,
        parenthesisSurplus,
        bracketMissing,
        nothingToRepeat,
        endsInBackslash,
        tooLong,
        tooDeep,
        other,
    };

    PatternMistake(Reason reason, std::size_t position);

    [[nodiscard]] Reason reason() const { return reason_; }
    /// The character at which reading stopped, counted from 1. What is missing is missing behind the last one.
    [[nodiscard]] std::size_t position() const { return position_; }

  private:
    Reason reason_;
    std::size_t position_;
};

/// A compiled pattern. Copies share it, and threads may use one at a time or all at once.
///
/// Texts and names are UTF-8; a byte that is not counts as one character, U+FFFD.
class Pattern {
  public:
    enum class Letters : std::uint8_t { exact, ofAnyCase };
    enum class Match : std::uint8_t { taken, notTaken, limitExceeded };

    /// More bytes than this are no search for a name.
    static constexpr std::size_t longest = 10'000;

    /// In Perl's syntax, found anywhere in a name; a line break in a name is a character like any other. A search that
    /// takes too many steps or too much memory ends without an answer. Throws PatternMistake.
    [[nodiscard]] static Pattern regularExpression(std::string_view text, Letters letters = Letters::exact);

    /// `*` stands for any characters, `?` for one, and the whole name has to match. Takes time in proportion to the
    /// name and always answers. Throws PatternMistake for a text that is too long.
    [[nodiscard]] static Pattern wildcards(std::string_view text, Letters letters = Letters::exact);

    [[nodiscard]] Match matches(std::string_view name) const;

    class Matcher;

  private:
    explicit Pattern(std::shared_ptr<const Matcher> matcher);

    std::shared_ptr<const Matcher> matcher_;
};

}  // namespace kestedit
