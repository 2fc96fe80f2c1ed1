#include "platform/CodePage.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <functional>
#include <iconv.h>
#include <map>
#include <memory>
#include <mutex>
#include <stdexcept>

#include "platform/Ascii.h"
#include "platform/Text.h"

namespace kestedit {

namespace {

/// A byte without a character becomes the character at this place plus the byte: the far end of the private planes,
/// where no font and no other program is likely to have put anything.
constexpr char32_t strayBytes = 0x10FE00;

constexpr bool isStrayByte(char32_t character) {
    return character >= strayBytes && character < strayBytes + 256;
}

unsigned char byteAt(std::string_view bytes, std::size_t index) {
    return static_cast<unsigned char>(bytes[index]);
}

std::invalid_argument refusal(int number, const char* reason) {
    return std::invalid_argument("code page " + std::to_string(number) + ' ' + reason);
}

/// One open conversion from a page to UTF-32.
class Conversion {
  public:
    explicit Conversion(int number)
        : handle_(iconv_open(std::endian::native == std::endian::little ? "UTF-32LE" : "UTF-32BE",
                             ("CP" + std::to_string(number)).c_str())) {
        if (handle_ == reinterpret_cast<iconv_t>(-1)) throw refusal(number, "is not known to this system");
    }
    ~Conversion() { iconv_close(handle_); }
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    enum class Result { character, undefined, incomplete };

    Result convert(unsigned char byte, char32_t& character) const {
        std::array<char32_t, 4> out{};
        char in = static_cast<char>(byte);
        char* inPlace = &in;
        char* outPlace = reinterpret_cast<char*>(out.data());
        std::size_t inLeft = 1;
        std::size_t outLeft = sizeof out;
        iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        if (iconv(handle_, &inPlace, &inLeft, &outPlace, &outLeft) == static_cast<std::size_t>(-1)) {
            return errno == EINVAL ? Result::incomplete : Result::undefined;
        }
        // Pages with combining marks hold a letter back until they see what follows it.
        iconv(handle_, nullptr, nullptr, &outPlace, &outLeft);
        character = out[0];
        return sizeof out - outLeft == sizeof(char32_t) ? Result::character : Result::undefined;
    }

  private:
    iconv_t handle_;
};

}  // namespace

struct CodePage::Tables {
    std::array<char32_t, 256> characters{};  // of each byte; under UTF-8 of the ASCII bytes only
    std::array<char, 256> folded{};          // each byte's lower-case byte
    std::array<bool, 256> plain{};           // bytes that are the same character in UTF-8
    bool allOfAsciiIsPlain = false;          // as in most pages

    explicit Tables(int number) {
        if (number == utf8) {
            for (std::size_t byte = 0; byte < 128; ++byte)
                characters[byte] = static_cast<char32_t>(byte);
        } else {
            readCharacters(number);
        }
        for (std::size_t byte = 0; byte < 256; ++byte) {
            plain[byte] = byte < 128 && characters[byte] == byte;
            const std::optional<char> lower = byteOf(lowerCase(characters[byte]));
            folded[byte] = characters[byte] != 0 && lower ? *lower : static_cast<char>(byte);
        }
        constexpr std::string_view structure{
            "\0\t\r\n \"';=[]0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ", 73};
        if (!std::ranges::all_of(structure, [this](char byte) { return plain[static_cast<unsigned char>(byte)]; })) {
            throw refusal(number, "has other bytes than ASCII for the characters that an INI file is built of");
        }
        allOfAsciiIsPlain = std::all_of(plain.begin(), plain.begin() + 128, std::identity{});
    }

    [[nodiscard]] std::optional<char> byteOf(char32_t character) const {
        const auto found = std::ranges::find(characters, character);
        if (found == characters.end()) return std::nullopt;
        return static_cast<char>(static_cast<unsigned char>(found - characters.begin()));
    }

