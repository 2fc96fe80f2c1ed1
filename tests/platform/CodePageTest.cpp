#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>

#include "platform/CodePage.h"

namespace kestedit::test {
namespace {

TEST(CodePage, everyByteStringComesBackUnchanged) {
    std::string allBytes;
    for (int byte = 0; byte < 256; ++byte)
        allBytes += static_cast<char>(byte);
    // A stray byte's own character, spelled out in a UTF-8 file, and sequences that only look like UTF-8.
    const std::string trapped = allBytes + "\U0010FE80 \xC3 \xC3\xA4 \xED\xA0\x80 \xC0\xAF \xF4\x90\x80\x80 \xE2\x82";
    for (const int number : {1252, 65001, 437, 874, 1251, 1255, 1258}) {
        const CodePage page(number);
        EXPECT_EQ(page.encode(page.decode(trapped)), trapped) << number;
    }
}

TEST(CodePage, decodesEncodesAndFoldsThePagesCharacters) {
    EXPECT_EQ(CodePage().decode("\x80 \xE4"), "\u20AC \u00E4");
    EXPECT_EQ(CodePage(1251).encode("\u0416"), "\xC6");
    EXPECT_EQ(CodePage().encode("\u0416"), std::nullopt);
    EXPECT_EQ(CodePage().encode("\xE4"), std::nullopt) << "no UTF-8";
    EXPECT_EQ(CodePage().encode("\U0010FEE4"), std::nullopt) << "a stray byte that the page does define";
    EXPECT_EQ(CodePage(65001).encode("\U0010FE41"), std::nullopt) << "an ASCII byte is never stray";
    EXPECT_EQ(CodePage().fold("A\xC4\x8A\x9F"), "a\xE4\x9A\xFF");
    EXPECT_EQ(CodePage(65001).fold("A\u00C4\u0416\u03A3\xC4"), "a\u00E4\u0436\u03C3\xC4");
    EXPECT_EQ(CodePage(1250).fold("\xB5"), "\xB5") << "a letter whose other case the page lacks";
}

TEST(CodePage, sameNamesShareAHashWhateverTheirCase) {
    const CodePage western;
    const CodePage utf8(65001);
    const std::tuple<CodePage, std::string_view, std::string_view> same[] = {
        {western, "key", "KEY"},
        {western, "ZipKeyName\xDC", "zipkEYnAME\xFC"},
        {utf8, "ZipKeyName\u00DC", "zipkEYnAME\u00FC"},
        {utf8, "k", "\u212A"},  // the sign of the kelvin
    };
    for (const auto& [page, left, right] : same) {
        EXPECT_TRUE(page.isSameName(left, right)) << left;
        EXPECT_EQ(page.hashOfName(left), page.hashOfName(right)) << left;
    }
    EXPECT_FALSE(western.isSameName("Path", "PathA"));
    EXPECT_FALSE(western.isSameName("key@1", "key`1")) << "apart by the bit that makes a letter small";
    EXPECT_FALSE(utf8.isSameName("\xC4", "\xE4")) << "no characters";
}

TEST(CodePage, isRecognisedAsUtf8ByWholeCharactersBeyondAscii) {
    const std::tuple<std::string_view, int> files[] = {
        {"", 1252},         {"plain", 1252},       {"\xE4", 1252},         {"\u00E4 \xE4", 1252},
        {"\u00E4", 65001},  {"\uFEFF", 65001},     {"\uFEFF\xE4", 1252},   {"a\u0416\U0001F600", 65001},
        {"\xC3", 1252},     {"\xE2\x82", 1252},    {"\xED\xA0\x80", 1252}, {"\xC0\xAF", 1252},
        {"\xF5\xBF", 1252}, {"\U0010FE80", 65001}, {"\xFF\xFE[\0", 1252},
    };
    for (const auto& [bytes, number] : files) {
        EXPECT_EQ(CodePage().recognise({&bytes, 1}).number(), number) << bytes;
        EXPECT_EQ(CodePage(CodePage::utf8).recognise({&bytes, 1}).number(), CodePage::utf8) << bytes;
    }
}

TEST(CodePage, refusesPagesThatAreNotOfOneByteEach) {
    for (const int number : {932, -1, 500})  // two bytes for some, unknown, other bytes than ASCII for "[" and "="
        EXPECT_THROW(CodePage{number}, std::invalid_argument) << number;
}

}  // namespace
}  // namespace kestedit::test
