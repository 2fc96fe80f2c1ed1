// Files and texts that no user of good will would hand to the program.
#include <sys/stat.h>

#include "tests/host/ProgramFixture.h"

namespace kestedit {

namespace {

namespace fs = std::filesystem;

using BadInputTest = test::ProgramTest;

TEST_F(BadInputTest, AJobThatIsNoneIsRefusedAtOnceWithTheReason) {
    environment = "timeout 5";  // what waits for a pipe waits for ever
    ASSERT_EQ(::mkfifo((folder.path() / "pipe.job").c_str(), 0600), 0);
    fs::create_symlink("/dev/zero", folder.path() / "device.job");
    fs::create_directory(folder.path() / "folder.job");
    fs::resize_file(folder.file("huge.job", "[Job]\r\nName=huge\r\n"), std::uintmax_t{200} << 20U);
    for (const std::string error :
         {"special file \"pipe.job\": Operation not supported", "special file \"device.job\": Operation not supported",
          "folder \"folder.job\": Is a directory", "\"huge.job\": File too large"}) {
        const auto name = error.substr(error.find('"'), error.rfind('"') - error.find('"') + 1);
        EXPECT_EQ(script("edit " + name, "click cmdSave\n").err, "kestedit: read " + error + '\n');
    }
}

TEST_F(BadInputTest, AScriptHasTheSizeLimitOfAJob) {
    fs::resize_file(folder.file("huge", "click cmdSave\n"), std::uintmax_t{200} << 20U);
    for (const std::string script : {"huge", "- <huge", "- </dev/zero"}) {
        const auto result = kestedit("script --job-dir . new " + script);
        EXPECT_EQ(result.err,
                  "kestedit: read \"" + std::string(script == "huge" ? "huge" : "<stdin>") + "\": File too large\n");
        EXPECT_EQ(result.code, 1);
    }
    EXPECT_EQ(folder.names(), "home huge ");
}

TEST_F(BadInputTest, AFileWithoutAJobIsNotOpened) {
    for (const std::string& bytes : {std::string(100'000, '\0'), std::string{}, std::string("[Info]\nName=a\n")}) {
        const auto file = folder.file("none.job", bytes);
        const auto result = script("edit none.job", "answer yes\ntype dxName none\nclick cmdSave\n");
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(result.err, "kestedit: home/script: read \"./none.job\": no section \"Job\"\n");
        EXPECT_EQ(test::bytesOf(file), bytes);
    }
}

TEST_F(BadInputTest, NoLanguageFileKeepsTheEditorFromWorking) {
    environment = "timeout 20";  // what waits for a pipe waits for ever
    ASSERT_EQ(::mkfifo((folder.path() / "pipe").c_str(), 0600), 0);
    static_cast<void>(folder.file("other.ini", "[Desktop Entry]\nName=Other\n[frmEdit]\nt0=" + std::string(70000, 'x') +
                                                   "\nt1=%s%n\nt6\n=t7\nt8==\n[All]\nt0=\xFF\xFE\n[Weekdays]\nt0=\n"));
    fs::resize_file(folder.file("huge", "[All]\nt1=huge\n"), std::uintmax_t{200} << 20U);
    for (const std::string file : {"missing", "other.ini", "pipe", "home", "/dev/zero", "huge"}) {
        const auto result = script("--language " + file + " new", "print cmdSave.Caption\n");
        EXPECT_EQ(result.out, "cmdSave.Caption = \"&Speichern\"\nevent none\n") << file << ": " << result.err;
    }
}

TEST_F(BadInputTest, NoNameLeadsElsewhere) {
    const auto save = [&](const std::string& name) {
        return script("new", "type dxName \"" + name + "\"\nclick cmdSave\n").code;
    };
    for (const std::string& name : {std::string(300, 'n'), std::string(".."), std::string("."), std::string("a\\tb")})
        EXPECT_EQ(save(name), 1) << name;
    EXPECT_EQ(save("a\\r\\n[Info]"), 0);
    EXPECT_EQ(folder.names(), "a [Info].job home ");
}

TEST_F(BadInputTest, WhatAJobCannotHoldIsRefused) {
    for (const std::string text : {"\xE5\xAD\x97", "two\\nlines", "two\\rlines", "\xE5\xAD\x97\\n"}) {
        for (const std::string& chosen :
             {"folder \"/" + text + "\"\nbutton dxSource 0\n", "button dxSource 1\ntype dxTextEdit1 \"" + text + "\"\n",
              "check chkExecDo 1\nfile \"/" + text + "\"\nbutton dxExecPath 0\n"}) {
            const auto refused = script("new", "answer no\n" + chosen);
            EXPECT_NE(refused.err.find("cannot"), std::string::npos) << chosen << refused.err;
        }
    }
}

}  // namespace

}  // namespace kestedit
