// The rules of reading in docs/ini.md, in the plainest form: line by line, nothing indexed, nothing shared.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "platform/CodePage.h"

namespace kestedit::test {

/// Values in the file's bytes by folded section and key; keys ahead of the first section are none.
using IniKeys = std::map<std::pair<std::string, std::string>, std::string>;

inline std::string_view withoutBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// What a value that stands in a line reads as.
inline std::string readValue(std::string_view bytes) {
    std::string_view value = withoutBlanks(bytes);
    const bool quotes = value.size() > 1 && value.front() == value.back() && (value[0] == '"' || value[0] == '\'');
    if (quotes) value = value.substr(1, value.size() - 2);
    return std::string(value.substr(0, value.find('\0')));
}

inline IniKeys readKeys(const CodePage& page, std::string_view bytes) {
    if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
    IniKeys keys;
    std::map<std::string, bool> seen;
    std::string section;
    bool counts = false;  // the lines here belong to the first section of its name
    while (!bytes.empty()) {
        const auto end = bytes.find('\n');
        const std::string_view line = withoutBlanks(bytes.substr(0, end));
        bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
        if (line.starts_with('[')) {
            section = page.fold(withoutBlanks(line.substr(1, line.find(']') - 1)));
            counts = seen.emplace(section, true).second;
            continue;
        }
        const auto equals = line.find('=');
        if (line.starts_with(';') || equals == std::string_view::npos || !counts) continue;
        const std::string name = page.fold(withoutBlanks(line.substr(0, equals)));
        if (!name.empty()) keys.try_emplace({section, name}, readValue(line.substr(equals + 1)));
    }
    return keys;
}

}  // namespace kestedit::test
