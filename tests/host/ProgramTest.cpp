// The program as a shell calls it: options, single keys, and scripts with their words, events and failures.
#include <sstream>
#include <tuple>
#include <vector>

#include "component/events/PrintedText.h"
#include "host/ScriptParser.h"
#include "tests/host/ProgramFixture.h"

namespace kestedit {

namespace {

using namespace std::string_literals;
using test::ProgramTest;
using ScriptTest = test::ProgramTest;
using Words = std::vector<std::string>;

TEST_F(ProgramTest, AFailureIsACodeAndOneLineAndDoesNothing) {
    const std::string noWindow =
        std::string(KESTEDIT_HAS_WINDOW ? "there is no display" : "this program was built without a window") +
        "; \"kestedit script\" edits jobs without one";
    const std::tuple<const char*, int, std::string> cases[] = {
        {"", 2, "A subcommand is required"},
        {"script new a.script b.script", 2, "The following argument was not expected: b.script"},
        {"new --view 32768", 2, "--view: \"32768\" is no whole number that fits"},
        {"new --view 7", 2, "--view: 7 is no view level: 4, 9, 15 or 23"},
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

TEST_F(ProgramTest, AJobOfAnotherFolderThanThatOfTheJobsIsRefused) {
    namespace fs = std::filesystem;
    for (const std::string name : {"a", "b"}) {
        fs::create_directory(folder.path() / name);
        static_cast<void>(folder.file(name + "/x.job", "[Job]\nName=x\nFrom=/" + name + "\n"));
    }
    fs::create_directory_symlink("a", folder.path() / "link");
    fs::create_symlink("../a/x.job", folder.path() / "b/y.job");
    static_cast<void>(folder.file("script", "print dxSource.EditValue\nclick cmdSave\n"));
    for (const std::string job : {"b/x.job", "a/../b/x.job", "b/y.job", "x.job", "none/x.job"}) {
        for (const std::string& command : {"script --job-dir a edit " + job + " script", "edit --job-dir a " + job}) {
            const auto refused = kestedit(command);
            EXPECT_EQ(refused.code, 2) << command;
            EXPECT_EQ(refused.out, "") << command;
            EXPECT_EQ(refused.err, "kestedit: \"" + job + "\" does not lie in the folder of --job-dir, \"a\"\n");
        }
    }
    EXPECT_EQ(test::bytesOf(folder.path() / "b/x.job"), "[Job]\nName=x\nFrom=/b\n");
    for (const std::string job : {"--job-dir a edit a/x.job", "--job-dir \"$PWD/a\" edit link/x.job",
                                  "--job-dir b/../link edit ./a/x.job", "edit a/x.job"})
        EXPECT_EQ(kestedit("script " + job + " script").out, "dxSource.EditValue = \"/a\"\nevent SetNewValues \"\"\n");
}

TEST_F(ProgramTest, DefaultsAreTheUsersOwnFoldersAndLanguage) {
    static_cast<void>(
        folder.file("a.script", "check chkEditPaths 0\ntype dxName Night\nprint cmdCancel.Caption\nclick cmdSave\n"));
    EXPECT_EQ(kestedit("script new <a.script").out, "cmdCancel.Caption = \"&Cancel\"\nevent SearchJobs\n");
    for (const char* file : {".local/share/kestedit/Night.job", ".config/kestedit/program.ini"})
        EXPECT_TRUE(std::filesystem::exists(home() / file)) << file;
    for (const char* made : {".local", ".local/share/kestedit", ".config", ".config/kestedit"})
        EXPECT_EQ(std::filesystem::status(home() / made).permissions(), std::filesystem::perms{0700}) << made;
}

TEST_F(ProgramTest, AHomeThatIsNoneIsNamedAndNotNeededForAJobElsewhere) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"HOME=/dev/null", "HOME", "/dev/null/.local/share/kestedit"},
        {"HOME=/dev/null XDG_DATA_HOME=/dev/null/data", "XDG_DATA_HOME", "/dev/null/data/kestedit"},
        {"HOME=/dev/null XDG_DATA_HOME=data", "HOME", "/dev/null/.local/share/kestedit"},
    };
    for (const auto& [variables, named, path] : cases) {
        environment = variables;
        const auto result = kestedit("script new </dev/null");
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(result.err,
                  "kestedit: <stdin>: "s + named + " is not usable: create folder \"" + path + "\": Not a directory\n");
    }
    EXPECT_EQ(script("new", "check chkEditPaths 0\ntype dxName Night\nclick cmdSave\n").code, 0);
    EXPECT_EQ(folder.names(), "Night.job home ");
}

TEST(ScriptParser, SplitsLinesIntoWordsAndReadsBackWhatIsPrinted) {
    const auto lines = parseScript(
        "\xEF\xBB\xBF# a byte order mark and a comment\r\n"
        "\ttype  dxName \"a b\" # more\r\n"
        "\n"
        "folder C:\\new#1\t\"\"\n" +
        quotedText("# \t\r\"Größe\\n\"\0caf\xE9"s));
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0].words, (Words{"type", "dxName", "a b"}));
    EXPECT_EQ(lines[1].words, (Words{"folder", "C:\\new#1", ""}));
    EXPECT_EQ(lines[1].number, 4);
    EXPECT_EQ(lines[2].words,
              Words{"# \t\r\"Größe\\n\"\0caf\uFFFD"s});  // what is printed is UTF-8, whatever a path holds
}

