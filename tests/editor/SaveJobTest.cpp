// Saving: what is checked, what is asked, which file is written, and what a failure leaves.
#include <sys/stat.h>

#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

namespace fs = std::filesystem;

struct SaveJob : test::EditorTest {
    [[nodiscard]] std::string nameIn(std::string_view job) {
        return ini.read(jobFile(job), "Job", "Name", "(none)", 256);
    }
    /// Saves with these answers queued and tells the last message, or "saved" when there was none and the form closed.
    std::string save(std::deque<Answer> answers = {}) {
        prompts.messages.clear();
        prompts.answers = std::move(answers);
        click("cmdSave");
        EXPECT_TRUE(prompts.answers.empty());
        if (!prompts.messages.empty()) return prompts.messages.back().text;
        return form().isOpen() ? "" : "saved";
    }
    std::string report(std::size_t entry) { return text(entry) + "\r\n" + text(22) + "\r\n" + text(23); }
    void expectFailureKeepsEverything() {
        const std::string onDisk = jobNames() + values.Mode + values.JobFile;
        const std::string before = test::dumpOf(form());
        EXPECT_THROW(click("cmdSave"), std::system_error);
        EXPECT_TRUE(form().isOpen());
        EXPECT_EQ(test::dumpOf(form()), before);
        EXPECT_EQ(jobNames() + values.Mode + values.JobFile, onDisk);
    }
};

TEST_F(SaveJob, AsksBeforeItTakesTheFileOfAnother) {
    const std::string mine = "[Job]\nName=b\nMine=1\n";
    for (const bool isNew : {true, false}) {
        putJob("a", "[Job]\nName=a\n");
        putJob("b", mine);
        if (!isNew) values.Language.clear();  // the built-in texts word the two questions differently
        isNew ? create() : edit("a");
        type("dxName", "b");
        EXPECT_EQ(save({Answer::no}), "Ein Auftrag mit diesem Namen existiert schon!\r\nMöchten Sie " +
                                          std::string(isNew ? "den existierenden" : "diesen") +
                                          " Auftrag überschreiben?");
        EXPECT_TRUE(form().isOpen());
        EXPECT_EQ(jobBytes("b"), mine);
        EXPECT_EQ(values.Mode, isNew ? "New" : "Edit");
        save({Answer::yes});
        EXPECT_FALSE(form().isOpen());
        EXPECT_EQ(jobNames(), "a.job b.job ") << "the job that was opened stays";
        EXPECT_TRUE(jobBytes("b").starts_with("[Job]\r\nName=b\r\nFrom=")) << "the file is a new one";
        EXPECT_EQ(values.Mode, "New");
    }
}

TEST_F(SaveJob, EmptyNameOfAnEditedJob) {
    const std::string empty = "Das Feld 'Name des Autrages' darf nicht leer sein.";
    const std::string last = "Möchten Sie den letzten Namen verwenden?";
    const std::string rest =
        "\r\nDer Name wird als Dateiname benutzt.\r\nBitte geben Sie einen Namen für Ihren Autrag ein.\r\n\r\n" + last;
    create();
    type("dxName", "   ");
    EXPECT_EQ(save({Answer::ok}), empty + rest);
    EXPECT_EQ(prompts.messages.back().buttons, Buttons::ok);
    putJob("a", "[Job]\nName=a\n");
    // With a language file, what that has under the key of the last line.
    for (const auto& [language, first] : {std::pair{values.Language, last}, {"", empty}}) {
        values.Language = language;
        edit("a");
        type("dxName", " ");
        form().onFocused(form().dxSource);
        EXPECT_EQ(save({Answer::no}), first + rest);
        EXPECT_EQ(prompts.messages.back().buttons, Buttons::yesNo);
        EXPECT_EQ(form().dxName.text(), " ");
        EXPECT_EQ(form().FocusedControl, &form().dxName);
        save({Answer::yes});
        EXPECT_EQ(form().dxName.text(), "a");
        EXPECT_TRUE(form().isOpen());
        EXPECT_EQ(jobNames() + jobBytes("a"), "a.job [Job]\nName=a\n");
    }
}

