#include "platform/IniEdit.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <tuple>
#include <utility>

#include "platform/Ascii.h"

namespace kestedit {

namespace {

bool isLineBreakOrNul(char byte) {
    return byte == '\r' || byte == '\n' || byte == '\0';
}

std::string inMessage(std::string_view section, std::string_view key) {
    return "key \"" + std::string(key) + "\" of section \"" + std::string(section) + '"';
}

/// `text` in the code page. `buffer` holds it where it differs from UTF-8.
std::string_view encoded(const CodePage& page, std::string_view text, std::string& buffer, std::string_view section,
                         std::string_view key) {
    const std::optional<std::string_view> bytes = page.encode(text, buffer);
    if (!bytes) {
        // The value is not told: it may be a password.
        throw UnwritableText(
            inMessage(section, key) + ": code page " + std::to_string(page.number()) + " lacks a character of the text",
            std::errc::illegal_byte_sequence);
    }
    return *bytes;
}

bool isWritableSection(std::string_view name) {
    return std::ranges::none_of(name, [](char byte) { return byte == ']' || isLineBreakOrNul(byte); });
}

bool isWritableKey(std::string_view name) {
    return !name.empty() && name.front() != ';' && name.front() != '[' &&
           std::ranges::none_of(name, [](char byte) { return byte == '=' || isLineBreakOrNul(byte); });
}

}  // namespace

IniEdit::IniEdit(std::shared_ptr<const IniText> base) : base_(std::move(base)), lineEnd_(base_->lineEnd()) {}

void IniEdit::set(std::string_view section, std::string_view key, std::string_view value) {
    const CodePage& page = base_->codePage();
    std::string sectionBuffer;
    std::string keyBuffer;
    std::string valueBuffer;
    const std::string_view sectionName = trimName(encoded(page, section, sectionBuffer, section, key));
    const std::string_view keyName = trimName(encoded(page, key, keyBuffer, section, key));
    const std::string_view valueBytes = encoded(page, value, valueBuffer, section, key);
    if (!isWritableSection(sectionName) || !isWritableKey(keyName)) {
        throw UnwritableText(inMessage(section, key) + ": an INI file cannot hold this name",
                             std::errc::invalid_argument);
    }
    const std::size_t number = sectionFor(sectionName);
    if (number < base_->sectionCount()) {
        if (const std::optional<IniText::Range> place = base_->findKey(number, keyName)) {
            replacements_.push_back({*place, rememberValue(valueBytes)});
            return;
        }
    }
    setNewKey(number, keyName, valueBytes);
}

std::size_t IniEdit::sectionFor(std::string_view name) {
    if (const std::optional<std::size_t> existing = base_->findSection(name)) return *existing;
    const auto [entry, isNew] =
        newSections_.try_emplace(base_->codePage().fold(name), base_->sectionCount() + newSections_.size());
    if (isNew) {
        const Stretch line = remember('[' + std::string(name) + ']' + std::string(lineEnd_));
        newLines_.push_back({base_->bytes().size(), entry->second, 0, line});
    }
    return entry->second;
}

void IniEdit::setNewKey(std::size_t section, std::string_view name, std::string_view value) {
    const auto [entry, isNew] =
        newKeys_.try_emplace(std::to_string(section) + '=' + base_->codePage().fold(name), newLines_.size());
    if (isNew) {
        const bool isNewSection = section >= base_->sectionCount();
        const std::size_t position = isNewSection ? base_->bytes().size() : base_->endOfKeys(section);
        newLines_.push_back({position, section, name.size(), {}});
    }
    NewLine& line = newLines_[entry->second];
    // The key keeps the spelling that it was first set by, as a key of the file does.
    const std::string spelling(isNew ? name : text(line.line).substr(0, line.nameLength));
    line.line = remember(spelling + '=');
    line.line.length += rememberValue(value).length + remember(lineEnd_).length;
}

IniEdit::Stretch IniEdit::remember(std::string_view text) {
    const Stretch stretch{texts_.size(), text.size()};
    texts_ += text;
    return stretch;
}

/// Line breaks and NUL become blanks, so that no value makes a line of its own.
IniEdit::Stretch IniEdit::rememberValue(std::string_view value) {
    const Stretch stretch = remember(value);
    std::replace_if(texts_.begin() + static_cast<std::ptrdiff_t>(stretch.begin), texts_.end(), isLineBreakOrNul, ' ');
    return stretch;
}

std::string_view IniEdit::text(Stretch stretch) const {
    return std::string_view(texts_).substr(stretch.begin, stretch.length);
}

bool IniEdit::readsBack(const CodePage& told) const {
    const auto whole = pieces();
    return told.recognise(whole).number() == base_->codePage().number() || std::ranges::all_of(whole, isAscii);
}

std::vector<IniEdit::Replacement> IniEdit::replacementsInOrder() const {
    const auto place = [](const Replacement& replacement) { return replacement.place.begin; };
    if (std::ranges::is_sorted(replacements_, std::less_equal{}, place)) return replacements_;  // none of them twice
    std::vector<Replacement> sorted = replacements_;
    std::ranges::stable_sort(sorted, {}, place);
    std::vector<Replacement> ordered;
    ordered.reserve(sorted.size());
    for (const Replacement& replacement : sorted) {
        // Of several values for one key the one set last holds.
        const bool isNewer = !ordered.empty() && ordered.back().place.begin == replacement.place.begin;
        if (isNewer) ordered.pop_back();
        ordered.push_back(replacement);
    }
    return ordered;
}

std::vector<IniEdit::NewLine> IniEdit::newLinesInOrder() const {
    std::vector<NewLine> ordered = newLines_;
    std::ranges::stable_sort(ordered, [](const NewLine& left, const NewLine& right) {
        return std::tie(left.position, left.section) < std::tie(right.position, right.section);
    });
    return ordered;
}

bool IniEdit::changesLastLine(std::span<const Replacement> ordered) const {
    return !ordered.empty() && base_->bytes().find('\n', ordered.back().place.end) == std::string_view::npos;
}

std::vector<std::string_view> IniEdit::pieces() const {
    const std::string_view base = base_->bytes();
    const std::vector<Replacement> replacements = replacementsInOrder();
    const std::vector<NewLine> newLines = newLinesInOrder();
    std::vector<std::string_view> pieces;
    pieces.reserve(2 * (replacements.size() + newLines.size()) + 2);
    std::size_t copied = 0;
    const auto copyTo = [&](std::size_t place) {
        if (place > copied) pieces.push_back(base.substr(copied, place - copied));
        copied = place;
    };
    auto replacement = replacements.begin();
    const auto replaceUpTo = [&](std::size_t place) {
        for (; replacement != replacements.end() && replacement->place.begin <= place; ++replacement) {
            copyTo(replacement->place.begin);
            pieces.push_back(text(replacement->value));
            copied = replacement->place.end;
        }
    };
    // A last line that is changed or followed gets an end; one that nobody touches stays as it is.
    bool lineIsOpen = !base_->endsWithLineEnd();
    const bool lastLineChanges = lineIsOpen && changesLastLine(replacements);
    for (const NewLine& line : newLines) {
        replaceUpTo(line.position);
        copyTo(line.position);
        if (lineIsOpen && line.position == base.size()) {
            pieces.push_back(lineEnd_);
            lineIsOpen = false;
        }
        pieces.push_back(text(line.line));
    }
    replaceUpTo(base.size());
    copyTo(base.size());
    if (lineIsOpen && lastLineChanges) pieces.push_back(lineEnd_);
    return pieces;
}

}  // namespace kestedit
