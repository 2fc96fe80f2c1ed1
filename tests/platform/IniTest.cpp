// Reading and writing INI files.
#include <array>
#include <chrono>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "platform/IniStore.h"
#include "tests/platform/TemporaryFolder.h"

namespace kestedit::test {
namespace {

using namespace std::string_literals;

class Ini : public testing::Test {
  protected:
    /// What `key` of section "S" reads as in a file of these bytes; "(none)" when it is not there.
    std::string valueIn(std::string_view bytes, std::string_view key = "k", int page = CodePage::western) {
        IniStore store{CodePage(page)};
        return store.open(folder_.file("read.ini", bytes)).value("S", key).value_or("(none)");
    }
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
using IniRead = Ini;
using IniWrite = Ini;

TEST_F(IniRead, sectionsAreLinesThatOpenABracketAndTheFirstOfANameCounts) {
    EXPECT_EQ(valueIn(" \t[ \tS ] ] rest ; k=0\nk=1"), "1");
    EXPECT_EQ(valueIn("[S\nk=1"), "1");
    EXPECT_EQ(valueIn("[x]\nv=[S]\nk=1"), "(none)") << "a bracket inside a value starts no section";
    EXPECT_EQ(valueIn("[S]\n  [T] x=2", "[T] x"), "(none)") << "a header behind blanks is no key of the section ahead";
    EXPECT_EQ(valueIn("[S]\nk=1\nK=2\n[s]\nk=3"), "1");
    EXPECT_EQ(valueIn("[S]\nk=1\n[s]\nother=4", "other"), "(none)");
    EXPECT_EQ(valueIn("k=0\n[T]\nk=1\n[S]\n"), "(none)") << "keys ahead of the first section belong to none";
}

TEST_F(IniRead, keysAreLinesWithANameAndAnEqualsSign) {
    EXPECT_EQ(valueIn("[S]\nk\n \t k \t=\t 1=2 \t\n"), "1=2");
    EXPECT_EQ(valueIn("[S]\nk= \t \n"), "");
    EXPECT_EQ(valueIn("[S]\n; k=0\n;k=0\n k=1 ; no comment here"), "1 ; no comment here");
    EXPECT_EQ(valueIn("[S]\n#k=1", "#k"), "1");
    EXPECT_EQ(valueIn("[S]\n=1\n", ""), "(none)");
}

TEST_F(IniRead, onePairOfEqualQuotesIsDropped) {
    // There are no escapes.
    const std::pair<std::string, std::string> rows[] = {{"\" a \"", " a "}, {"'a'", "a"}, {"\"\"a\"\"", "\"a\""},
                                                        {"\"a'", "\"a'"},   {"\"", "\""}, {"a\\n\\\"", "a\\n\\\""}};
    for (const auto& [stored, value] : rows)
        EXPECT_EQ(valueIn("[S]\nk=" + stored), value);
}

TEST_F(IniRead, lineEndsMayBeMixedAndStrangeBytesHarmNothing) {
    const std::string bytes = "[S]\r\na=1\nb=2\r\r\n\rc=3\r4\r\nk=5";
    EXPECT_EQ(valueIn(bytes, "b"), "2");
    EXPECT_EQ(valueIn(bytes, "c"), "3\r4") << "a carriage return alone ends no line";
    EXPECT_EQ(valueIn(bytes), "5");
    EXPECT_EQ(valueIn("\xEF\xBB\xBF[S]\nk=1"), "1") << "byte order mark";
    EXPECT_EQ(valueIn("[S]\n\0\0=x\nk=a\0b\n"s), "a") << "a value ends at a NUL";
    EXPECT_EQ(valueIn(std::string(100000, '[')), "(none)");
    EXPECT_EQ(valueIn("[S]\nk=\x81\x8D"), "\U0010FE81\U0010FE8D");
}

TEST_F(IniRead, namesCompareWithoutCaseInTheWholePage) {
    EXPECT_EQ(valueIn("[s]\n\xC4rger=1", "\u00E4RGER"), "1");
    EXPECT_EQ(valueIn("[s]\n\u00C4rger=1\n\u0416=2", "\u0436", CodePage::utf8), "2");
    EXPECT_EQ(valueIn("[s]\nk=1", "\u0436"), "(none)") << "a name that the page cannot hold is in no file";
}

TEST_F(IniRead, aHashTellsAllNamesApartThatAreNotTheSame) {
    const CodePage page;
    for (int first = 0; first < 256; ++first) {
        for (int second = first; second < 256; ++second) {
            const std::string one = "name" + std::string(1, static_cast<char>(first));
            const std::string other = "name" + std::string(1, static_cast<char>(second));
            ASSERT_EQ(page.hashOfName(one) == page.hashOfName(other), page.isSameName(one, other))
                << first << " " << second;
        }
    }
}

TEST_F(Ini, namesMadeToCollideCostNoMoreThanOthers) {
    // All the same to a hash that takes "@" for the capital of "`", the other names are what a program writes.
    constexpr std::size_t count = 100'000;
    std::vector<std::string> made;
    std::vector<std::string> usual;
    for (std::size_t i = 0; i < count; ++i) {
        made.emplace_back();
        for (std::size_t bit = 0; bit < 17; ++bit)
            made.back() += (i >> bit & 1) != 0 ? '@' : '`';
        usual.push_back("ordinary name " + std::to_string(i));
    }
    std::set<std::uint32_t> hashes;
    for (const std::string& name : made)
        hashes.insert(CodePage().hashOfName(name));
    ASSERT_GT(hashes.size(), count - 100);

    const auto timeFor = [&](const std::vector<std::string>& names) {
        std::string bytes;
        for (const std::string& name : names)
            bytes.append("[").append(name).append("]\n");
        bytes += "[S]\n";
        for (const std::string& name : names)
            bytes.append(name).append("=1\n");
        const auto file = folder_.file("names.ini", bytes);
        const auto start = std::chrono::steady_clock::now();
        IniStore store;
        EXPECT_EQ(store.open(file).value("S", names.back()), "1");
        auto edit = store.edit(file, false);
        for (std::size_t i = count - 5'000; i < count; ++i) {
            edit.set("S", names[i], "2");
            edit.set("T", names[i], "3");
        }
        edit.stage(StagedFile::Permissions::keep).commit();
        EXPECT_EQ(store.open(file).value("T", names.back()), "3");
        return std::chrono::steady_clock::now() - start;
    };
    const auto expected = timeFor(usual);
    EXPECT_LT(timeFor(made), 10 * expected);
}

TEST_F(IniRead, readCutsToTheBuffer) {
    const auto file = folder_.file("cut.ini", "[S]\nk=\" abc\"\nempty=\nu=\xE4\xF6\xFC");
    EXPECT_EQ(store_.read(file, "S", "k", "", 4), " ab") << "quotes go ahead of the cut";
    EXPECT_EQ(store_.read(file, "S", "empty", "default", 10), "");
    EXPECT_EQ(store_.read(file, "S", "u", "", 3), "\u00E4\u00F6");
    EXPECT_EQ(store_.read(file, " s\t", " K ", "", 1), "");
    EXPECT_EQ(store_.read(file, "S", "k", "default", 0), "");
    EXPECT_EQ(store_.read(file, "S", "none", "\u00E4\u0436\u00FC  ", 3), "\u00E4\u0436");
    EXPECT_EQ(store_.read(file, "S", "none", "  ab  ", 100), "  ab");

    IniStore utf8{CodePage(CodePage::utf8)};
    const auto wide = folder_.file("wide.ini", "[S]\nk=a\u00E4\u20AC\xFF\xFF");
    EXPECT_EQ(utf8.read(wide, "S", "k", "", 3), "a") << "never inside a character";
    EXPECT_EQ(utf8.read(wide, "S", "k", "", 8), "a\u00E4\u20AC\U0010FEFF");
    EXPECT_EQ(utf8.read(wide, "S", "none", "a\u00E4\u20AC", 6), "a\u00E4");
}

TEST_F(IniRead, everyChangeOnDiskIsSeen) {
    const auto file = folder_.file("fresh.ini", "");
    for (int i = 10; i < 99; ++i) {  // same size, and many within one tick of the file system's clock
        std::fstream(file) << "[S]\nk=" << i;
        ASSERT_EQ(store_.read(file, "S", "k", "", 10), std::to_string(i));
    }
    const std::filesystem::file_time_type moment = std::filesystem::last_write_time(file) - std::chrono::hours{1};
    std::filesystem::last_write_time(file, moment);
    // A file is trusted only some ticks after its last change; no event tells when they are over.
    std::this_thread::sleep_for(std::chrono::milliseconds{60});
    ASSERT_EQ(store_.read(file, "S", "k", "", 10), "98");
    folder_.file("fresh.ini", "[S]\nk=99");
    std::filesystem::last_write_time(file, moment);
    EXPECT_EQ(store_.read(file, "S", "k", "", 10), "99") << "a file that kept its size and time of modification";
}

TEST_F(IniRead, aScopeLooksAtTheDiskOnce) {
    const auto file = folder_.file("scope.ini", "[S]\nk=1");
    {
        const IniStore::ReadScope reading = store_.readScope();
        ASSERT_EQ(store_.read(file, "S", "k", "", 10), "1");
        folder_.file("scope.ini", "[S]\nk=another");
        EXPECT_EQ(store_.read(file, "S", "k", "", 10), "1");
        ASSERT_FALSE(store_.write(file, "S", "own", "2"));
        EXPECT_EQ(store_.read(file, "S", "own", "", 10), "2") << "a write of its own is seen";
        EXPECT_EQ(store_.read(file, "S", "k", "", 10), "another") << "and it built on the file as it was";
        folder_.file("scope.ini", "[S]\nk=3");
    }
    EXPECT_EQ(store_.read(file, "S", "k", "", 10), "3");
}

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

TEST_F(IniWrite, theLastErrorStandsUntilAWriteSucceeds) {
    EXPECT_FALSE(store_.write(folder_.path() / "a.ini", "S", "k", "v"));
    EXPECT_EQ(store_.write(folder_.path() / "none/a.ini", "S", "k", "v"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(store_.lastError(), std::errc::no_such_file_or_directory);
    EXPECT_FALSE(store_.write(folder_.path() / "a.ini", "S", "k", "v"));
    EXPECT_FALSE(store_.lastError());
}

TEST_F(IniWrite, textsAreWrittenInTheCodePage) {
    EXPECT_EQ(written("[S]\n\xC4=1\nraw=\x81\n", "\u00E4", "\u20AC\u00FC"), "[S]\n\xC4=\x80\xFC\nraw=\x81\n");
    EXPECT_EQ(written("[S]\n", "k", "\u0436"), "Invalid or incomplete multibyte or wide character");
    EXPECT_EQ(written("[S]\nk=1\n", "k", "\U0010FE81"), "[S]\nk=\x81\n") << "an undefined byte goes back as it came";
}

TEST_F(IniWrite, aPageIsRecognisedOnlyWhenThatIsAskedFor) {
    using enum IniStore::Page;
    const auto file = folder_.file("page.ini", "[S]\nk=\u00E4\n");
    EXPECT_EQ(store_.read(file, "S", "k", "", 10), "\u00C3\u00A4");
    EXPECT_EQ(store_.read(file, "S", "k", "", 10, recognised), "\u00E4");
    EXPECT_EQ(store_.open(file).value("S", "k"), "\u00C3\u00A4");
    ASSERT_FALSE(store_.write(file, "S", "l", "\u0416\u00FC", recognised));
    EXPECT_EQ(bytesOf(file), "[S]\nk=\u00E4\nl=\u0416\u00FC\n");
    EXPECT_TRUE(store_.write(file, "S", "k", "\u0416"));

    folder_.file("page.ini", "[S]\nk=\xFC\n");
    EXPECT_TRUE(store_.write(file, "S", "l", "\u0416", recognised)) << "a page does not change by itself";
    EXPECT_EQ(store_.write(file, "S", "k", "\u00C3\u00A4", recognised), std::errc::illegal_byte_sequence)
        << "it would be recognised as another";
    EXPECT_EQ(bytesOf(file), "[S]\nk=\xFC\n");
    ASSERT_FALSE(store_.write(file, "S", "l", "\u00C3\u00A4", recognised));
    EXPECT_EQ(store_.read(file, "S", "l", "", 10, recognised), "\u00C3\u00A4");
    EXPECT_FALSE(store_.write(file, "S", "k", "\u00C3\u00A4")) << "whoever is told the page needs no guess";
}

TEST_F(IniWrite, aFileBecomesUtf8WithAllItsLinesOrNotAtAll) {
    const auto becomes = [&](std::string_view before, bool startEmpty = false) {
        const auto file = folder_.file("utf8.ini", before);
        auto edit = store_.editAsUtf8(file, startEmpty);
        edit.set("\u00C4", "k", "\u0416");
        edit.stage(StagedFile::Permissions::keep).commit();
        return bytesOf(file);
    };
    EXPECT_EQ(becomes(";\x80\n[\xE4]\nK = x\n\xFC"), ";\u20AC\n[\u00E4]\nK = \u0416\n\u00FC");
    EXPECT_EQ(becomes("\uFEFF;\xE4\r\n"), "\uFEFF;\u00E4\r\n[\u00C4]\r\nk=\u0416\r\n");
    EXPECT_EQ(becomes("; \u00E4\n"), "; \u00E4\n[\u00C4]\nk=\u0416\n") << "as it is already";
    EXPECT_EQ(becomes("\x81", true), "[\u00C4]\r\nk=\u0416\r\n");
    EXPECT_THROW(becomes("a\n;\x81"), std::system_error);
    EXPECT_EQ(bytesOf(folder_.path() / "utf8.ini"), "a\n;\x81");
    auto edit = store_.editAsUtf8(folder_.path() / "new.ini", false);
    edit.set("S", "k", "\u0416\U0010FE81");
    EXPECT_THROW(static_cast<void>(edit.stage(StagedFile::Permissions::keep)), std::system_error)
        << "a byte without a character would hide the page";
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

}  // namespace
}  // namespace kestedit::test