TEST_F(SaveJob, EditedJobKeepsItsFileUntilItIsRenamed) {
    putJob("a", "; by hand\n[Job]\nName=a\nMine=1\nZipGrade=9\n");
    edit("a");
    EXPECT_EQ(save(), "saved");
    EXPECT_TRUE(jobBytes("a").starts_with("; by hand\n[Job]\nName=a\nMine=1\nZipGrade=9\nFrom=\n")) << jobBytes("a");
    EXPECT_EQ(values.Mode, "Edit");
    edit("a");
    type("dxName", "b");
    EXPECT_EQ(save(), "saved");
    EXPECT_EQ(jobNames(), "b.job ");
    EXPECT_EQ(nameIn("b"), "b");
    EXPECT_EQ(values.Mode + values.JobFile, "New" + jobFile("b").string());
    putJob("../a", "");
    putJob("c", "[Job]\nName=../a\nMine=1\n");
    edit("c");
    type("dxName", "d");
    EXPECT_EQ(save(), "saved");
    EXPECT_EQ(jobNames(), "b.job d.job ");
    EXPECT_TRUE(jobBytes("d").starts_with("[Job]\nName=d\nMine=1\n")) << "lines that no save knows move along";
    EXPECT_TRUE(fs::exists(jobFile("../a"))) << "to rename reaches no file elsewhere";
}

TEST_F(SaveJob, TheFileThatWasOpenedIsTheOneThatIsRenamedWhateverItsNameSays) {
    struct Row {
        const char* opened;
        const char* stored;  ///< the line of the name
        const char* typed;   ///< null: the name stays
        const char* left;
    };
    const std::string night = "[Job]\nName=Night\n";
    for (const Row& row : {Row{"Copy", "Name=Night", "Day", "Day.job Night.job "},
                           {"Copy", "Name=Night", "Copy", "Copy.job Night.job "},
                           {"Copy", "Name=Night", nullptr, "Copy.job Night.job "},
                           {"Copy", "Name=\" Night \"", nullptr, "Copy.job Night.job "},
                           {"Copy", "", "Copy", "Copy.job Night.job "},
                           {"Copy", "", "Day", "Day.job Night.job "},
                           {"Copy", "Name=\" Copy \"", " Copy", "Copy.job Night.job "},
                           {"link", "Name=Night", "Day", "Day.job Night.job "},
                           {"link", "Name=Night", nullptr, "Night.job link.job "}}) {
        SCOPED_TRACE(std::string(row.opened) + ", " + row.stored + ", " + (row.typed ? row.typed : "kept"));
        fs::remove_all(jobs);
        fs::create_directories(folder.path() / "other");
        fs::create_directory(jobs);
        putJob("Night", night);
        putJob("../other/link", std::string("[Job]\n") + row.stored + "\n");
        if (std::string_view(row.opened) == "link") fs::create_symlink("../other/link.job", jobFile("link"));
        if (std::string_view(row.opened) == "Copy") putJob("Copy", std::string("[Job]\n") + row.stored + "\n");
        edit(row.opened);
        if (row.typed) type("dxName", row.typed);
        type("dxDest", "/saved");
        EXPECT_EQ(save(), "saved");
        EXPECT_EQ(jobNames(), row.left);
        EXPECT_EQ(jobBytes("Night"), night);
        EXPECT_EQ(ini.read(values.JobFile, "Job", "To", "", 99), "/saved");
    }
}

TEST_F(SaveJob, OwnFilesAreKnownThroughLinksAndOthersAreNot) {
    fs::create_directory_symlink(jobs, folder.path() / "way");
    putJob("a", "[Job]\n");
    values.JobDir = (folder.path() / "way").string();
    edit("a");
    type("dxName", "a");
    EXPECT_EQ(save(), "saved") << "another way to the folder";
    putJob("b", "[Job]\nName=a\n");
    fs::create_symlink("b.job", jobFile("c"));
    edit("b");
    type("dxName", "c");
    EXPECT_EQ(save(), "saved") << "a link to the job itself";
    EXPECT_EQ(jobNames(), "a.job b.job c.job ");
    EXPECT_EQ(nameIn("b"), "c");
    // A host whose two properties lead to different jobs: the one that was not opened is another's.
    fs::create_directory(folder.path() / "other");
    putJob("../other/a", "[Job]\nName=a\n");
    values.JobFile = jobFile("../other/a").string();
    show("Edit", 4);
    EXPECT_NE(save({Answer::no}), "saved");
    EXPECT_EQ(jobBytes("../other/a"), "[Job]\nName=a\n");
}

