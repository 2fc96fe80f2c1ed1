#include <chrono>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <thread>

#include "platform/IniStore.h"
#include "tests/platform/TemporaryFolder.h"

namespace kestedit::test {
namespace {

using namespace std::string_literals;

class IniRead : public testing::Test {
  protected:
    /// What `key` of section "S" reads as in a file of these bytes; "(none)" when it is not there.
    std::string valueIn(std::string_view bytes, std::string_view key = "k", int page = CodePage::western) {
        IniStore store{CodePage(page)};
        return store.open(folder_.file("read.ini", bytes)).value("S", key).value_or("(none)");
    }

    TemporaryFolder folder_;
};

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
    EXPECT_EQ(valueIn("[S]\nk=\" a \"\n"), " a ");
    EXPECT_EQ(valueIn("[S]\nk='a'"), "a");
    EXPECT_EQ(valueIn("[S]\nk=\"\"a\"\""), "\"a\"");
    EXPECT_EQ(valueIn("[S]\nk=\"a'"), "\"a'");
    EXPECT_EQ(valueIn("[S]\nk=\""), "\"");
    EXPECT_EQ(valueIn("[S]\nk=a\\n\\\""), "a\\n\\\"") << "there are no escapes";
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

TEST_F(IniRead, readCutsToTheBuffer) {
    IniStore western;
    const auto file = folder_.file("cut.ini", "[S]\nk=\" abc\"\nempty=\nu=\xE4\xF6\xFC");
    EXPECT_EQ(western.read(file, "S", "k", "", 4), " ab") << "quotes go ahead of the cut";
    EXPECT_EQ(western.read(file, "S", "empty", "default", 10), "");
    EXPECT_EQ(western.read(file, "S", "u", "", 3), "\u00E4\u00F6");
    EXPECT_EQ(western.read(file, " s\t", " K ", "", 1), "");
    EXPECT_EQ(western.read(file, "S", "k", "default", 0), "");
    EXPECT_EQ(western.read(file, "S", "none", "\u00E4\u0436\u00FC  ", 3), "\u00E4\u0436");
    EXPECT_EQ(western.read(file, "S", "none", "  ab  ", 100), "  ab");

    IniStore utf8{CodePage(CodePage::utf8)};
    const auto wide = folder_.file("wide.ini", "[S]\nk=a\u00E4\u20AC\xFF\xFF");
    EXPECT_EQ(utf8.read(wide, "S", "k", "", 3), "a") << "never inside a character";
    EXPECT_EQ(utf8.read(wide, "S", "k", "", 8), "a\u00E4\u20AC\U0010FEFF");
    EXPECT_EQ(utf8.read(wide, "S", "none", "a\u00E4\u20AC", 6), "a\u00E4");
}

TEST_F(IniRead, whatIsNoFileGivesTheDefaultAtOnce) {
    const auto fifo = folder_.path() / "fifo";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    const auto large = folder_.file("large.ini", "[S]\nk=1");
    std::filesystem::resize_file(large, 200'000'000);
    IniStore store;
    const std::filesystem::path device = "/dev/zero";
    for (const auto& path : {fifo, folder_.path(), folder_.path() / "missing", large, device}) {
        EXPECT_EQ(store.read(path, "S", "k", "default", 100), "default") << path;
        EXPECT_THROW(static_cast<void>(store.open(path)), std::system_error) << path;
    }
}

TEST_F(IniRead, everyChangeOnDiskIsSeen) {
    IniStore store;
    const auto file = folder_.file("fresh.ini", "");
    for (int i = 10; i < 99; ++i) {  // same size, and many within one tick of the file system's clock
        std::fstream(file) << "[S]\nk=" << i;
        ASSERT_EQ(store.read(file, "S", "k", "", 10), std::to_string(i));
    }
    const std::filesystem::file_time_type moment = std::filesystem::last_write_time(file) - std::chrono::hours{1};
    std::filesystem::last_write_time(file, moment);
    // A file is trusted only some ticks after its last change; no event tells when they are over.
    std::this_thread::sleep_for(std::chrono::milliseconds{60});
    ASSERT_EQ(store.read(file, "S", "k", "", 10), "98");
    folder_.file("fresh.ini", "[S]\nk=99");
    std::filesystem::last_write_time(file, moment);
    EXPECT_EQ(store.read(file, "S", "k", "", 10), "99") << "a file that kept its size and time of modification";
}

TEST_F(IniRead, aScopeLooksAtTheDiskOnce) {
    IniStore store;
    const auto file = folder_.file("scope.ini", "[S]\nk=1");
    {
        const IniStore::ReadScope reading = store.readScope();
        ASSERT_EQ(store.read(file, "S", "k", "", 10), "1");
        folder_.file("scope.ini", "[S]\nk=another");
        EXPECT_EQ(store.read(file, "S", "k", "", 10), "1");
        ASSERT_FALSE(store.write(file, "S", "own", "2"));
        EXPECT_EQ(store.read(file, "S", "own", "", 10), "2") << "a write of its own is seen";
        EXPECT_EQ(store.read(file, "S", "k", "", 10), "another") << "and it built on the file as it was";
        folder_.file("scope.ini", "[S]\nk=3");
    }
    EXPECT_EQ(store.read(file, "S", "k", "", 10), "3");
}

}  // namespace
}  // namespace kestedit::test
