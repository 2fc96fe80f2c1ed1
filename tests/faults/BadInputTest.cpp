// Files and texts that no user of good will would hand to the program.
#include <chrono>
#include <filesystem>
#include <sys/stat.h>

#include "tests/host/ProgramFixture.h"

namespace kestedit {

namespace {

namespace fs = std::filesystem;

class BadInputTest : public test::ProgramTest {
  protected:
    BadInputTest() {
        environment = "timeout 20";  // what waits for a pipe waits for ever
        EXPECT_EQ(::mkfifo((folder.path() / "pipe.job").c_str(), 0600), 0);
        fs::create_directory(folder.path() / "folder.job");
    }
};

TEST_F(BadInputTest, AJobThatIsNoneIsRefusedAtOnceWithTheReason) {
    static_cast<void>(folder.file("huge.job", "[Job]\r\nName=huge\r\n"));
    fs::resize_file(folder.path() / "huge.job", std::uintmax_t{200} << 20U);
    fs::create_symlink("/dev/zero", folder.path() / "device.job");
    const struct {
        const char* file;
        const char* error;
    } cases[] = {{"huge.job", "read \"huge.job\": File too large"},
                 {"device.job", "read special file \"device.job\": Operation not supported"},
                 {"pipe.job", "read special file \"pipe.job\": Operation not supported"},
                 {"folder.job", "read folder \"folder.job\": Is a directory"}};
    for (const auto& [file, error] : cases) {
        const auto before = std::chrono::steady_clock::now();
        const auto result = script(std::string("edit ") + file, "click cmdSave\n");
        EXPECT_EQ(result.code, 1) << file;
        EXPECT_EQ(result.err, std::string("kestedit: ") + error + '\n');
        EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds{5});
    }
}

TEST_F(BadInputTest, WhatIsNoFileIsNeverSavedOver) {
    const auto pipe = script("new", "type dxName pipe\nanswer yes\nclick cmdSave\n");
    EXPECT_EQ(pipe.code, 1);
    EXPECT_NE(pipe.err.find("script:3: replace special file"), std::string::npos) << pipe.err;
    EXPECT_TRUE(fs::is_fifo(folder.path() / "pipe.job"));
    const auto folderJob = script("new", "type dxName folder\nclick cmdSave\n");
    EXPECT_EQ(folderJob.code, 1);
    EXPECT_NE(folderJob.err.find("script:2: replace folder"), std::string::npos) << folderJob.err;
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"folder.job", "home", "pipe.job"}));
}