TEST_F(SaveJob, PermissionsMoveAlongAndPasswordsReachNobodyNew) {
    const mode_t mask = ::umask(022);
    const auto mode = [&](std::string_view job) {
        return static_cast<unsigned>(fs::status(jobFile(job)).permissions());
    };
    putJob("a", "[Job]\nName=a\n");
    fs::permissions(jobFile("a"), fs::perms{0600});
    edit("a");
    type("dxName", "b");
    save();
    EXPECT_EQ(mode("b"), 0600U) << "renamed";
    for (const auto& [password, permissions] : {std::pair{"", 0644U}, {"secret", 0600U}}) {
        create();
        type("dxName", "new");
        act(3);
        type("dxZipPwd", password);
        EXPECT_NE(form().dxZipPwd.Notice, "");
        save();
        EXPECT_EQ(mode("new"), permissions) << password;
        fs::remove(jobFile("new"));
    }
    putJob("wide", "[Job]\nName=wide\nAction=4\n");
    edit("wide");
    type("dxDestZipPwd", "secret");
    save();
    EXPECT_EQ(mode("wide"), 0644U) << "whoever may read it, shall";
    edit("b");
    type("dxName", "wide");
    act(3);
    type("dxZipPwd", "secret");
    save({Answer::yes});
    EXPECT_EQ(mode("wide"), 0600U) << "of a job that nobody else could read";
    ::umask(mask);
}

TEST_F(SaveJob, AJobThatCannotBeReadIsToldAndNeverReplacedWithoutAQuestion) {
    putJob("a", "[Other]\nName=a\n");
    for (const std::string job : {"a", "missing"}) {
        edit(job);
        EXPECT_EQ(form().dxSource.text(), "");
        EXPECT_NE(form().dxName.Notice.find(job + ".job\": "), std::string::npos) << form().dxName.Notice;
    }
    edit("a");
    type("dxName", "a");
    EXPECT_NE(save({Answer::no}), "saved");
    EXPECT_EQ(jobBytes("a"), "[Other]\nName=a\n");
    type("dxName", "b");
    EXPECT_EQ(save(), "saved");
    EXPECT_EQ(jobNames(), "a.job b.job ");
}

/// Another program writes to the job while it is edited.
struct SaveChangedJob : SaveJob {
    SaveChangedJob() {
        create();
        type("dxName", "a");
        for (const auto& [field, text] : {std::pair{"dxSource", "/from"}, {"dxDest", "/to"}})
            type(field, text);
        save();
        edit("a");
    }
    void other(std::string_view key, std::string_view value, std::string_view section = "Job") const {
        ASSERT_FALSE(IniStore{}.write(jobFile("a"), section, key, value));
    }
    std::string stored(std::string_view key, std::string_view job = "a") {
        return IniStore{}.read(jobFile(job), "Job", key, "(none)", 256);
    }
    std::string question(const std::string& options) {
        return "Ein anderes Programm hat diesen Auftrag seit dem Öffnen geändert, auch dort, wo Sie ihn geändert haben:"
               "\r\n" +
               options + "\r\n\r\nIhre Werte behalten? Nein behält die des anderen Programms.";
    }
};

TEST_F(SaveChangedJob, KeepsWhatOnlyTheOtherChanged) {
    for (const char* name : {"a", "b"}) {
        edit("a");
        type("dxName", name);
        type("dxDest", "/mine");
        other("From", "/theirs");
        other("Mine", "1");
        other("Key", "1", "Foreign");
        EXPECT_EQ(save(), "saved");
        EXPECT_EQ(stored("From", name) + stored("To", name) + stored("Mine", name), "/theirs/mine1");
        EXPECT_EQ(ini.read(jobFile(name), "Foreign", "Key", "", 9), "1");
    }
    EXPECT_EQ(jobNames(), "b.job ");
}

