#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

#include "platform/CodePage.h"
#include "platform/Text.h"

namespace kestedit::test {
namespace {

TEST(CodePage, everyByteStringComesBackUnchanged) {
    std::string allBytes;
    for (int byte = 0; byte < 256; ++byte)
        allBytes += static_cast<char>(byte);
    // A stray byte's own character, spelled out in a UTF-8 file, and sequences that only look like UTF-8.
    const std::string trapped = allBytes + "\U0010FE80 \xC3 \xC3\xA4 \xED\xA0\x80 \xC0\xAF \xF4\x90\x80\x80 \xE2\x82";
    for (const int number : {1252, 65001, 437, 850, 864, 874, 1250, 1251, 1253, 1255, 1258}) {
        const CodePage page(number);
        const std::string text = page.decode(trapped);
        EXPECT_EQ(page.encode(text), trapped) << number;
        for (std::string_view rest = text; !rest.empty();) {
            const Character character = takeCharacter(rest);
            ASSERT_FALSE(character.codePoint == 0xFFFD && character.bytes.size() == 1) << number << ": no valid UTF-8";
        }
    }
}

TEST(CodePage, decodesAndEncodesThePagesCharacters) {
    EXPECT_EQ(CodePage().decode("\x80 \xE4"), "\u20AC \u00E4");
    EXPECT_EQ(CodePage(1251).decode("\xC6"), "\u0416");
    EXPECT_EQ(CodePage(1251).encode("\u0416"), "\xC6");
    EXPECT_EQ(CodePage().encode("\u0416"), std::nullopt);
    EXPECT_EQ(CodePage().encode("\xE4"), std::nullopt) << "no UTF-8";
    EXPECT_EQ(CodePage().encode("\U0010FEE4"), std::nullopt) << "a stray byte that the page does define";
    EXPECT_EQ(CodePage(65001).encode("\U0010FE41"), std::nullopt) << "an ASCII byte is never stray";
}

TEST(CodePage, foldsEveryLetterOfThePage) {
    EXPECT_EQ(CodePage().fold("A\xC4\x8A"), "a\xE4\x9A");
    EXPECT_EQ(CodePage(1251).fold("\xC6"), "\xE6");
    EXPECT_EQ(CodePage(65001).fold("A\u00C4\u0416\u03A3\xC4"), "a\u00E4\u0436\u03C3\xC4");
    EXPECT_EQ(CodePage(1252).fold("\x9F"), "\xFF");
    EXPECT_EQ(CodePage(1250).fold("\xB5"), "\xB5") << "a letter whose other case the page lacks";
}

TEST(CodePage, refusesPagesThatAreNotOfOneByteEach) {
    const auto reason = [](int number) -> std::string {
        try {
            return CodePage(number).decode("accepted");
        } catch (const std::invalid_argument& error) {
            return error.what();
        }
    };
    EXPECT_EQ(reason(932), "code page 932 is not a single-byte page");
    EXPECT_EQ(reason(936), "code page 936 is not a single-byte page");
    EXPECT_EQ(reason(4711), "code page 4711 is not known to this system");
    EXPECT_EQ(reason(-1), "code page -1 is not known to this system");
    EXPECT_EQ(reason(500), "code page 500 has other bytes than ASCII for the characters that an INI file is built of");
}

TEST(Text, takesAndAppendsTheSameCharacters) {
    for (const char32_t codePoint :
         {U'\0', U'a', U'\x7F', U'\x80', U'\u07FF', U'\u0800', U'\uFFFF', U'\U00010000', U'\U0010FFFF'}) {
        std::string text;
        appendCharacter(text, codePoint);
        std::string_view rest = text;
        EXPECT_EQ(takeCharacter(rest).codePoint, codePoint);
        EXPECT_TRUE(rest.empty());
    }
    EXPECT_EQ(lowerCase(U'\u0416'), U'\u0436');
    EXPECT_EQ(lowerCase(U'\u00DF'), U'\u00DF');
    EXPECT_EQ(trimBlanks("  a b\t "), "a b\t");
    EXPECT_EQ(trimBlanks("   "), "");
}

}  // namespace
}  // namespace kestedit::test
