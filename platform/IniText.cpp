#include "platform/IniText.h"

#include <bit>
#include <cstring>
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

std::optional<IniText> IniText::inUtf8() const {
    const CodePage utf8(CodePage::utf8);
    if (!content_) return IniText(utf8);
    const std::string_view mark = bytes().substr(0, begin_);
    const std::string_view text = bytes().substr(begin_);
    if (!page_.hasCharactersFor(text)) return std::nullopt;
    const bool already = page_.number() == CodePage::utf8;
    const std::string converted = already ? std::string(text) : page_.decode(text);
    return IniText(utf8, content_->withBytes(std::string(mark) + converted));
}

std::optional<std::size_t> IniText::lineOfNoCharacters() const {
    if (page_.hasCharactersFor(bytes().substr(begin_))) return std::nullopt;
    std::size_t number = 1;
    for (std::size_t begin = begin_;; ++number) {
        const std::size_t end = lineEndFrom(begin);
        if (!page_.hasCharactersFor(bytes().substr(begin, end - begin))) return number;
        begin = end;
    }
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
        const std::string_view name = nameOf(sections_[i]);
        if (!findSection(name)) sectionTable_.add(page_.hashOfName(name), offset(i));
    }
}

std::string_view IniText::nameOf(const Section& section) const {
    return bytes().substr(section.nameBegin, section.nameEnd - section.nameBegin);
}

std::string_view IniText::nameOf(const Key& key) const {
    return bytes().substr(key.nameBegin, key.nameEnd - key.nameBegin);
}

std::optional<std::size_t> IniText::findSection(std::string_view name) const {
    return sectionTable_.find(page_.hashOfName(name), [&](std::uint32_t section) {
        return page_.isSameName(nameOf(sections_[section]), name);
    });
}

const IniText::Keys& IniText::keysOf(std::size_t number) const {
    Section& section = sections_[number];
    if (section.keys) return *section.keys;
    section.keys = std::make_unique<Keys>();
    Keys& keys = *section.keys;
    keys.end = section.bodyBegin;
    const std::string_view body = bytes().substr(0, section.bodyEnd);
    constexpr std::size_t usualLine = 32;  // bytes
    keys.inOrder.reserve((body.size() - section.bodyBegin) / usualLine + 1);
    for (std::size_t begin = section.bodyBegin; begin < body.size();) {
        const std::size_t end = lineEndFrom(begin);
        if (const std::optional<Key> key = keyOfLine(begin, end)) {
            keys.inOrder.push_back(*key);
            keys.end = end;
        }
        begin = end;
    }
    keys.byName.reset(keys.inOrder.size());
    for (std::size_t i = 0; i < keys.inOrder.size(); ++i) {
        const std::string_view name = nameOf(keys.inOrder[i]);
        const std::uint32_t hash = page_.hashOfName(name);
        if (!findKey(keys, hash, name)) keys.byName.add(hash, offset(i));
    }
    return keys;
}

std::optional<std::uint32_t> IniText::findKey(const Keys& keys, std::uint32_t hash, std::string_view name) const {
    return keys.byName.find(hash, [&](std::uint32_t key) { return page_.isSameName(nameOf(keys.inOrder[key]), name); });
}

std::optional<IniText::Range> IniText::findKey(std::size_t section, std::string_view name) const {
    const Keys& keys = keysOf(section);
    const std::optional<std::uint32_t> number = findKey(keys, page_.hashOfName(name), name);
    if (!number) return std::nullopt;
    const Key& key = keys.inOrder[*number];
    return Range{key.valueBegin, key.valueEnd};
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
std::optional<IniText::Key> IniText::keyOfLine(std::size_t begin, std::size_t end) const {
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
    return Key{offset(begin), offset(nameEnd), offset(valueBegin), offset(end)};
}

}  // namespace kestedit