TEST_F(SaveChangedJob, AsksOnceWhoseValuesStandByTheNamesOfTheOptions) {
    const auto change = [&] {
        putJob("a", "[Job]\nName=a\nFrom=/from\nTo=/to\n");
        edit("a");
        type("dxSource", "/mine");
        act(3);
        check("chkPreview");
        type("dxZipPwd", "mine");
        type("dxComment", "the same");
        for (const auto& [key, value] : {std::pair{"From", "/theirs"},
                                         {"Action", "1"},
                                         {"ZipPwd", "theirs"},
                                         {"Comment", "the same"},
                                         {"To", "/later"}})
            other(key, value);
    };
    const std::string options = "\r\n- Quellverzeichnis\r\n- Archiv erstellen: Passwort\r\n- Modus";
    change();
    EXPECT_EQ(save({Answer::cancel}), question(options));
    EXPECT_EQ(prompts.messages.back().buttons, Buttons::yesNoCancel);
    EXPECT_TRUE(form().isOpen());
    EXPECT_EQ(stored("From") + stored("Action"), "/theirs1");
    EXPECT_EQ(form().dxSource.text(), "/mine");
    save({Answer::yes});
    EXPECT_EQ(prompts.messages.size(), 1U);
    EXPECT_EQ(stored("From") + stored("Action") + stored("ZipPwd") + stored("To"), "/mine3mine/later");
    change();
    save({Answer::no});
    EXPECT_EQ(stored("From") + stored("Action") + stored("ZipPwd") + stored("To"), "/theirs1theirs/later");
    EXPECT_EQ(stored("DoPreview"), "1") << "what only the user changed";
    EXPECT_FALSE(form().isOpen());
}

TEST_F(SaveChangedJob, AnAnswerHoldsForWhatItWasGivenOn) {
    type("dxSource", "/mine");
    other("From", "/theirs");
    prompts.meanwhile = [&] { other("From", "/again"); };
    save({Answer::no, Answer::no});
    EXPECT_EQ(prompts.messages.size(), 2U);
    EXPECT_EQ(stored("From"), "/again");
}

TEST_F(SaveChangedJob, ANewNameIsTheFilesNameWhateverTheAnswer) {
    type("dxName", "b");
    type("dxSource", "/mine");
    other("Name", "theirs");
    other("From", "/theirs");
    save({Answer::no});
    EXPECT_EQ(stored("Name", "b") + stored("From", "b"), "b/theirs");
    EXPECT_EQ(jobNames(), "b.job ");
}

TEST_F(SaveChangedJob, WhatRunnersWriteStands) {
    for (const auto& [key, value] : {std::pair{"RunState", "1"}, {"Counter", "7"}, {"IntState", "21.11.2026"}})
        other(key, value);
    save();
    EXPECT_EQ(stored("RunState") + stored("Counter") + stored("IntState"), "1721.11.2026");
    edit("a");
    number("dxHours", 2);
    other("Counter", "6");
    EXPECT_EQ(save(), "saved") << "the counter of another interval counts no longer";
    EXPECT_EQ(stored("Counter"), "120");
}

TEST_F(SaveChangedJob, AFileThatHasGoneIsWrittenAnewAndAFolderIsNone) {
    for (const char* name : {"a", "b"}) {
        putJob("a", "[Job]\nName=a\nFrom=/from\n");
        edit("a");
        type("dxName", name);
        fs::remove(jobFile("a"));
        EXPECT_EQ(save(), "saved");
        EXPECT_EQ(jobNames(), std::string(name) + ".job ");
        EXPECT_EQ(stored("From", name), "/from");
        fs::remove(jobFile(name));
    }
    putJob("a", "[Job]\nName=a\n");
    edit("a");
    fs::remove(jobFile("a"));
    fs::create_directory(jobFile("a"));
    expectFailureKeepsEverything();
}

