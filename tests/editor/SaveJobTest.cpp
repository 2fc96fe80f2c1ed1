// Saving: what is checked, what is asked, which file is written, and what a failure leaves.
#include <sys/stat.h>

#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

namespace fs = std::filesystem;

struct SaveJob : test::EditorTest {
    std::string stored(std::string_view key, std::string_view job = "a") {
        return IniStore{}.read(jobFile(job), "Job", key, "(none)", 256);
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
    void expectFailureKeepsEverything() {
        const std::string onDisk = jobNames() + values.Mode + values.JobFile;
        const std::string before = test::dumpOf(form());
        EXPECT_THROW(click("cmdSave"), std::system_error);
        EXPECT_TRUE(form().isOpen());
        EXPECT_EQ(test::dumpOf(form()), before);
        EXPECT_EQ(jobNames() + values.Mode + values.JobFile, onDisk);
    }
};

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
    EXPECT_EQ(stored("Name", "b"), "c");
    // A host whose two properties lead to different jobs: the one that was not opened is another's.
    fs::create_directory(folder.path() / "other");
    putJob("../other/a", "[Job]\nName=a\n");
    values.JobFile = jobFile("../other/a").string();
    show("Edit", 4);
    EXPECT_NE(save({Answer::no}), "saved");
    EXPECT_EQ(jobBytes("../other/a"), "[Job]\nName=a\n");
}

TEST_F(SaveJob, ALinkIsRenamedAndWrittenAndNotTheJobWhoseNameItsFileHolds) {
    const std::string night = "[Job]\nName=Night\n";
    fs::create_directory(folder.path() / "other");
    for (const std::string name : {"", "Day"}) {
        putJob("Night", night);
        putJob("../other/link", night);
        if (name.empty()) fs::create_symlink("../other/link.job", jobFile("link"));
        edit("link");
        if (!name.empty()) type("dxName", name);
        type("dxDest", "/saved");
        EXPECT_EQ(save(), "saved");
        EXPECT_EQ(jobNames(), name.empty() ? "Night.job link.job " : "Day.job Night.job ");
        EXPECT_EQ(jobBytes("Night"), night);
        EXPECT_EQ(ini.read(values.JobFile, "Job", "To", "", 99), "/saved");
    }
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

TEST_F(SaveJob, AFailedWriteKeepsFormAndFilesAndASecondOneMaySucceed) {
    create();
    type("dxName", "a");
    fs::create_directory(jobFile("a"));
    expectFailureKeepsEverything();
    fs::remove(jobFile("a"));
    EXPECT_EQ(save(), "saved");
    EXPECT_EQ(values.JobFile, jobFile("a"));
    edit("a");
    type("dxName", "b");
    values.JobDir = (jobs / "missing").string();
    expectFailureKeepsEverything();
}

}  // namespace
}  // namespace kestedit
