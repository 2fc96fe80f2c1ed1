// Saves on disks that refuse them.
#include <unistd.h>

#include "tests/host/ProgramFixture.h"

namespace kestedit {

namespace {

namespace fs = std::filesystem;

class DiskTest : public test::ProgramTest {
  protected:
    DiskTest() {
        jobDir = "jobs";
        fs::create_directory(folder.path() / jobDir);
        EXPECT_EQ(script("new", "type dxName a\nclick cmdSave\n").code, 0);
    }

    /// Root may do everything, so the program runs as nobody. False when that does not work on this machine.
    [[nodiscard]] bool becomeOrdinaryUser() {
        if (::geteuid() != 0) return true;
        for (const fs::path path : {"", "home", "jobs", "jobs/a.job"})
            if (::chown((folder.path() / path).c_str(), 65534, 65534) != 0) return false;
        environment = "setpriv --reuid=65534 --regid=65534 --clear-groups";
        return kestedit("--version").code == 0;
    }

    /// Saves the job; what `jobs` held then is expected to be in the folder `left`: the old job and nothing else.
    void expectRefused(const std::string& reason, const std::string& left) {
        const std::string old = test::bytesOf(folder.path() / "jobs/a.job");
        const auto refused = script("edit jobs/a.job", "type dxDest /refused\nclick cmdSave\n");
        EXPECT_EQ(refused.code, 1);
        EXPECT_NE(refused.err.find(reason), std::string::npos) << refused.err;
        EXPECT_EQ(test::bytesOf(folder.path() / left / "a.job"), old);
        EXPECT_EQ(test::namesIn(folder.path() / left), "a.job ");
    }
};

TEST_F(DiskTest, AReadOnlyJobBecomesWritableUnlessItsFolderIsReadOnly) {
    if (!becomeOrdinaryUser()) GTEST_SKIP() << "no other user to run the program as";
    const fs::path job = folder.path() / "jobs/a.job";
    fs::permissions(job, fs::perms{0440});
    EXPECT_EQ(script("edit jobs/a.job", "type dxDest /new\nclick cmdSave\n").code, 0);
    EXPECT_NE(test::bytesOf(job).find("\r\nTo=/new\r\n"), std::string::npos);
    EXPECT_EQ(fs::status(job).permissions(), fs::perms{0640});
    fs::permissions(folder.path() / "jobs", fs::perms{0555});
    expectRefused("Permission denied", "jobs");
}

TEST_F(DiskTest, AFileSizeLimitIsAFailureAndNotTheEnd) {
    environment = "sh -c 'ulimit -f 1; exec \"$@\"' sh";  // 512 bytes
    expectRefused("File too large", "jobs");
}

TEST_F(DiskTest, AFullDiskKeepsTheJob) {
    // A small disk of the program's own, full but for the job.
    environment =
        "unshare -m sh -c 'cp -r jobs left && mount -t tmpfs -o size=64k none jobs && cp left/a.job jobs || exit; "
        "head -c 1000000 /dev/zero >jobs/filler 2>home/head; \"$@\"; code=$?; "
        "rm -r jobs/filler left; cp -r jobs left; exit $code' sh";
    if (::geteuid() != 0 || kestedit("--version").code != 0) GTEST_SKIP() << "no right to mount a small disk";
    fs::remove_all(folder.path() / "left");
    expectRefused("No space left on device", "left");
}

}  // namespace

}  // namespace kestedit
