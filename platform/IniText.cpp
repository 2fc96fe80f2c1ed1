#include "platform/IniText.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <functional>
#include <utility>

namespace kestedit {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t none = std::string_view::npos;

bool isBlank(char byte) {
    return byte == ' ' || byte == '\t' || byte == '\r';
}

/// Without the blanks at both ends, among them the carriage return of a line end.
std::string_view trimLine(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::uint32_t hashOf(std::string_view folded) {
    return static_cast<std::uint32_t>(std::hash<std::string_view>{}(folded));
}

std::uint32_t offset(std::size_t place) {
    static_assert(FileContent::maximumSize < UINT32_MAX);
    return static_cast<std::uint32_t>(place);
}

}  // namespace

void NameTable::reset(std::size_t names) {
    slots_.assign(std::bit_ceil(names + names / 2 + 2), Slot{});
}

void NameTable::add(std::uint32_t hash, std::uint32_t place) {
    std::size_t i = hash & mask();
    while (slots_[i].placePlusOne != 0)
        i = (i + 1) & mask();
    slots_[i] = {hash, place + 1};
}

std::string_view trimName(std::string_view name) {
    const auto isSpace = [](char byte) { return byte == ' ' || byte == '\t'; };
    while (!name.empty() && isSpace(name.front()))
        name.remove_prefix(1);
    while (!name.empty() && isSpace(name.back()))
        name.remove_suffix(1);
    return name;
}

IniText::IniText(CodePage page, FileContent content) : page_(page), content_(std::move(content)) {
    if (bytes().starts_with(byteOrderMark)) begin_ = byteOrderMark.size();
    indexSections();
}

/// Looks for brackets instead of lines: most lines of a large file are keys, and a section that nobody asks for is
/// never taken apart.
void IniText::indexSections() {
    const std::string_view text = bytes();
    const auto aheadOfBlanks = [&](std::size_t place) {
        while (place > begin_ && isBlank(text[place - 1]))
            --place;
        return place;
    };
    for (std::size_t bracket = text.find('[', begin_); bracket != none;) {
        const std::size_t begin = aheadOfBlanks(bracket);
        if (begin != begin_ && text[begin - 1] != '\n') {
            bracket = text.find('[', bracket + 1);
            continue;
        }
        const std::size_t end = lineEndFrom(bracket);
        if (!sections_.empty()) sections_.back().bodyEnd = offset(begin);
        std::string_view name = text.substr(bracket + 1, end - bracket - 1);
        name = trimLine(name.substr(0, name.find_first_of("]\n")));
        const std::size_t nameBegin = name.empty() ? bracket : static_cast<std::size_t>(name.data() - text.data());
        sections_.push_back(
            {offset(nameBegin), offset(nameBegin + name.size()), offset(end), offset(text.size()), nullptr});
        bracket = text.find('[', end);
    }
    sectionTable_.reset(sections_.size());
    for (std::size_t i = 0; i < sections_.size(); ++i) {
        const std::string name(
            fold(text.substr(sections_[i].nameBegin, sections_[i].nameEnd - sections_[i].nameBegin)));
        if (!findSection(name)) sectionTable_.add(hashOf(name), offset(i));
    }
}

std::optional<std::size_t> IniText::findSection(std::string_view folded) const {
    return sectionTable_.find(hashOf(folded), [&](std::uint32_t section) {
        const Section& candidate = sections_[section];
        return isNamed(bytes().substr(candidate.nameBegin, candidate.nameEnd - candidate.nameBegin), folded);
    });
}

const IniText::Keys& IniText::keysOf(std::size_t number) const {
    Section& section = sections_[number];
    if (section.keys) return *section.keys;
    section.keys = std::make_unique<Keys>();
    Keys& keys = *section.keys;
    keys.end = section.bodyBegin;
    const std::string_view body = bytes().substr(0, section.bodyEnd);
    keys.table.reset(static_cast<std::size_t>(std::count(body.begin() + section.bodyBegin, body.end(), '\n')) + 1);
    for (std::size_t begin = section.bodyBegin; begin < body.size();) {
        const std::size_t end = lineEndFrom(begin);
        if (const std::optional<KeyLine> line = keyLine(begin, end)) {
            const std::string_view folded = fold(line->name);
            const std::uint32_t hash = hashOf(folded);
            const auto isSame = [&](std::uint32_t other) {
                const std::string name(fold(line->name));
                return isNamed(keyLine(other, lineEndFrom(other))->name, name);
            };
            if (!keys.table.find(hash, isSame)) keys.table.add(hash, offset(begin));
            keys.end = end;
        }
        begin = end;
    }
    return keys;
}

std::optional<IniText::Range> IniText::findKey(std::size_t section, std::string_view folded) const {
    std::optional<KeyLine> found;
    const auto isSame = [&](std::uint32_t line) {
        found = keyLine(line, lineEndFrom(line));
        return isNamed(found->name, folded);
    };
    if (!keysOf(section).table.find(hashOf(folded), isSame)) return std::nullopt;
    return Range{found->valueBegin, found->valueEnd};
}

std::string_view IniText::value(Range place) const {
    std::string_view text = trimLine(bytes().substr(place.begin, place.end - place.begin));
    const bool quoted =
        text.size() >= 2 && text.front() == text.back() && (text.front() == '"' || text.front() == '\'');
    if (quoted) text = text.substr(1, text.size() - 2);
    return text.substr(0, text.find('\0'));
}

std::size_t IniText::endOfKeys(std::size_t section) const {
    return keysOf(section).end;
}

std::string_view IniText::lineEnd() const {
    const std::string_view text = bytes();
    const bool onlyLineFeeds = text.find('\n') != none && text.find("\r\n") == none;
    return onlyLineFeeds ? "\n" : "\r\n";
}

bool IniText::endsWithLineEnd() const {
    return bytes().size() == begin_ || bytes().back() == '\n';
}

/// Behind the line's end, which is the end of the file for a last line without one.
std::size_t IniText::lineEndFrom(std::size_t place) const {
    const std::size_t end = bytes().find('\n', place);
    return end == none ? bytes().size() : end + 1;
}

/// The line from `begin` to behind its end as a key, or nothing for a comment and for a line without "=" or name.
std::optional<IniText::KeyLine> IniText::keyLine(std::size_t begin, std::size_t end) const {
    const std::string_view text = bytes();
    if (text[end - 1] == '\n') end -= end - begin >= 2 && text[end - 2] == '\r' ? 2 : 1;
    while (begin < end && isBlank(text[begin]))
        ++begin;
    if (begin == end || text[begin] == ';') return std::nullopt;
    const void* found = std::memchr(text.data() + begin, '=', end - begin);
    if (found == nullptr) return std::nullopt;
    const auto equals = static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
    std::size_t nameEnd = equals;
    while (nameEnd > begin && isBlank(text[nameEnd - 1]))
        --nameEnd;
    if (nameEnd == begin) return std::nullopt;
    std::size_t valueBegin = equals + 1;
    while (valueBegin < end && isBlank(text[valueBegin]))
        ++valueBegin;
    return KeyLine{text.substr(begin, nameEnd - begin), valueBegin, end};
}

bool IniText::isNamed(std::string_view name, std::string_view folded) const {
    return name == folded || fold(name) == folded;  // as all names of a language file stand there
}

std::string_view IniText::fold(std::string_view name) const {
    page_.fold(name, folded_);
    return folded_;
}

}  // namespace kestedit
