// UTF-8 text by characters, and characters without regard to case, whatever the process's locale is.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kestedit {

/// One decoded character and the bytes it came from.
struct Character {
    char32_t codePoint;
    std::string_view bytes;
};

/// Removes and returns the first character of `rest`, which must not be empty. A byte that starts no valid sequence
/// comes back alone, as U+FFFD.
[[nodiscard]] Character takeCharacter(std::string_view& rest);

/// Whether `text` is made of whole characters only.
[[nodiscard]] bool isUtf8(std::string_view text);

/// `codePoint` as UTF-8 behind `text`.
void appendCharacter(std::string& text, char32_t codePoint);

/// The lower-case form by Unicode's simple mapping, or the character itself.
[[nodiscard]] char32_t lowerCase(char32_t codePoint);

/// How many characters `text` has; a byte that is not UTF-8 counts as one.
[[nodiscard]] std::size_t characterCount(std::string_view text);

/// Whether a reader would see the character: it is no control, mark of direction or other invisible one.
[[nodiscard]] bool hasShape(char32_t codePoint);

/// `text` as far as a message can quote it: a long one ends with "..." after some forty characters.
[[nodiscard]] std::string quotable(std::string_view text);

/// `text` without the blanks (U+0020) at both ends.
[[nodiscard]] std::string_view trimBlanks(std::string_view text);

}  // namespace kestedit
