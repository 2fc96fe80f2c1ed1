#include <regex>

#include "tests/host/ProgramFixture.h"

namespace kestedit {

namespace {

using test::ProgramTest;

TEST_F(ProgramTest, WrongUsageIsOneLineAndDoesNothing) {
    const struct {
        const char* arguments;
        const char* error;
    } cases[] = {
        {"", "A subcommand is required"},
        {"script new a.script b.script", "The following argument was not expected: b.script"},
        {"edit", "FILE is required"},
        {"new --view 32768", "--view: \"32768\" is no whole number that fits"},
        {"new --now 2026-02-29T00:00:00", "--now: \"2026-02-29T00:00:00\" is no moment such as 2026-11-21T14:05:00"},
        {"new --date-format dd.MM", "--date-format: date format \"dd.MM\": day, month or year is missing"},
        {"ini get a.ini S k --code-page 99", "--code-page: code page 99 is not known to this system"},
    };
    for (const auto& [arguments, error] : cases) {
        const auto result = kestedit(arguments);
        EXPECT_EQ(result.code, 2) << arguments;
        EXPECT_EQ(result.out, "") << arguments;
        EXPECT_EQ(result.err, std::string("kestedit: ") + error + '\n');
    }
    EXPECT_EQ(folder.names(), std::vector<std::string>{"home"});
}

TEST_F(ProgramTest, WithoutAWindowNewAndEditSaySo) {
    static_cast<void>(folder.file("a.job", "[Job]\nName=a\n"));
    for (const char* const arguments : {"new", "edit a.job"}) {
        const auto result = kestedit(arguments);
        EXPECT_EQ(result.code, 3);
        const std::string reason =
            KESTEDIT_HAS_WINDOW ? "there is no display" : "this program was built without a window";
        EXPECT_EQ(result.err, "kestedit: " + reason + "; \"kestedit script\" edits jobs without one\n");
    }
    EXPECT_TRUE(std::filesystem::is_empty(home()));
}

TEST_F(ProgramTest, AJobThatCannotBeReadEndsItAtOnce) {
    for (const std::string command : {"edit ", "script edit "}) {
        const auto result = kestedit(command + "\"$(printf 'two\\nlines')\" </dev/null");
        EXPECT_EQ(result.code, 1) << command;
        EXPECT_EQ(result.err, "kestedit: open \"two?lines\": No such file or directory\n");
    }
}

TEST_F(ProgramTest, IniReadsAndWritesOneKey) {
    EXPECT_EQ(kestedit("ini set a.ini Job Größe 'a \"b\" ä'").code, 0);
    EXPECT_EQ(test::bytesOf(folder.path() / "a.ini"),
              "[Job]\r\nGr\xF6\xDF"
              "e=a \"b\" \xE4\r\n");
    EXPECT_EQ(kestedit("ini get a.ini job GRÖSSE").out, "\n");
    EXPECT_EQ(kestedit("ini get a.ini job GRÖßE").out, "a \"b\" ä\n");
    EXPECT_EQ(kestedit("ini get a.ini Job Größe --size 3").out, "a \n");
    EXPECT_EQ(kestedit("ini get a.ini Job x --default -5").out, "-5\n");

    // Values that a command-line parser could take for something else.
    for (const std::string value : {"''", "new", "set", "'[]'", "'{}'", "%%", "-- -5", "-- --help"}) {
        EXPECT_EQ(kestedit("ini set b.ini S k " + value).code, 0) << value;
    }
    EXPECT_EQ(kestedit("ini get b.ini S k").out, "--help\n");

    EXPECT_EQ(kestedit("ini set u.ini S k 字 --code-page 65001").code, 0);
    EXPECT_EQ(kestedit("ini get u.ini S k --code-page 65001").out, "字\n");
}

TEST_F(ProgramTest, IniTellsTheSystemsReason) {
    for (const auto& [arguments, reason] :
         {std::pair{"set none/a.ini S k v", "write \"none/a.ini\": No such file or directory"},
          {"set a.ini S k 字", "write \"a.ini\": Invalid or incomplete multibyte or wide character"},
          {"get home S k --default d", "read folder \"home\": Is a directory"}}) {
        const auto result = kestedit(std::string("ini ") + arguments);
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, std::string("kestedit: ") + reason + '\n');
    }
}

TEST_F(ProgramTest, ResultsThatNobodyTakesAreAFailure) {
    for (const char* const arguments : {"--help", "ini get a.ini S k", "script new /dev/null"}) {
        const auto result = kestedit(std::string(arguments) + " >/dev/full");
        EXPECT_EQ(result.code, 1) << arguments;
        EXPECT_EQ(result.err, "kestedit: the standard output does not take the results\n");
    }
}

TEST_F(ProgramTest, DefaultsAreTheUsersOwnFoldersAndLanguage) {
    const std::string lines = "type dxName Night\nprint cmdCancel.Caption\nclick cmdSave\n";
    static_cast<void>(folder.file("a.script", lines));
    EXPECT_EQ(kestedit("script new <a.script").out, "cmdCancel.Caption = \"&Cancel\"\nevent SearchJobs\n");
    EXPECT_TRUE(std::filesystem::exists(home() / ".local/share/kestedit/Night.job"));

    environment = "LC_ALL=de_AT.UTF-8 XDG_DATA_HOME=\"$PWD/home/data\"";
    EXPECT_EQ(kestedit("script new - <a.script").out, "cmdCancel.Caption = \"&Abbrechen\"\nevent SearchJobs\n");
    EXPECT_TRUE(std::filesystem::exists(home() / "data/kestedit/Night.job"));
}

TEST_F(ProgramTest, EveryOptionAndEventIsDocumented) {
    const std::string manual =
        std::regex_replace(test::bytesOf(KESTEDIT_DOCS "/kestedit.1"), std::regex(R"(\\-)"), "-");
    const std::string language = test::bytesOf(KESTEDIT_DOCS "/script.md");
    const std::string help = kestedit("script --help").out;

    const auto allIn = [](const std::string& text, const std::regex& pattern) {
        std::vector<std::string> found;
        const std::sregex_token_iterator begin(text.begin(), text.end(), pattern, 1);
        std::copy(begin, std::sregex_token_iterator{}, std::back_inserter(found));
        return found;
    };
    const auto options =
        allIn(help + kestedit("ini get --help").out + kestedit("--help").out, std::regex("(--[a-z-]+)"));
    EXPECT_GT(options.size(), 12U);
    for (const std::string& option : options)
        EXPECT_NE(manual.find(option), std::string::npos) << option;

    const auto begin = help.find("A script has");
    const auto events =
        allIn(help.substr(begin, help.find("Example:") - begin), std::regex("\n  ([a-z][^ ]*(?: [^ ]+)*)  "));
    EXPECT_GT(events.size(), 20U);
    for (const std::string& event : events) {
        const std::string usage = std::regex_replace(event, std::regex(R"(\|)"), R"(\|)");  // inside a table
        EXPECT_NE(language.find("| `" + usage + "` |"), std::string::npos) << usage;
    }
}

}  // namespace

}  // namespace kestedit
