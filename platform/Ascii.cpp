#include "platform/Ascii.h"

#include <bit>
#include <chrono>
#include <cstring>
#include <sys/random.h>
#include <sys/types.h>

namespace kestedit {

namespace {

template <class Number>
std::uint64_t numberAt(const char* place) {
    Number number{};
    std::memcpy(&number, place, sizeof number);
    return number;
}

/// Calls `visit` with every byte of `text`, eight at a time. The last eight overlap the ones before, because a copy of
/// the odd bytes would take longer than all the rest of a short name.
template <class Visit>
void visitWords(std::string_view text, Visit visit) {
    const char* const end = text.data() + text.size();
    if (text.size() >= 8) {
        for (const char* place = text.data(); end - place > 8; place += 8)
            visit(numberAt<std::uint64_t>(place));
        visit(numberAt<std::uint64_t>(end - 8));
    } else if (text.size() >= 4) {
        visit(numberAt<std::uint32_t>(text.data()) | numberAt<std::uint32_t>(end - 4) << 32U);
    } else if (!text.empty()) {
        const auto byte = [text](std::size_t index) { return numberAt<std::uint8_t>(text.data() + index); };
        visit(byte(0) | byte(text.size() / 2) << 8U | byte(text.size() - 1) << 16U);
    }
}

/// Eight bytes with the capital letters of ASCII as small ones, and every other byte as it is: bytes that were taken
/// for one another would let names collide under any key.
std::uint64_t lowerCaseOf(std::uint64_t word) {
    constexpr std::uint64_t ones = 0x0101010101010101;
    constexpr std::uint64_t highBits = 0x80 * ones;
    const std::uint64_t low = word & ~highBits;
    const std::uint64_t fromA = low + (0x80 - 'A') * ones;    // the high bit of a byte: not below "A"
    const std::uint64_t behindZ = low + (0x7F - 'Z') * ones;  // the high bit of a byte: above "Z"
    return word | (((fromA & ~behindZ & ~word) & highBits) >> 2U);
}

struct Key {
    std::uint64_t first;
    std::uint64_t second;
};

/// Nobody who writes a file knows it.
Key keyOfThisProcess() {
    Key key{};
    if (::getrandom(&key, sizeof key, 0) == static_cast<ssize_t>(sizeof key)) return key;
    // A kernel without that call.
    key.first = static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
    key.second = reinterpret_cast<std::uintptr_t>(&key);
    return key;
}

/// SipHash-1-3, the keyed hash that hash tables under foreign names use: without the key nobody finds names that share
/// a hash, other than by chance.
class SipHash {
  public:
    explicit SipHash(const Key& key)
        : a_(key.first ^ 0x736f6d6570736575),
          b_(key.second ^ 0x646f72616e646f6d),
          c_(key.first ^ 0x6c7967656e657261),
          d_(key.second ^ 0x7465646279746573) {}

    void add(std::uint64_t word) {
        d_ ^= word;
        round();
        a_ ^= word;
    }

    /// The words overlap, so names of several lengths may have the same ones.
    std::uint64_t resultFor(std::uint64_t size) {
        c_ ^= size ^ 0xFF;
        round();
        round();
        round();
        return a_ ^ b_ ^ c_ ^ d_;
    }

  private:
    void round() {
        a_ += b_;
        b_ = std::rotl(b_, 13) ^ a_;
        a_ = std::rotl(a_, 32);
        c_ += d_;
        d_ = std::rotl(d_, 16) ^ c_;
        a_ += d_;
        d_ = std::rotl(d_, 21) ^ a_;
        c_ += b_;
        b_ = std::rotl(b_, 17) ^ c_;
        c_ = std::rotl(c_, 32);
    }

    std::uint64_t a_;
    std::uint64_t b_;
    std::uint64_t c_;
    std::uint64_t d_;
};

}  // namespace

bool isAscii(std::string_view text) {
    constexpr std::uint64_t highBits = 0x8080808080808080;
    std::uint64_t bits = 0;
    visitWords(text, [&bits](std::uint64_t word) { bits |= word; });
    return (bits & highBits) == 0;
}

std::uint32_t hashWithoutCase(std::string_view name) {
    static const Key key = keyOfThisProcess();
    SipHash hash(key);
    visitWords(name, [&hash](std::uint64_t word) { hash.add(lowerCaseOf(word)); });
    return static_cast<std::uint32_t>(hash.resultFor(name.size()));
}

}  // namespace kestedit
