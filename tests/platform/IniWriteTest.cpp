#include <array>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/IniStore.h"
#include "tests/platform/TemporaryFolder.h"

namespace kestedit::test {
namespace {

using namespace std::string_literals;

class IniWrite : public testing::Test {
  protected:
    /// The bytes of a file that held `before` once `key` of section "S" has been written.
    std::string written(std::string_view before, std::string_view key, std::string_view value,
                        std::string_view section = "S") {
        const auto file = folder_.file("write.ini", before);
        const std::error_code error = store_.write(file, section, key, value);
        return error ? error.message() : bytesOf(file);
    }

    TemporaryFolder folder_;
    IniStore store_;
};

TEST_F(IniWrite, anExistingKeyKeepsItsPlaceAndSpelling) {
    EXPECT_EQ(written("; c\r\n[s] x\r\n a\r\nKey = old \t\r\n;Key=0\r\nz=1", "KEY", "new"),
              "; c\r\n[s] x\r\n a\r\nKey = new\r\n;Key=0\r\nz=1");
    EXPECT_EQ(written("[S]\nk=1\nk=2\n[S]\nk=3\n", "k", "new"), "[S]\nk=new\nk=2\n[S]\nk=3\n");
    EXPECT_EQ(written("[S]\nk=\"old\"", "k", ""), "[S]\nk=\n");
    EXPECT_EQ(written("[S]\nk=1\r\r\n", "k", "2"), "[S]\nk=2\r\n");
}

TEST_F(IniWrite, newKeysGoBehindTheLastKeyAndNewSectionsToTheEnd) {
    EXPECT_EQ(written("[S]\r\na=1\r\n\r\n; comment\r\n[T]\r\n", "b", "2"),
              "[S]\r\na=1\r\nb=2\r\n\r\n; comment\r\n[T]\r\n");
    EXPECT_EQ(written("[S]\na=1\nword\n=0\n", "b", "2"), "[S]\na=1\nb=2\nword\n=0\n");
    EXPECT_EQ(written("[S]\n[S]\nk=1\n", "b", "2"), "[S]\nb=2\n[S]\nk=1\n");
    EXPECT_EQ(written("\xEF\xBB\xBF", "k", "1"), "\xEF\xBB\xBF[S]\r\nk=1\r\n");
    EXPECT_EQ(written("x=1", "x", "2", ""), "x=1\r\n[]\r\nx=2\r\n");
    EXPECT_EQ(written(std::string(100'000, '\0'), "k", "1"), std::string(100'000, '\0') + "\r\n[S]\r\nk=1\r\n");
}

TEST_F(IniWrite, lineEndsFollowTheFile) {
    EXPECT_EQ(written("[S]", "k", "1"), "[S]\r\nk=1\r\n") << "a file without any line end";
    EXPECT_EQ(written("[S]\na=1", "k", "1"), "[S]\na=1\nk=1\n");
    EXPECT_EQ(written("[T]\n[S]\r\na=1", "k", "1"), "[T]\n[S]\r\na=1\r\nk=1\r\n");
    EXPECT_EQ(written("[T]\na=1\r", "k", "1"), "[T]\na=1\r\n[S]\nk=1\n");
}

TEST_F(IniWrite, noTextForgesALine) {
    const std::string before = "[S]\nk=1\n";
    EXPECT_EQ(written(before, "k", "a\r\n[T]\nb=\0c"s), "[S]\nk=a  [T] b= c\n");
    for (const std::string& key : {""s, " "s, "a=b"s, ";a"s, "[a"s, "a\nb"s, "a\r"s, "a\0b"s})
        EXPECT_EQ(written(before, key, "x"), "Invalid argument") << key;
    for (const std::string section : {"a]", "a\n[b", "a\r"}) {
        EXPECT_EQ(written(before, "k", "x", section), "Invalid argument") << section;
        EXPECT_THROW(store_.edit(folder_.path() / "write.ini", false).set(section, "k", "x"), std::invalid_argument);
    }
    EXPECT_EQ(store_.lastError(), std::errc::invalid_argument);
    EXPECT_EQ(bytesOf(folder_.path() / "write.ini"), before);
    EXPECT_EQ(written(before, " a ", "x", "\tS "), "[S]\nk=1\na=x\n");
}

TEST_F(IniWrite, textsAreWrittenInTheCodePage) {
    EXPECT_EQ(written("[S]\n\xC4=1\nraw=\x81\n", "\u00E4", "\u20AC\u00FC"), "[S]\n\xC4=\x80\xFC\nraw=\x81\n");
    EXPECT_EQ(written("[S]\n", "k", "\u0436"), "Invalid or incomplete multibyte or wide character");
    EXPECT_EQ(written("[S]\nk=1\n", "k", "\U0010FE81"), "[S]\nk=\x81\n") << "an undefined byte goes back as it came";
}

TEST_F(IniWrite, oneEditKeepsTheFirstSpellingAndTheLastValue) {
    const auto file = folder_.file("edit.ini", "[A]\na=1\n\n[B]\nx=");
    auto edit = store_.edit(file, false);
    constexpr std::array<const char*, 3> sets[] = {{"B", "y", "2"}, {"B", "x", "0"}, {"C", "New", "1"},
                                                   {"D", "d", "1"}, {"a", "c", "3"}, {"c", "NEW", "2"},
                                                   {"b", "X", "1"}, {"C", "e", "3"}};
    for (const auto& [section, key, value] : sets)
        edit.set(section, key, value);
    edit.stage(StagedFile::Permissions::keep).commit();
    EXPECT_EQ(bytesOf(file), "[A]\na=1\nc=3\n\n[B]\nx=1\ny=2\n[C]\nNew=2\ne=3\n[D]\nd=1\n");
}

TEST_F(IniWrite, aLostWriteIsRecordedAndLeavesNothing) {
    const auto file = folder_.file("readonly.ini", "[S]\nk=1\n");
    std::filesystem::permissions(file, std::filesystem::perms{0444});
    EXPECT_EQ(store_.write(file, "S", "k", "2"), std::errc::permission_denied);
    EXPECT_EQ(store_.lastError(), std::errc::permission_denied);
    EXPECT_EQ(bytesOf(file), "[S]\nk=1\n");
    EXPECT_EQ(folder_.names(), std::vector<std::string>{"readonly.ini"});
    EXPECT_FALSE(store_.write(folder_.path() / "new.ini", "S", "k", "2"));
    EXPECT_FALSE(store_.lastError());
}

}  // namespace
}  // namespace kestedit::test
