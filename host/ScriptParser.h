// The text of a script as lines of words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestedit {

/// A line that holds at least one word.
struct ScriptLine {
    int number;  ///< from 1
    std::vector<std::string> words;
    std::string fault;  ///< why it cannot be read; empty when it can, and `words` is empty when it cannot
};

/// Words stand between blanks and tabs; one in double quotes may hold blanks and the escapes \" \\ \r \n \t. `#` at the
/// start of a word makes the rest of the line a comment. Lines end with LF or CRLF; a byte order mark ahead of the
/// first is skipped. A line that is not UTF-8 or has a broken word fails when its turn comes, so it only keeps the
/// fault.
[[nodiscard]] std::vector<ScriptLine> parseScript(std::string_view text);

}  // namespace kestedit
