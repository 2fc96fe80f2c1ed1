// Up to three keys set in any file: they read as they were written, every other key as before, and each of them alone
// changes no byte but its own. Converted to UTF-8, the file has the same keys and texts.
#include <algorithm>
#include <fuzzer/FuzzedDataProvider.h>
#include <map>
#include <set>
#include <sstream>

#include "tests/fuzz/Fuzzing.h"

namespace {

using namespace kestedit;
using test::require;

using IniName = std::pair<std::string, std::string>;  // folded section and key
using IniKeys = std::map<IniName, std::string>;       // with the values in the file's bytes

std::string_view withoutBlanks(std::string_view text) {
    const auto first = std::min(text.find_first_not_of(" \t\r"), text.size());
    return text.substr(first, text.find_last_not_of(" \t\r") + 1 - first);
}

/// What a value that stands in a line reads as.
std::string readValue(std::string_view bytes) {
    std::string_view value = withoutBlanks(bytes);
    const bool quotes = value.size() > 1 && value.front() == value.back() && (value[0] == '"' || value[0] == '\'');
    if (quotes) value = value.substr(1, value.size() - 2);
    return std::string(value.substr(0, value.find('\0')));
}

/// The rules of reading in docs/ini.md, in the plainest form: line by line, nothing indexed, nothing shared.
IniKeys readKeys(const CodePage& page, const std::string& bytes) {
    std::istringstream lines(bytes.starts_with("\xEF\xBB\xBF") ? bytes.substr(3) : bytes);
    IniKeys keys;
    std::set<std::string> seen;
    std::string section;
    bool counts = false;  // the lines here belong to the first section of its name
    for (std::string whole; std::getline(lines, whole);) {
        const std::string_view line = withoutBlanks(whole);
        const auto equals = line.find('=');
        if (line.starts_with('[')) {
            section = page.fold(withoutBlanks(line.substr(1, line.find(']') - 1)));
            counts = seen.insert(section).second;
        } else if (counts && !line.starts_with(';') && equals != std::string_view::npos) {
            const std::string name = page.fold(withoutBlanks(line.substr(0, equals)));
            if (!name.empty()) keys.try_emplace({section, name}, readValue(line.substr(equals + 1)));
        }
    }
    return keys;
}

/// A value as it is written.
std::string inLine(std::string bytes) {
    for (char& byte : bytes)
        byte = byte == '\r' || byte == '\n' || byte == '\0' ? ' ' : byte;
    return bytes;
}

std::optional<IniText::Range> placeOf(const IniText& text, const IniName& name) {
    const auto section = text.findSection(name.first);
    return section ? text.findKey(*section, name.second) : std::nullopt;
}

/// The file of these bytes, in which every key is found and reads as the rules say.
std::shared_ptr<const IniText> textOf(const CodePage& page, const std::string& bytes) {
    auto text = std::make_shared<const IniText>(page, FileContent::read(test::fileOf(bytes)));
    for (const auto& [name, value] : readKeys(page, bytes)) {
        const auto place = placeOf(*text, name);
        require(place && text->value(*place) == value, "a key is found and reads as the rules say");
    }
    return text;
}

/// Every key and text of the file, decoded and folded as UTF-8 compares them.
IniKeys asUtf8(const CodePage& page, const IniKeys& keys) {
    const CodePage utf8(CodePage::utf8);
    IniKeys decoded;
    for (const auto& [name, value] : keys)
        decoded[{utf8.fold(page.decode(name.first)), utf8.fold(page.decode(name.second))}] = page.decode(value);
    return decoded;
}

void requireSameAsUtf8(const IniText& text) {
    const CodePage& page = text.codePage();
    const std::optional<IniText> converted = text.inUtf8();
    require(converted.has_value() != text.lineOfNoCharacters().has_value(),
            "a line is named when it has no characters");
    if (!converted || page.number() == CodePage::utf8) return;
    const std::string bytes(converted->bytes());
    require(readKeys(converted->codePage(), bytes) == asUtf8(page, readKeys(page, std::string(text.bytes()))),
            "a converted file has the same keys and texts");
    const std::string_view whole = bytes;
    const bool recognised = page.recognise({&whole, 1}).number() == CodePage::utf8;
    require(recognised || page.decode(bytes) == bytes, "a converted file reads the same whoever guesses its page");
}

/// A file that a key was set in holds the bytes of before, but for those at the key's place.
void requireOtherBytes(const std::string& before, const std::string& after, std::size_t replaced) {
    const auto head = std::ranges::mismatch(before, after).in1 - before.begin();
    const auto tail =
        std::mismatch(before.rbegin(), before.rend(), after.rbegin(), after.rend()).first - before.rbegin();
    require(static_cast<std::size_t>(head + tail) + replaced >= before.size(), "no other byte changes");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const CodePage page(input.PickValueInArray({1252, 65001, 437, 1253}));
    std::array<std::array<std::string, 3>, 3> sets;
    for (auto& texts : sets)
        std::ranges::generate(texts, [&] { return input.ConsumeRandomLengthString(30); });
    const std::string before = input.ConsumeRemainingBytesAsString();
    const auto base = textOf(page, before);
    requireSameAsUtf8(*base);
    IniEdit all(base);
    IniKeys keys = readKeys(page, before);
    for (const auto& [section, key, value] : sets) {
        IniEdit alone(base);
        try {
            alone.set(section, key, value);
        } catch (const UnwritableText&) {
            continue;
        }
        all.set(section, key, value);
        const IniName name{page.fold(trimName(*page.encode(section))), page.fold(trimName(*page.encode(key)))};
        keys[name] = readValue(inLine(*page.encode(value)));
        const auto place = placeOf(*base, name);
        requireOtherBytes(before, test::bytesOf(alone), place ? place->end - place->begin : 0);
    }
    const std::string after = test::bytesOf(all);
    require(readKeys(page, after) == keys, "the keys read as written, and all others as before");
    static_cast<void>(textOf(page, after));
    return 0;
}
