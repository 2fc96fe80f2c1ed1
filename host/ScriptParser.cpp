#include "host/ScriptParser.h"

#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>
#include <utility>

#include "platform/Text.h"

namespace kestedit {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view blanks = " \t";

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const Character character = takeCharacter(text);
        if (character.codePoint == 0xFFFD && character.bytes.size() == 1) return false;
    }
    return true;
}

char unescaped(char letter) {
    constexpr std::array<std::pair<char, char>, 5> escapes{
        {{'"', '"'}, {'\\', '\\'}, {'r', '\r'}, {'n', '\n'}, {'t', '\t'}}};
    for (const auto& [name, character] : escapes) {
        if (name == letter) return character;
    }
    throw std::invalid_argument("a backslash in quotes takes \", \\, r, n or t behind it");
}

/// Removes and returns the quoted word at the head of `rest`.
std::string takeQuoted(std::string_view& rest) {
    std::string word;
    for (std::size_t i = 1; i < rest.size(); ++i) {
        if (rest[i] == '\\' && i + 1 < rest.size()) {
            word += unescaped(rest[++i]);
        } else if (rest[i] == '"') {
            rest.remove_prefix(i + 1);
            if (!rest.empty() && blanks.find(rest.front()) == std::string_view::npos) {
                throw std::invalid_argument("a blank is missing behind a closing quote");
            }
            return word;
        } else {
            word += rest[i];
        }
    }
    throw std::invalid_argument("a closing quote is missing");
}

std::string takePlain(std::string_view& rest) {
    std::string word{rest.substr(0, rest.find_first_of(blanks))};
    if (word.find('"') != std::string::npos) {
        throw std::invalid_argument("a quote inside a word: put the whole word in quotes and write \\\"");
    }
    rest.remove_prefix(word.size());
    return word;
}

std::vector<std::string> splitWords(std::string_view line) {
    if (!isUtf8(line)) throw std::invalid_argument("the line is not UTF-8");
    std::vector<std::string> words;
    for (;;) {
        line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
        if (line.empty() || line.front() == '#') return words;
        words.push_back(line.front() == '"' ? takeQuoted(line) : takePlain(line));
    }
}

/// Removes and returns the first line, without its end.
std::string_view takeLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

}  // namespace

std::vector<ScriptLine> parseScript(std::string_view text) {
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    std::vector<ScriptLine> lines;
    for (int number = 1; !text.empty(); ++number) {
        const std::string_view line = takeLine(text);
        try {
            if (auto words = splitWords(line); !words.empty()) lines.push_back({number, std::move(words), {}});
        } catch (const std::invalid_argument& fault) {
            lines.push_back({number, {}, fault.what()});
        }
    }
    return lines;
}

}  // namespace kestedit