  private:
    void readCharacters(int number) {
        const Conversion conversion(number);
        characters.fill(strayBytes);
        for (std::size_t byte = 0; byte < 256; ++byte) {
            char32_t character = 0;
            const auto result = conversion.convert(static_cast<unsigned char>(byte), character);
            if (result == Conversion::Result::incomplete) throw refusal(number, "is not a single-byte page");
            // A character that two bytes share would turn the second byte into the first.
            const bool usable = result == Conversion::Result::character && !byteOf(character);
            characters[byte] = usable ? character : strayBytes + static_cast<char32_t>(byte);
        }
    }
};

const CodePage::Tables& CodePage::tablesOf(int number) {
    static std::mutex mutex;
    static std::map<int, std::unique_ptr<const Tables>> pages;
    const std::lock_guard lock(mutex);
    std::unique_ptr<const Tables>& tables = pages[number];
    if (!tables) tables = std::make_unique<const Tables>(number);
    return *tables;
}

CodePage::CodePage(int number) : number_(number), tables_(&tablesOf(number)) {}

bool CodePage::isPlain(std::string_view text) const {
    if (tables_->allOfAsciiIsPlain) return isAscii(text);
    return std::ranges::all_of(text, [this](char byte) { return tables_->plain[static_cast<unsigned char>(byte)]; });
}

std::string CodePage::decode(std::string_view bytes) const {
    if (isPlain(bytes)) return std::string(bytes);
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 4);
    if (number_ != utf8) {
        for (std::size_t i = 0; i < bytes.size(); ++i)
            appendCharacter(text, tables_->characters[byteAt(bytes, i)]);
        return text;
    }
    while (!bytes.empty()) {
        const auto [codePoint, sequence] = takeCharacter(bytes);
        const bool invalid = sequence.size() == 1 && byteAt(sequence, 0) >= 0x80;
        if (!invalid && !isStrayByte(codePoint)) {
            text += sequence;
            continue;
        }
        // A file may hold the very sequence that stands for a stray byte; byte by byte it comes back unchanged as well.
        for (std::size_t i = 0; i < sequence.size(); ++i)
            appendCharacter(text, strayBytes + byteAt(sequence, i));
    }
    return text;
}

std::optional<std::string> CodePage::encode(std::string_view text) const {
    if (isPlain(text)) return std::string(text);
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const auto [codePoint, sequence] = takeCharacter(text);
        if (sequence.size() == 1 && byteAt(sequence, 0) >= 0x80) return std::nullopt;
        if (number_ != utf8) {
            const std::optional<char> byte = tables_->byteOf(codePoint);
            if (!byte) return std::nullopt;
            bytes += *byte;
        } else if (!isStrayByte(codePoint)) {
            bytes += sequence;
        } else if (codePoint >= strayBytes + 0x80) {
            bytes += static_cast<char>(static_cast<unsigned char>(codePoint - strayBytes));
        } else {
            return std::nullopt;
        }
    }
    return bytes;
}

std::optional<std::string_view> CodePage::encode(std::string_view text, std::string& buffer) const {
    if (isPlain(text)) return text;
    std::optional<std::string> bytes = encode(text);
    if (!bytes) return std::nullopt;
    buffer = std::move(*bytes);
    return buffer;
}

CodePage CodePage::recognise(std::span<const std::string_view> pieces) const {
    const bool tells = !std::ranges::all_of(pieces, isAscii) && std::ranges::all_of(pieces, isUtf8);
    return tells ? CodePage(utf8) : *this;
}

bool CodePage::hasCharactersFor(std::string_view bytes) const {
    if (number_ == utf8) return isUtf8(bytes);
    return std::ranges::none_of(
        bytes, [this](char byte) { return isStrayByte(tables_->characters[static_cast<unsigned char>(byte)]); });
}

char CodePage::foldedByte(char byte) const {
    return tables_->folded[static_cast<unsigned char>(byte)];
}

std::string CodePage::fold(std::string_view bytes) const {
    std::string folded;
    folded.reserve(bytes.size());
    if (number_ != utf8 || isPlain(bytes)) {
        for (const char byte : bytes)
            folded += foldedByte(byte);
        return folded;
    }
    while (!bytes.empty()) {
        const auto [codePoint, sequence] = takeCharacter(bytes);
        if (sequence.size() == 1 && byteAt(sequence, 0) >= 0x80) {
            folded += sequence;
        } else {
            appendCharacter(folded, lowerCase(codePoint));
        }
    }
    return folded;
}

bool CodePage::isSameName(std::string_view left, std::string_view right) const {
    if (left == right) return true;  // as the names of a program's own files mostly are
    if (number_ == utf8 && !(isPlain(left) && isPlain(right))) return fold(left) == fold(right);
    return std::ranges::equal(left, right, [this](char a, char b) { return foldedByte(a) == foldedByte(b); });
}

std::uint32_t CodePage::hashOfName(std::string_view name) const {
    return hashWithoutCase(isPlain(name) ? name : std::string_view(fold(name)));
}

std::string_view CodePage::cut(std::string_view bytes, std::size_t size) const {
    if (bytes.size() <= size) return bytes;
    if (number_ != utf8 || isPlain(bytes.substr(0, size + 1))) return bytes.substr(0, size);
    std::string_view rest = bytes;
    std::size_t length = 0;
    for (std::size_t next = 0; next <= size; next += takeCharacter(rest).bytes.size())
        length = next;
    return bytes.substr(0, length);
}

std::string_view CodePage::cutText(std::string_view text, std::size_t size) const {
    std::size_t used = 0;
    for (std::string_view rest = text; !rest.empty();) {
        const std::string_view before = rest;
        const auto [codePoint, sequence] = takeCharacter(rest);
        used += number_ == utf8 && !isStrayByte(codePoint) ? sequence.size() : 1;
        if (used > size) return text.substr(0, text.size() - before.size());
    }
    return text;
}

}  // namespace kestedit
