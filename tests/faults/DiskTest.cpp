// Saves on disks and in folders that refuse them.
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/host/ProgramFixture.h"

namespace kestedit {

namespace {

namespace fs = std::filesystem;
using test::ProgramResult;

class DiskTest : public test::ProgramTest {
  protected:
    DiskTest() {
        fs::create_directory(jobs());
        EXPECT_EQ(save("new", "type dxName a\ntype dxDest /old\nanswer yes\n").code, 0);
        old_ = test::bytesOf(jobs() / "a.job");
    }

    [[nodiscard]] fs::path jobs() const { return folder.path() / "jobs"; }
    [[nodiscard]] const std::string& old() const { return old_; }

    [[nodiscard]] ProgramResult save(const std::string& target, const std::string& lines) const {
        static_cast<void>(folder.file("home/script", lines + "click cmdSave\nprint dxDest.EditValue\n"));
        return kestedit("script --now 2026-11-21T14:05:00 --date-format dd.MM.yyyy --job-dir jobs " + target +
                        " home/script");
    }

    [[nodiscard]] ProgramResult saveNew() const { return save("edit jobs/a.job", "type dxDest /new\n"); }

    void expectOnlyTheOldJob() const {
        EXPECT_EQ(test::bytesOf(jobs() / "a.job"), old_);
        EXPECT_EQ(std::distance(fs::directory_iterator(jobs()), {}), 1);
    }

    [[nodiscard]] mode_t modeOf(const fs::path& file) const {
        struct stat status {};
        EXPECT_EQ(::stat(file.c_str(), &status), 0);
        return status.st_mode & 07777U;
    }

    /// Root may do everything, so the program runs as nobody. False when that does not work on this machine.
    [[nodiscard]] bool becomeOrdinaryUser() {
        if (::geteuid() != 0) return true;
        const std::string nobody = "setpriv --reuid=65534 --regid=65534 --clear-groups";
        for (const fs::path& path : {folder.path(), home(), jobs(), jobs() / "a.job"}) {
            if (::chown(path.c_str(), 65534, 65534) != 0) return false;
        }
        environment = nobody;
        return kestedit("--version").code == 0;
    }

  private:
    std::string old_;
};

TEST_F(DiskTest, AFolderWithoutWritePermissionKeepsTheJob) {
    if (!becomeOrdinaryUser()) GTEST_SKIP() << "no other user to run the program as";
    fs::permissions(jobs(), fs::perms{0555});
    const auto refused = saveNew();
    EXPECT_EQ(refused.code, 1);
    EXPECT_NE(refused.err.find("create \"jobs/"), std::string::npos) << refused.err;
    EXPECT_NE(refused.err.find("Permission denied"), std::string::npos) << refused.err;
    expectOnlyTheOldJob();

    fs::permissions(jobs(), fs::perms{0755});
    EXPECT_EQ(saveNew().code, 0);
    EXPECT_NE(test::bytesOf(jobs() / "a.job"), old());
}

TEST_F(DiskTest, AReadOnlyJobBecomesWritable) {
    if (!becomeOrdinaryUser()) GTEST_SKIP() << "no other user to run the program as";
    fs::permissions(jobs() / "a.job", fs::perms{0440});
    EXPECT_EQ(saveNew().code, 0);
    EXPECT_NE(test::bytesOf(jobs() / "a.job").find("\r\nTo=/new\r\n"), std::string::npos);
    EXPECT_EQ(modeOf(jobs() / "a.job"), 0640U);
}

TEST_F(DiskTest, AFileSizeLimitIsAFailureAndNotTheEnd) {
    environment = "sh -c 'ulimit -f 1; exec \"$@\"' sh";  // 512 bytes
    const auto full = saveNew();
    EXPECT_EQ(full.code, 1);
    EXPECT_NE(full.err.find("File too large"), std::string::npos) << full.err;
    expectOnlyTheOldJob();
    environment.clear();
    EXPECT_EQ(saveNew().code, 0);
}

TEST_F(DiskTest, AFullDiskKeepsTheJob) {
    const std::string inOwnMounts = "cd '" + folder.path().string() + "' && unshare -m sh -c ";
    const std::string mount = "mount -t tmpfs -o size=64k none jobs";
    if (::geteuid() != 0 || std::system((inOwnMounts + "'" + mount + "' 2>home/err").c_str()) != 0)
        GTEST_SKIP() << "no right to mount a small disk";
    static_cast<void>(folder.file("a.job", old()));
    static_cast<void>(folder.file("home/script", "type dxDest /new\nclick cmdSave\n"));
    const std::string saveIt = KESTEDIT_PROGRAM " script --date-format dd.MM.yyyy edit jobs/a.job home/script ";
    const std::string steps = "export HOME=home LC_ALL=C; " + mount +
                              "; cp a.job jobs; head -c 1000000 /dev/zero >jobs/filler 2>home/head; " + saveIt +
                              ">home/out 2>home/err; echo $? >home/code; cp jobs/a.job after.job; "
                              "ls -A jobs >home/names; rm jobs/filler; " +
                              saveIt + "&& cp jobs/a.job later.job";
    EXPECT_EQ(std::system((inOwnMounts + "'" + steps + "' >home/later 2>&1").c_str()), 0);
    EXPECT_EQ(test::bytesOf(home() / "code"), "1\n");
    const std::string error = test::bytesOf(home() / "err");
    EXPECT_NE(error.find("No space left on device"), std::string::npos) << error;
    EXPECT_EQ(test::bytesOf(folder.path() / "after.job"), old());
    EXPECT_EQ(test::bytesOf(home() / "names"), "a.job\nfiller\n");
    EXPECT_NE(test::bytesOf(folder.path() / "later.job").find("\r\nTo=/new\r\n"), std::string::npos);
}

}  // namespace

}  // namespace kestedit