TEST_F(BadInputTest, ZerosAreAJobWithoutKeysThatOnlyAnAnswerReplaces) {
    const std::string zeros(100'000, '\0');
    static_cast<void>(folder.file("zeros.job", zeros));
    const std::string lines = "type dxName zeros\ntype dxDest /new\nclick cmdSave\n";
    EXPECT_EQ(script("edit zeros.job", "answer no\n" + lines).code, 0);
    EXPECT_EQ(test::bytesOf(folder.path() / "zeros.job"), zeros);
    EXPECT_EQ(script("edit zeros.job", "answer yes\n" + lines).code, 0);
    EXPECT_TRUE(test::bytesOf(folder.path() / "zeros.job").starts_with("[Job]\r\nName=zeros\r\n"));
    EXPECT_EQ(kestedit("ini get zeros.job Job To").out, "/new\n");

    static_cast<void>(folder.file("zeros.ini", zeros));
    EXPECT_EQ(kestedit("ini set zeros.ini S k v").code, 0);
    EXPECT_EQ(test::bytesOf(folder.path() / "zeros.ini"), zeros + "\r\n[S]\r\nk=v\r\n");
}

TEST_F(BadInputTest, AbsurdNumbersOfAJobAreNotTakenOver) {
    for (const std::string number : {"-1", "99999999999999999999999", "9223372036854775807", "-9223372036854775808",
                                     "4294967296", "1e99", "0x10", "", "\xFF"}) {
        std::string job = "[Job]\r\nName=a\r\n";
        for (const char* const key :
             {"SubFolder",   "HFiles1",     "AttrSetSource", "DestZipExist", "FreeSpaceVal", "ExecMaxSec",
              "Action",      "FileDateOpt", "FileSize",      "PickRenamer",  "ZipGrade",     "FileAgeDiff",
              "EFSelect",    "MonDelay",    "MonWatch",      "Interval",     "IntTimeType",  "IntWeekDay",
              "IntMonthDay", "DateFrom",    "IntervalDate",  "IntervalTime"}) {
            job += std::string(key) + '=' + number + "\r\n";
        }
        static_cast<void>(folder.file("a.job", job));
        const auto saved = script("edit a.job", "answer ok\nspin dxHours up\nspin dxMinutes down\nclick cmdSave\n");
        EXPECT_EQ(saved.code, 0) << number << ": " << saved.err;
        const auto value = [&](const std::string& key) { return kestedit("ini get a.job Job " + key).out; };
        EXPECT_EQ(value("SubFolder"), "0\n") << number;
        EXPECT_EQ(value("Action"), "0\n") << number;
        EXPECT_EQ(value("AttrSetSource"), "0\n") << number;
        EXPECT_GE(std::stoll("0" + value("FreeSpaceVal")), 2000) << number;
    }
}

TEST_F(BadInputTest, AbsurdSettingsAreNotTakenOver) {
    for (const std::string number :
         {"-5", "99999999999999999999999", "16777216", "1e3", "0x", "abc", "\"", "\xFF\xFE"}) {
        static_cast<void>(folder.file("s.ini", "[EditWin]\nShowIcons=" + number + "\nchkEditPaths=" + number +
                                                   "\n[Global]\nRowBgCol=" + number + "\nRowTxtCol=" + number + '\n'));
        const auto shown =
            script("--settings s.ini new", "print frmEdit.RowColour\nprint frmEdit.RowTextColour\nnodes\n");
        EXPECT_EQ(shown.code, 0) << number << ": " << shown.err;
        const bool startsWithNumber = number == "1e3" || number == "0x";  // what stands ahead of the letter counts
        if (!startsWithNumber) {
            EXPECT_TRUE(shown.out.starts_with("frmEdit.RowColour = 14737632\nfrmEdit.RowTextColour = 0\nnode 0 "))
                << number << ": " << shown.out;
        }
    }
}

TEST_F(BadInputTest, NoLanguageFileKeepsTheEditorFromWorking) {
    static_cast<void>(folder.file("other.ini", "[Desktop Entry]\nName=Other\n[frmEdit]\nt0=" + std::string(70000, 'x') +
                                                   "\nt1=%s%n\nt6\n=t7\nt8==\n[All]\nt0=\xFF\xFE\n[Weekdays]\nt0=\n"));
    static_cast<void>(folder.file("zeros", std::string(5000, '\0')));
    for (const char* const file : {"missing", "other.ini", "zeros", "pipe.job", "folder.job", "/dev/zero"}) {
        const auto saved = script(std::string("--language ") + file + " new",
                                  "type dxName night\nprint cmdSave.Caption\nclick cmdSave\n");
        EXPECT_EQ(saved.code, 0) << file << ": " << saved.err;
        EXPECT_NE(saved.out.find("cmdSave.Caption = \"&Speichern\"\n"), std::string::npos) << saved.out;
        EXPECT_EQ(kestedit("ini get night.job Job Name").out, "night\n") << file;
        fs::remove(folder.path() / "night.job");
    }
}

TEST_F(BadInputTest, NoNameLeadsElsewhere) {
    for (const std::string character :
         {"<", ">", "|", "/", "\\\\", ":", "´", "~", "^", "¨", "¦", "`", "*", "?", "\\\""}) {
        const auto refused = script("new", "type dxName \"a" + character +
                                               "b\"\nanswer ok\nclick cmdSave\nprint dxName.EditValue\n"
                                               "print frmEdit.FocusedControl\n");
        EXPECT_EQ(refused.code, 0) << refused.err;
        EXPECT_NE(refused.out.find("dxName.EditValue = \"a" + character + "b\"\nfrmEdit.FocusedControl = \"dxName\""),
                  std::string::npos)
            << refused.out;
    }
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"folder.job", "home", "pipe.job"}));

    const auto tooLong = script("new", "type dxName " + std::string(300, 'n') + "\nclick cmdSave\n");
    EXPECT_EQ(tooLong.code, 1);
    EXPECT_NE(tooLong.err.find("File name too long"), std::string::npos) << tooLong.err;
    for (const std::string name : {"..", ".", "a\\r\\n[Info]"}) {
        EXPECT_EQ(script("new", "type dxName \"" + name + "\"\nclick cmdSave\n").code, 0) << name;
    }
    EXPECT_EQ(folder.names(),
              (std::vector<std::string>{"...job", "..job", "a [Info].job", "folder.job", "home", "pipe.job"}));
    EXPECT_EQ(kestedit("ini get 'a [Info].job' Info ProgVersion --default none").out,
              kestedit("ini get ..job Info ProgVersion").out);
}