TEST_F(ScriptTest, SamplesMakeTheirJobs) {
    const std::tuple<const char*, const char*, const char*, const char*> samples[] = {
        {"new", "create", "Notes", "Interval=150"},
        {"--view 9 edit Notes.job", "rename", "Notes, half-hourly", "Interval=30"},
        {"new", "compress", "Documents, packed", "ZipPwd=correct horse"},
        {"new", "sync", "Laptop and server", "IntervalTime=18:30:00"},
        {"new", "monitor", "Incoming scans", "ExecMaxSec=300"},
    };
    for (const auto& [target, sample, job, line] : samples) {
        const std::string path = KESTEDIT_DOCS "/../samples/"s + sample + ".script";
        const auto result = kestedit("script --job-dir . "s + target + " '" + path + "'");
        EXPECT_EQ(result.code, 0) << result.err;
        EXPECT_TRUE(result.out.ends_with("event SearchJobs\n")) << sample << "\n" << result.out;
        const std::string bytes = test::bytesOf(folder.path() / (job + ".job"s));
        EXPECT_NE(bytes.find("\r\n"s + line + "\r\n"), std::string::npos) << bytes;
    }
}

TEST_F(ScriptTest, PrintsEveryFormOfValueAndEveryList) {
    const std::string printed = R"(dxComment.EditValue = "a\r\n\"b\""
dxFileDate.EditValue = 2028-02-29
dxDateTime.EditValue = 14:05:00
dxHours.EditValue = 1
dxSize.EditValue = Empty
cmdSave.Enabled = True
dxZipGrade.Items = ["None", "Low", "Normal", "High"]
frmEdit.PageNodeIndex(11) = 11
frmEdit.PageNodeIndex(99) = Empty
frmEdit.FocusedControl = "dxName"
)";
    std::string lines;
    std::istringstream values(printed);
    for (std::string line; std::getline(values, line);)
        lines += "print " + line.substr(0, line.find(" = ")) + "\n";
    const std::string events = "type dxComment \"a\\n\\\"b\\\"\"\nchoose optAge 4\nset-date dxFileDate 2028-02-29\n";
    EXPECT_EQ(script("new", events + lines + "frames\n").out, printed + "fraComment\nevent none\n");

    const std::string lists = script("--view 9 new", "key down\nnodes\ntabs\ndump\n").out;
    EXPECT_TRUE(lists.starts_with("node 0 \"Job name and notes\" \"\"\nnode 1 \"Mode\" \"2\" *\nnode 2 \"Source"));
    EXPECT_NE(lists.find("\ndxTreeList1\ndxName\ndxComment\n"), std::string::npos);
    EXPECT_NE(lists.find("\noptAction(3).State = 0\noptAction(3).Enabled = True\n"), std::string::npos);
}

