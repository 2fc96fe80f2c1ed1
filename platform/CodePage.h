// The code page of INI files: how the core's UTF-8 meets the bytes of a file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/Export.h"

namespace kestedit {

/// One code page, by its number: 65001 is UTF-8, any other a single-byte page that the system's iconv knows as
/// "CP<number>".
///
/// Every byte string survives decode and encode unchanged: a byte that the page does not define becomes a character
/// that only this class uses and turns back into that byte.
class KESTEDIT_EXPORT CodePage {
  public:
    static constexpr int western = 1252;
    static constexpr int utf8 = 65001;

    /// Throws std::invalid_argument for a page that the system does not know or that is not single-byte.
    explicit CodePage(int number = western);

    [[nodiscard]] int number() const { return number_; }

    /// Bytes of a file as UTF-8.
    [[nodiscard]] std::string decode(std::string_view bytes) const;

    /// UTF-8 as bytes of a file; nothing when `text` is not UTF-8 or holds a character that the page lacks.
    [[nodiscard]] std::optional<std::string> encode(std::string_view text) const;

    /// The same without a copy where the bytes do not differ: `text` itself, or else `buffer`, which then holds them.
    [[nodiscard]] std::optional<std::string_view> encode(std::string_view text, std::string& buffer) const;

    /// The page of a file that is in this one unless its bytes tell of UTF-8: they do when they are that and not plain
    /// ASCII. A byte order mark is such a character. The pieces stand one behind the other, each of whole characters.
    [[nodiscard]] CodePage recognise(std::span<const std::string_view> pieces) const;

    /// Whether every byte belongs to a character of this page.
    [[nodiscard]] bool hasCharactersFor(std::string_view bytes) const;

    /// The lower-case form of an encoded name: two names are the same when these forms are equal.
    [[nodiscard]] std::string fold(std::string_view bytes) const;

    /// Whether two encoded names are the same.
    [[nodiscard]] bool isSameName(std::string_view left, std::string_view right) const;

    /// A hash of an encoded name, equal for names that are the same. Another process has other hashes.
    [[nodiscard]] std::uint32_t hashOfName(std::string_view name) const;

    /// The longest head of `bytes` that is at most `size` bytes long and ends between two characters.
    [[nodiscard]] std::string_view cut(std::string_view bytes, std::size_t size) const;

    /// The longest head of UTF-8 `text` that takes at most `size` bytes in a file. A character that the page lacks
    /// counts as one byte.
    [[nodiscard]] std::string_view cutText(std::string_view text, std::size_t size) const;

  private:
    struct Tables;
    static const Tables& tablesOf(int number);

    /// Whether `text` is the same in UTF-8 and in this page, character by character.
    [[nodiscard]] bool isPlain(std::string_view text) const;
    [[nodiscard]] char foldedByte(char byte) const;

    int number_;
    const Tables* tables_;  // made once for each page, kept as long as the process lives
};

}  // namespace kestedit