TEST_F(BadInputTest, PathsComeBackAsTheyWereTyped) {
    for (const std::string path : {"/a b/c  d", " /leading and trailing ",
                                   "/gr\xC3\xB6\xC3\x9F"
                                   "e/\xE2\x82\xAC",
                                   "'/quoted'", "\\\"/double\\\"", "/a;b#c=d[e]", "\\t/tabs\\t", "/%s%n"}) {
        EXPECT_EQ(script("new", "type dxName p\nanswer yes\ntype dxSource \"" + path + "\"\nclick cmdSave\n").code, 0);
        const auto loaded = script("edit p.job", "print dxSource.EditValue\n");
        EXPECT_EQ(loaded.out, "dxSource.EditValue = \"" + path + "\"\nevent none\n");
    }
}

TEST_F(BadInputTest, WhatAJobCannotHoldIsRefusedAndTheTextBeforeStays) {
    const std::string foreign = "/tmp/\xE5\xAD\x97";
    const std::string typed = "type dxSource /before\n";
    const std::string cases[] = {
        "type dxSource " + foreign + '\n',
        "folder " + foreign + "\nbutton dxSource 0\n",
        "folder \"/tmp/two\\nlines\"\nbutton dxSource 0\n",
        "folder \"/tmp/two\\rlines\"\nbutton dxSource 0\n",
        "button dxSource 1\ntype dxTextEdit1 \xE5\xAD\x97\xE5\xAD\x97\n",
        "button dxSource 1\ntype dxTextEdit1 \"two\\nlines\"\n",
        "check chkExecDo 1\nfile " + foreign + "\nbutton dxExecPath 0\n",
    };
    for (const std::string& lines : cases) {
        const auto refused = script("new", typed + lines);
        EXPECT_EQ(refused.code, 1) << lines;
        EXPECT_NE(refused.err.find("cannot"), std::string::npos) << refused.err;
        const std::string all = typed + lines;
        const auto line = std::to_string(std::count(all.begin(), all.end(), '\n'));
        EXPECT_NE(refused.err.find("home/script:" + line + ": "), std::string::npos) << refused.err;
    }
    const auto kept = script("new", typed + "type dxSource " + foreign + "\nprint dxSource.EditValue\n");
    EXPECT_EQ(kept.out, "event none\n");
    EXPECT_EQ(script("--code-page 65001 new", "type dxName u\ntype dxSource " + foreign + "\nclick cmdSave\n").code, 0);
    EXPECT_EQ(kestedit("ini get u.job Job From --code-page 65001").out, foreign + "\n");
}

}  // namespace

}  // namespace kestedit