TEST_F(SaveJob, NameWithACharacterThatNoFileNameHas) {
    create(23);
    for (const std::string bad : {"<", ">", "|", "/", "\\", ":", "´", "~", "^", "¨", "¦", "`", "*", "?", "\""}) {
        node(5);
        type("dxName", "a" + bad + "b");
        EXPECT_EQ(save({Answer::ok}), report(21)) << bad;
        EXPECT_EQ(visibleFrames(), "fraPath") << "the page of the name in this view";
        EXPECT_EQ(form().FocusedControl, &form().dxName);
    }
}

TEST_F(SaveJob, NameOfAFileThatNobodySeesOrThatIsNone) {
    create();
    for (const auto& [name, reason] : {std::pair{".", "Punkt"},
                                       {"..", "Punkt"},
                                       {" .Night", "Punkt"},
                                       {"a\tb", "Steuerzeichen"},
                                       {"a\x1B", "Steuerzeichen"},
                                       {"a\x7F", "Steuerzeichen"}}) {
        type("dxName", name);
        EXPECT_NE(form().dxName.Notice.find(reason), std::string::npos) << form().dxName.Notice;
        EXPECT_EQ(save({Answer::ok}), report(21)) << name;
    }
    EXPECT_EQ(jobNames(), "");
    type("dxName", "a.b");
    EXPECT_EQ(form().dxName.Notice, "");
    EXPECT_EQ(save(), "saved");
}

TEST_F(SaveJob, RequiredFieldsAreReportedOneByOneInTheirOrder) {
    const std::tuple<std::string_view, std::size_t, std::string_view, bool FormModel::*> rows[] = {
        {"dxRenamer", 24, "fraExisting", &FormModel::InvalidRenamerChars},
        {"dxFileName", 25, "fraFiles", &FormModel::InvalidFileNameChars},
        {"dxFolderMatch", 37, "fraFolders", nullptr},
        {"dxExt", 26, "fraExtensions", &FormModel::InvalidExtChars}};
    create();
    type("dxName", "a");
    check("chkSubFolder");
    choose("optExist", 2);
    for (const auto group : {"optFileMatch", "optFolderMatch", "optExt"})
        choose(group, 2);
    for (const auto& [field, message, frame, dropped] : rows) {
        EXPECT_EQ(save({Answer::ok}), report(message)) << "empty";
        EXPECT_EQ(visibleFrames(), frame);
        EXPECT_EQ(form().FocusedControl, &at(field));
        type(field, "ab");
        if (!dropped) continue;
        form().*dropped = true;
        EXPECT_EQ(save({Answer::ok}), report(message)) << "a character was dropped";
    }
    EXPECT_EQ(save(), "saved") << "each is reported once";
}

TEST_F(SaveJob, FolderPatternIsReportedAgainUntilRegEx) {
    create();
    type("dxName", "a");
    check("chkSubFolder");
    choose("optFolderMatch", 1);
    type("dxFolderMatch", "a|b");
    type("dxFolderMatch", "clean");
    for (const bool dropped : {false, true}) {
        form().InvalidFileNameChars = dropped;
        EXPECT_EQ(save({Answer::ok}), report(37));
        EXPECT_FALSE(form().InvalidFileNameChars) << "the other flag comes down";
    }
    check("chkRegExFolder");
    check("chkRegExFolder", 0);
    EXPECT_EQ(save(), "saved");
}

TEST_F(SaveJob, AFailedWriteKeepsFormAndFilesAndASecondOneMaySucceed) {
    const std::string name = "Größe.(1) [é]+');#&%$";
    create();
    type("dxName", "  " + name + " ");
    fs::create_directory(jobFile(name));
    expectFailureKeepsEverything();
    fs::remove(jobFile(name));
    EXPECT_EQ(save(), "saved");
    EXPECT_EQ(nameIn(name), name);
    EXPECT_EQ(values.JobFile, jobFile(name));
    edit(name);
    type("dxName", "b");
    values.JobDir = (jobs / "missing").string();
    expectFailureKeepsEverything();
}

}  // namespace
}  // namespace kestedit
