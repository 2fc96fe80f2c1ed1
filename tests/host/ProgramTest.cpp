#include <tuple>

#include "tests/host/ProgramFixture.h"

namespace kestedit {

namespace {

using test::ProgramTest;

TEST_F(ProgramTest, AFailureIsACodeAndOneLineAndDoesNothing) {
    const std::string noWindow =
        std::string(KESTEDIT_HAS_WINDOW ? "there is no display" : "this program was built without a window") +
        "; \"kestedit script\" edits jobs without one";
    const std::tuple<const char*, int, std::string> cases[] = {
        {"", 2, "A subcommand is required"},
        {"script new a.script b.script", 2, "The following argument was not expected: b.script"},
        {"new --view 32768", 2, "--view: \"32768\" is no whole number that fits"},
        {"new --now 2026-02-29T00:00:00", 2, "--now: \"2026-02-29T00:00:00\" is no moment such as 2026-11-21T14:05:00"},
        {"new --date-format dd.MM", 2, "--date-format: date format \"dd.MM\": day, month or year is missing"},
        {"ini get a.ini S k --code-page 99", 2, "--code-page: code page 99 is not known to this system"},
        {"new", 3, noWindow},
        {"edit script", 3, noWindow},
        {"edit \"$(printf 'two\\nlines')\"", 1, "open \"two?lines\": No such file or directory"},
        {"ini set none/a.ini S k v", 1, "write \"none/a.ini\": No such file or directory"},
        {"ini set a.ini S k 字", 1, "write \"a.ini\": Invalid or incomplete multibyte or wide character"},
        {"ini get home S k --default d", 1, "read folder \"home\": Is a directory"},
        {"ini get a.ini S k >/dev/full", 1, "the standard output does not take the results"},
    };
    static_cast<void>(folder.file("script", ""));
    for (const auto& [arguments, code, reason] : cases) {
        const auto result = kestedit(arguments);
        EXPECT_EQ(result.code, code) << arguments;
        EXPECT_EQ(result.out, "") << arguments;
        EXPECT_EQ(result.err, "kestedit: " + reason + '\n');
    }
    EXPECT_EQ(folder.names(), "home script ");
}

TEST_F(ProgramTest, IniReadsAndWritesOneKey) {
    EXPECT_EQ(kestedit("ini set a.ini Job Größe 'a \"b\" ä'").code, 0);
    EXPECT_EQ(test::bytesOf(folder.path() / "a.ini"), "[Job]\r\nGr\xF6\xDF\x65=a \"b\" \xE4\r\n");
    EXPECT_EQ(kestedit("ini get a.ini Job Größe").out, "a \"b\" ä\n");
    EXPECT_EQ(kestedit("ini get a.ini Job Größe --size 3").out, "a \n");
    EXPECT_EQ(kestedit("ini get a.ini Job x --default -5").out, "-5\n");
    // Values that a command-line parser could take for something else.
    for (const std::string value : {"''", "new", "set", "'[]'", "'{}'", "%%", "-- -5", "-- --help"})
        EXPECT_EQ(kestedit("ini set b.ini S k " + value).code, 0) << value;
    EXPECT_EQ(kestedit("ini get b.ini S k").out, "--help\n");
    EXPECT_EQ(kestedit("ini set u.ini S k 字 --code-page 65001").code, 0);
    EXPECT_EQ(kestedit("ini get u.ini S k --code-page 65001").out, "字\n");
}

TEST_F(ProgramTest, DefaultsAreTheUsersOwnFoldersAndLanguage) {
    static_cast<void>(folder.file("a.script", "type dxName Night\nprint cmdCancel.Caption\nclick cmdSave\n"));
    EXPECT_EQ(kestedit("script new <a.script").out, "cmdCancel.Caption = \"&Cancel\"\nevent SearchJobs\n");
    EXPECT_TRUE(std::filesystem::exists(home() / ".local/share/kestedit/Night.job"));
}

}  // namespace

}  // namespace kestedit
