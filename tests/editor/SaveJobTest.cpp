// Saving: what is checked, what is asked, which file is written, and what a failure leaves.
#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

using test::dumpOf;

namespace fs = std::filesystem;

struct SaveJob : test::EditorTest {
    [[nodiscard]] std::string nameIn(std::string_view job) {
        return ini.read(jobFile(job), "Job", "Name", "(none)", 256);
    }
    /// Saves with these answers queued and tells the last message; empty when there was none.
    std::string save(std::deque<Answer> answers = {}) {
        prompts.messages.clear();
        prompts.answers = std::move(answers);
        click("cmdSave");
        EXPECT_TRUE(prompts.answers.empty());
        return prompts.messages.empty() ? "" : prompts.messages.back().text;
    }
    std::string report(std::size_t entry) { return text(entry) + "\r\n" + text(22) + "\r\n" + text(23); }
    void expectFailureKeepsEverything() {
        const std::string form = dumpOf(this->form());
        const std::string names = jobNames();
        const ComponentValues before = values;
        EXPECT_THROW(click("cmdSave"), std::system_error);
        EXPECT_TRUE(this->form().isOpen());
        EXPECT_EQ(test::differences(form, dumpOf(this->form())), "");
        EXPECT_EQ(jobNames(), names);
        EXPECT_EQ(values.Mode + values.JobFile, before.Mode + before.JobFile);
    }
};

TEST_F(SaveJob, NewJobGoesToAFileOfItsName) {
    create();
    type("dxName", "  Größe 1 ");
    EXPECT_EQ(save(), "");
    EXPECT_FALSE(form().isOpen());
    EXPECT_EQ(jobNames(), "Größe 1.job ");
    EXPECT_EQ(nameIn("Größe 1"), "Größe 1");
    EXPECT_EQ(values.JobFile, jobFile("Größe 1"));
    EXPECT_EQ(values.Mode, "New");
}

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
        EXPECT_EQ(prompts.messages.back().buttons, Buttons::yesNo);
        EXPECT_TRUE(form().isOpen());
        EXPECT_EQ(jobBytes("b"), mine);
        EXPECT_EQ(values.Mode, isNew ? "New" : "Edit");
        save({Answer::yes});
        EXPECT_FALSE(form().isOpen());
        EXPECT_EQ(jobNames(), "a.job b.job ") << "the job that was opened stays";
        EXPECT_EQ(nameIn("b"), "b");
        EXPECT_EQ(jobBytes("b").find("Mine"), std::string::npos) << "the file is a new one";
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
    EXPECT_EQ(save({Answer::proceed}), empty + rest);
    EXPECT_EQ(prompts.messages.back().buttons, Buttons::cancelRetryContinue);
    EXPECT_TRUE(form().isOpen());
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
    putJob("a", "; by hand\n[Job]\nName=a\nMine=1\n");
    edit("a");
    EXPECT_EQ(save(), "");
    EXPECT_TRUE(jobBytes("a").starts_with("; by hand\n[Job]\nName=a\nMine=1\nFrom=\n"));
    EXPECT_EQ(values.Mode, "Edit");
    edit("a");
    type("dxName", "b");
    EXPECT_EQ(save(), "");
    EXPECT_EQ(jobNames(), "b.job ");
    EXPECT_EQ(nameIn("b"), "b");
    EXPECT_EQ(values.Mode, "New");
    EXPECT_EQ(values.JobFile, jobFile("b"));
}

TEST_F(SaveJob, RenamingReachesNoFileElsewhere) {
    putJob("a", "[Job]\nName=../a\n");
    std::filesystem::copy(jobFile("a"), jobFile("../a"));
    edit("a");
    type("dxName", "b");
    EXPECT_EQ(save(), "");
    EXPECT_EQ(jobNames(), "a.job b.job ");
    EXPECT_TRUE(std::filesystem::exists(jobFile("../a")));
}

TEST_F(SaveJob, AnyOtherModeChecksAndClosesWithoutWriting) {
    show("new", 4);
    type("dxName", "a?");
    save({Answer::ok});
    EXPECT_TRUE(form().isOpen());
    type("dxName", "a");
    EXPECT_EQ(save(), "");
    EXPECT_FALSE(form().isOpen());
    EXPECT_EQ(jobNames(), "");
    EXPECT_EQ(values.Mode, "new");
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
    type("dxName", "Ä.(1) [é]+');#&%$");
    save();
    EXPECT_FALSE(form().isOpen());
}

TEST_F(SaveJob, RequiredFieldsAreReportedOneByOneInTheirOrder) {
    struct Row {
        std::string_view field;
        std::size_t message;
        std::string_view frame, dropped, good;
    };
    constexpr Row rows[] = {{"dxRenamer", 24, "fraExisting", "a.b", "ab"},
                            {"dxFileName", 25, "fraFiles", "a|b", "ab"},
                            {"dxFolderMatch", 37, "fraFolders", "", "ab"},
                            {"dxExt", 26, "fraExtensions", "a?", "a"}};
    create();
    type("dxName", "a");
    check("chkSubFolder");
    choose("optExist", 2);
    for (const auto group : {"optFileMatch", "optFolderMatch", "optExt"})
        choose(group, 2);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.field);
        const auto expectReport = [&] {
            node(0);
            EXPECT_EQ(save({Answer::ok}), report(row.message));
            EXPECT_EQ(visibleFrames(), row.frame);
            EXPECT_EQ(form().FocusedControl, &at(row.field));
        };
        expectReport();
        if (!row.dropped.empty()) type(row.field, row.dropped);
        if (!row.dropped.empty()) expectReport();  // once, then its flag is down
        type(row.field, row.good);
    }
    EXPECT_EQ(save(), "");
    EXPECT_FALSE(form().isOpen());
}

TEST_F(SaveJob, FolderPatternIsReportedAgainUntilRegEx) {
    create();
    type("dxName", "a");
    check("chkSubFolder");
    choose("optFolderMatch", 1);
    choose("optFileMatch", 1);
    type("dxFolderMatch", "a|b");
    type("dxFolderMatch", "clean");
    type("dxFileName", "a.txt");
    form().InvalidFileNameChars = false;
    EXPECT_EQ(save({Answer::ok}), report(37));
    EXPECT_EQ(save({Answer::ok}), report(37));
    choose("optFileMatch", 0);
    type("dxFolderMatch", "cleaner");
    form().InvalidFileNameChars = true;
    EXPECT_EQ(save({Answer::ok}), report(37));
    EXPECT_FALSE(form().InvalidFileNameChars) << "the other flag comes down";
    check("chkRegExFolder");
    check("chkRegExFolder", 0);
    EXPECT_EQ(save(), "");
    EXPECT_FALSE(form().isOpen());
}

TEST_F(SaveJob, AFailedWriteKeepsFormAndFiles) {
    create();
    type("dxName", "a");
    type("dxComment", "typed");
    values.JobDir = (jobs / "missing").string();
    expectFailureKeepsEverything();
    values.JobDir = jobs.string();
    fs::create_directory(jobFile("a"));
    expectFailureKeepsEverything();
    fs::remove(jobFile("a"));
    save();
    EXPECT_EQ(nameIn("a"), "a") << "and can be saved once the reason is gone";
    edit("a");
    fs::remove(jobFile("a"));
    fs::create_directory(jobFile("a"));
    expectFailureKeepsEverything();
}

}  // namespace
}  // namespace kestedit
