#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "platform/StagedFile.h"
#include "tests/platform/TemporaryFolder.h"

namespace kestedit::test {
namespace {

namespace fs = std::filesystem;
using enum StagedFile::Permissions;

class StagedFiles : public testing::Test {
  protected:
    static fs::perms permissionsOf(const fs::path& file) { return fs::status(file).permissions(); }

    TemporaryFolder folder_;
    fs::path target_ = folder_.path() / "job";
};

TEST_F(StagedFiles, theOldFileStandsUntilAllPiecesTakeItsPlaceInTheirOrder) {
    folder_.file("job", "old");
    const std::string large(100'000, 'x');
    const std::string_view pieces[] = {"ab", "", large, std::string_view("<\0>", 3)};
    StagedFile staged(target_, "dropped", keep);
    {
        StagedFile made(target_, pieces, keep);
        StagedFile passed(std::move(made));
        EXPECT_EQ(bytesOf(target_), "old");
        EXPECT_EQ(std::ranges::count(folder_.names(), ' '), 3) << "two staged files stand beside it";
        staged = std::move(passed);
    }
    staged.commit();
    EXPECT_EQ(bytesOf(target_), "ab" + large + std::string(pieces[3]));
    EXPECT_EQ(folder_.names(), "job ");
    static_cast<void>(StagedFile(target_, "dropped", keep));
    EXPECT_EQ(folder_.names(), "job ");
}

TEST_F(StagedFiles, permissionsAndOwnerAreKept) {
    folder_.file("job", "old");
    for (const unsigned mode : {0600U, 0664U}) {
        fs::permissions(target_, fs::perms{mode});
        StagedFile(target_, "new", keep).commit();
        EXPECT_EQ(permissionsOf(target_), fs::perms{mode});
    }
    fs::permissions(target_, fs::perms{0444});
    EXPECT_THROW(StagedFile(target_, "never", keep), std::system_error);
    EXPECT_EQ(bytesOf(target_), "new");
    StagedFile(target_, "normal", makeNormal).commit();
    EXPECT_EQ(permissionsOf(target_), fs::perms{0644});

    const mode_t mask = umask(027);
    StagedFile(folder_.path() / "fresh", "", keep).commit();
    umask(mask);
    EXPECT_EQ(permissionsOf(folder_.path() / "fresh"), fs::perms{0640});

    if (::chown(target_.c_str(), 1234, 4321) != 0) GTEST_SKIP() << "only root can give files away";
    ASSERT_EQ(::chmod(target_.c_str(), 02754), 0);
    StagedFile(target_, "new", keep).commit();
    struct stat status {};
    ASSERT_EQ(::stat(target_.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 1234U);
    EXPECT_EQ(status.st_gid, 4321U);
    EXPECT_EQ(status.st_mode & 07777U, 02754U);
}

TEST_F(StagedFiles, linksStayAndTheFileBehindThemIsReplaced) {
    fs::create_directory(folder_.path() / "real");
    folder_.file("real/file", "old");
    fs::create_symlink("real/file", folder_.path() / "middle");
    fs::create_symlink("middle", target_);
    StagedFile(target_, "new", keep).commit();
    EXPECT_TRUE(fs::is_symlink(target_));
    EXPECT_EQ(bytesOf(folder_.path() / "real/file"), "new");

    fs::remove(folder_.path() / "real/file");
    StagedFile(target_, "again", keep).commit();
    EXPECT_EQ(bytesOf(folder_.path() / "real/file"), "again") << "a link to a missing file";

    fs::create_symlink("loop", folder_.path() / "loop");
    EXPECT_THROW(StagedFile(folder_.path() / "loop", "", keep), std::system_error);
}

TEST_F(StagedFiles, onlyAFileIsReplaced) {
    ASSERT_EQ(::mkfifo(target_.c_str(), 0600), 0);
    for (const fs::path& place : {target_, folder_.path()})
        EXPECT_THROW(StagedFile(place, "", makeNormal), std::system_error);
    EXPECT_EQ(folder_.names(), "job ");
}

TEST_F(StagedFiles, replacingLeavesTheTargetAlone) {
    const fs::path former = folder_.path() / "former";
    const auto replace = [&](const fs::path& replaced) {
        StagedFile(target_, "new", keep).commitReplacing(replaced);
        EXPECT_EQ(bytesOf(target_), "new") << replaced;
        EXPECT_EQ(folder_.names(), "job ") << replaced;
        folder_.file("job", "other");
    };
    replace(former);
    replace(target_);
    replace(folder_.path() / "." / "job");
    folder_.file("former", "old");
    replace(former);
    fs::create_hard_link(target_, former);
    replace(former);
    fs::rename(target_, former);
    replace(former);
}

}  // namespace
}  // namespace kestedit::test
