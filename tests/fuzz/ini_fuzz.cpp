// One key set in any file: it reads as it was written, every other key as before, and no byte changes but its own.
#include <fuzzer/FuzzedDataProvider.h>
#include <memory>

#include "platform/IniEdit.h"
#include "tests/fuzz/IniReference.h"
#include "tests/fuzz/MemoryFile.h"

namespace {

using namespace kestedit;
using test::require;

std::size_t sameHead(std::string_view left, std::string_view right) {
    std::size_t length = 0;
    while (length < left.size() && length < right.size() && left[length] == right[length])
        ++length;
    return length;
}

std::size_t sameTail(std::string_view left, std::string_view right) {
    std::size_t length = 0;
    while (length < left.size() && length < right.size() &&
           left.rbegin()[static_cast<std::ptrdiff_t>(length)] == right.rbegin()[static_cast<std::ptrdiff_t>(length)])
        ++length;
    return length;
}

void requireSameKeys(const IniText& text, const test::IniKeys& keys) {
    for (const auto& [name, value] : keys) {
        const auto section = text.findSection(name.first);
        require(section.has_value(), "a section is found");
        const auto place = text.findKey(*section, name.second);
        require(place.has_value(), "a key is found");
        require(text.value(*place) == value, "a value reads as the rules say");
    }
}

/// The value as it stands in a line.
std::string written(const CodePage& page, const std::string& value) {
    std::string bytes = page.encode(value).value();
    for (char& byte : bytes)
        byte = byte == '\r' || byte == '\n' || byte == '\0' ? ' ' : byte;
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const test::MemoryFile file;
    FuzzedDataProvider input(data, size);
    const CodePage page(input.PickValueInArray({1252, 65001, 437, 1253}));
    const std::string section = input.ConsumeRandomLengthString(12);
    const std::string key = input.ConsumeRandomLengthString(12);
    const std::string value = input.ConsumeRandomLengthString(40);
    const std::string before = input.ConsumeRemainingBytesAsString();

    const auto base = std::make_shared<const IniText>(page, FileContent::read(file.with(before)));
    test::IniKeys keys = test::readKeys(page, before);
    requireSameKeys(*base, keys);

    IniEdit edit(base);
    try {
        edit.set(section, key, value);
    } catch (const UnwritableText&) {
        return 0;
    }
    std::string after;
    for (const std::string_view piece : edit.pieces())
        after += piece;

    const std::pair name{page.fold(trimName(page.encode(section).value())),
                         page.fold(trimName(page.encode(key).value()))};
    std::size_t replaced = 0;  // bytes of the file that may go: the key's old value
    if (const auto number = base->findSection(name.first)) {
        if (const auto place = base->findKey(*number, name.second)) replaced = place->end - place->begin;
    }
    require(sameHead(before, after) + sameTail(before, after) + replaced >= before.size(), "no other byte changes");

    keys[name] = test::readValue(written(page, value));
    require(test::readKeys(page, after) == keys, "the key reads as written, and all others as before");
    requireSameKeys(IniText(page, FileContent::read(file.with(after))), keys);
    return 0;
}