TEST_F(ScriptTest, EndsAtTheFirstLineThatFails) {
    const std::pair<const char*, const char*> cases[] = {
        {"timer\ntype dxName \"a\n", "4: a closing quote is missing"},
        {"type dxName \"a\\", "3: a closing quote is missing"},
        {"type dxName \"a\\x\"", "3: a backslash in quotes takes \", \\, r, n or t behind it"},
        {"type dxName \"a\"b", "3: a blank is missing behind a closing quote"},
        {"type dxName a\"b", "3: a quote inside a word: put the whole word in quotes and write \\\""},
        {"# \xE4", "3: the line is not UTF-8"},
        {"type dxName a b", "3: write type CONTROL TEXT"},
        {"check chkPreview 3", "3: check: \"3\" is not 0, 1 or 2"},
        {"choose optAction -1", "3: choose: \"-1\" is not an index from 0"},
        {"number dxDays 9223372036854775808", "3: number: \"9223372036854775808\" is not a whole number"},
        {"answer maybe", "3: answer: \"maybe\" is not ok, yes, no, cancel, retry or continue"},
        {"print .State", "3: print: \".State\" is not a name, a dot and a property"},
        {"set-date dxDate 2026-2-9", "3: set-date: \"2026-2-9\" is not a date such as 2026-11-21"},
        {"set-time dxDateTime 14:05", "3: set-time: \"14:05\" is not a time of day such as 14:05:00"},
        {"bogus", "3: unknown event \"bogus\""},
        {"type dxFoo x", "3: no control named dxFoo"},
        {"choose optAction 6", "3: no control named optAction(6)"},
        {"print dxName.Size", "3: dxName has no property Size"},
        {"print frmEdit.TextCatalogue(85)", "3: frmEdit has no property TextCatalogue(85)"},
        {"print frmEdit.Caption(0)", "3: frmEdit has no property Caption(0)"},
        {"print dlgNewFolder.Caption", "3: dlgNewFolder is not open"},
        {"button dxSource 1\nnode 1", "4: dlgNewFolder is in front of the form"},
        {"file /bin/true\nbutton dxSource 0",
         "4: the answer \"/bin/true\" is queued for another chooser than folder \"Select source folder:\" \".\" 69"},
        {"answer cancel\nbutton dxSource 1\ntype dxTextEdit1 home\nclick cmdCreate",
         "6: the answer Cancel is none of message \"kestEdit\" \"Folder already exists.\" [Ok]"},
        {"check dxName 1", "3: dxName takes no such event"},
        {"click cmdCancel\nclick cmdCancel", "4: the form has closed"},
    };
    for (const auto& [lines, reason] : cases) {
        const auto result = script("new", "type dxName Night\ntype dxSource .\n"s + lines + "\nclick cmdSave\n");
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(result.out, "event none\n");
        EXPECT_EQ(result.err, "kestedit: home/script:"s + reason + "\n");
    }
    EXPECT_EQ(folder.names(), "home ");
}

TEST_F(ScriptTest, AnswersAreQueuedAheadAlsoForTheLoadingForm) {
    static_cast<void>(folder.file("a.job", "[Job]\nName=a\nIntervalDate=2026/11/21\n"));
    const auto unanswered = script("edit a.job", "timer\nanswer ok\n");
    EXPECT_EQ(unanswered.code, 1);
    EXPECT_TRUE(unanswered.err.starts_with("kestedit: home/script: no answer is queued for message \"Information\" "));
    const auto answered =
        script("edit a.job", "answer ok\nfolder \"/a b\"\nbutton dxSource 0\nbutton dxSource 0\nclose\n");
    const std::string chooser = "folder \"Select source folder:\" \"";
    EXPECT_TRUE(answered.out.ends_with("[Ok] -> Ok\n" + chooser + "\" 69 -> \"/a b\"\n" + chooser +
                                       "/a b\" 69 -> \"\"\nevent SetNewValues \"\"\n"))
        << answered.out;
}

