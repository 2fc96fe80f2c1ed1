// Saving: what is checked, what is asked, which file is written, and what a failure leaves.
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
    putJob("c", "[Job]\nName=../a\n");
    edit("c");
    type("dxName", "d");
    EXPECT_EQ(save(), "saved");
    EXPECT_EQ(jobNames(), "b.job c.job d.job ");
    EXPECT_TRUE(fs::exists(jobFile("../a"))) << "to rename reaches no file elsewhere";
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
