// The bytes of an INI file with an index of its sections, and of a section's keys from the first question for one on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/CodePage.h"
#include "platform/FileContent.h"

namespace kestedit {

/// Finds a place by a hash of its name. Holds neither names nor places beyond 32 bits, so that a table of a million
/// keys stays small; whoever asks compares the names.
class NameTable {
  public:
    /// Forgets everything and makes room for `names` entries.
    void reset(std::size_t names);

    /// The place of the entry that has this hash and for which `isSame(place)` holds.
    template <class IsSame>
    [[nodiscard]] std::optional<std::uint32_t> find(std::uint32_t hash, IsSame isSame) const {
        if (slots_.empty()) return std::nullopt;
        for (std::size_t i = hash & mask(); slots_[i].placePlusOne != 0; i = (i + 1) & mask()) {
            const std::uint32_t place = slots_[i].placePlusOne - 1;
            if (slots_[i].hash == hash && isSame(place)) return place;
        }
        return std::nullopt;
    }

    /// Adds an entry that find() did not find; there is room for it.
    void add(std::uint32_t hash, std::uint32_t place);

  private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t placePlusOne = 0;  // 0: free
    };
    [[nodiscard]] std::size_t mask() const { return slots_.size() - 1; }

    std::vector<Slot> slots_;
};

/// The rules of reading: what is a section, a key, a value. Names to find are bytes of the code page, in any case.
///
/// Not for two threads at once: a question may extend the index.
class IniText {
  public:
    /// A range of bytes of the file.
    struct Range {
        std::size_t begin;
        std::size_t end;
    };

    /// A file without a byte.
    explicit IniText(CodePage page) : page_(page) {}
    IniText(CodePage page, FileContent content);

    [[nodiscard]] const CodePage& codePage() const { return page_; }
    [[nodiscard]] std::string_view bytes() const { return content_ ? content_->bytes() : std::string_view{}; }
    [[nodiscard]] const std::optional<FileContent>& content() const { return content_; }

    /// The same file in UTF-8, a byte order mark kept; nothing when it holds bytes that are no characters of its page.
    [[nodiscard]] std::optional<IniText> inUtf8() const;

    /// The number of the first line with such bytes, from 1.
    [[nodiscard]] std::optional<std::size_t> lineOfNoCharacters() const;

    /// The number of the first section of this name, below sectionCount().
    [[nodiscard]] std::optional<std::size_t> findSection(std::string_view name) const;
    [[nodiscard]] std::size_t sectionCount() const { return sections_.size(); }

    /// What stands behind the blanks behind the "=" of the section's first key of this name, up to the line's end.
    [[nodiscard]] std::optional<Range> findKey(std::size_t section, std::string_view name) const;

    /// The value that stands there: without blanks at its end and one pair of equal quotes, up to a NUL.
    [[nodiscard]] std::string_view value(Range place) const;

    /// Where a new key line of this section belongs: behind its last key line, or else behind its header.
    [[nodiscard]] std::size_t endOfKeys(std::size_t section) const;

    /// "\n" in a file that has no other line end, or else "\r\n".
    [[nodiscard]] std::string_view lineEnd() const;

    /// Whether text put to the end of the file would stand on a line of its own.
    [[nodiscard]] bool endsWithLineEnd() const;

  private:
    /// Where a key's name stands and where its value does, in offsets.
    struct Key {
        std::uint32_t nameBegin;
        std::uint32_t nameEnd;
        std::uint32_t valueBegin;
        std::uint32_t valueEnd;
    };
    /// The keys of one section, and of each name the first.
    struct Keys {
        std::vector<Key> inOrder;
        NameTable byName;
        std::size_t end = 0;
    };
    struct Section {
        std::uint32_t nameBegin;
        std::uint32_t nameEnd;
        std::uint32_t bodyBegin;
        std::uint32_t bodyEnd;
        std::unique_ptr<Keys> keys;  // made by the first question for a key
    };

    void indexSections();
    const Keys& keysOf(std::size_t number) const;
    [[nodiscard]] std::optional<std::uint32_t> findKey(const Keys& keys, std::uint32_t hash,
                                                       std::string_view name) const;
    [[nodiscard]] std::size_t lineEndFrom(std::size_t place) const;
    [[nodiscard]] std::optional<Key> keyOfLine(std::size_t begin, std::size_t end) const;
    [[nodiscard]] std::string_view nameOf(const Section& section) const;
    [[nodiscard]] std::string_view nameOf(const Key& key) const;

    CodePage page_;
    std::optional<FileContent> content_;
    std::size_t begin_ = 0;  // behind a byte order mark
    mutable std::vector<Section> sections_;
    NameTable sectionTable_;
};

/// A name that a caller asks for, without the blanks and tabs at both ends, which no name in a file has.
[[nodiscard]] std::string_view trimName(std::string_view name);

}  // namespace kestedit