TEST_F(ScriptTest, FolderVariablesThatAreRelativeCountAsUnset) {
    environment = "XDG_CONFIG_HOME=here XDG_DATA_HOME=there";
    EXPECT_EQ(kestedit("script new - <<'EOF'\ncheck chkEditPaths 0\ntype dxName a\nclick cmdSave\nEOF\n").code, 0);
    EXPECT_TRUE(std::filesystem::exists(home() / ".config/kestedit/program.ini"));
    EXPECT_TRUE(std::filesystem::exists(home() / ".local/share/kestedit/a.job"));
    EXPECT_EQ(folder.names(), "home ");
}

TEST_F(ScriptTest, TheLanguageOfTheLocaleIsToldByItsFirstLetters) {
    for (const auto& [locale, caption] :
         {std::pair{"de.UTF-8", "&Speichern"}, {"de_AT@euro", "&Speichern"}, {"den", "&Save"}}) {
        environment = "LC_MESSAGES="s + locale + " LC_ALL=";
        EXPECT_NE(script("new", "print cmdSave.Caption\n").out.find(caption), std::string::npos) << locale;
    }
}

TEST_F(ScriptTest, TextsOfTheProgramStandInTheirPageWhateverTheJobsHave) {
    environment = "LANG=de_DE.UTF-8 LC_ALL=de_DE.UTF-8";
    const auto result =
        script("--code-page 65001 new", "print frmEdit.TextCatalogue(40)\ntype dxName Łódź\nclick cmdSave\n");
    EXPECT_EQ(result.out, "frmEdit.TextCatalogue(40) = \"Überwachung\"\nevent SearchJobs\n");
    EXPECT_NE(test::bytesOf(folder.path() / "Łódź.job").find("Name=Łódź"), std::string::npos);
}

TEST_F(ScriptTest, CharactersOutsideThePageTakeAnAnswer) {
    const std::string type = "type dxName \"Zdjęcia z Łodzi\"\n";
    const auto silent = script("new", type + "click cmdSave\n");
    EXPECT_TRUE(
        silent.err.starts_with("kestedit: home/script:1: no answer is queued for message \"Message\" \"The text "
                               "contains characters that the job file cannot hold: U+0119 ę, U+0141 Ł\\r\\n"))
        << silent.err;
    EXPECT_EQ(silent.err.find("Zdj"), std::string::npos);
    const auto no = script("new", "answer no\n" + type + "click cmdSave\n");
    EXPECT_EQ(no.err,
              "kestedit: home/script:2: The text contains characters that the job file cannot hold: U+0119 ę, "
              "U+0141 Ł\n");
    EXPECT_EQ(silent.code + no.code, 2);
    EXPECT_EQ(folder.names(), "home ");
    EXPECT_EQ(script("new", "answer yes\n" + type + "type dxSource /ä\nclick cmdSave\n").code, 0);
    const std::string file = "Zdjęcia z Łodzi.job";
    EXPECT_TRUE(test::bytesOf(folder.path() / file).starts_with("[Job]\r\nName=Zdjęcia z Łodzi\r\nFrom=/ä\r\n"));
    EXPECT_EQ(script("edit \"" + file + "\"", "print dxName.EditValue\nprint dxSource.EditValue\n").out,
              "dxName.EditValue = \"Zdjęcia z Łodzi\"\ndxSource.EditValue = \"/ä\"\nevent none\n");
    EXPECT_EQ(kestedit("ini get \"" + file + "\" Job From").out, "/Ã¤\n") << "stands in the page that it is told";
    EXPECT_EQ(kestedit("ini get \"" + file + "\" Job From --code-page 65001").out, "/ä\n");
}

TEST_F(ScriptTest, EventsGoToTheDialogInFront) {
    const std::string open = "type dxSource .\nbutton dxSource 1\nprint dlgNewFolder.Caption\n";
    const auto created = script("new", open + "type dxTextEdit1 sub\nclick cmdCreate\nprint dxSource.EditValue\n");
    EXPECT_TRUE(
        created.out.ends_with("\ndxSource.EditValue = \"" + (folder.path() / "sub").string() + "\"\nevent none\n"))
        << created.out << created.err;
    EXPECT_EQ(script("new", open).code, 0);
    EXPECT_TRUE(script("new", open + "close\nprint dxSource.EditValue\n").out.ends_with("\".\"\nevent none\n"));
}

}  // namespace

}  // namespace kestedit
