// Files and folders: what is seen of them, and files replaced as a whole.
#include <algorithm>
#include <chrono>
#include <future>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

#include "platform/DataFolder.h"
#include "platform/FileSystem.h"
#include "platform/Patience.h"
#include "platform/StagedFile.h"
#include "platform/UserSettings.h"
#include "tests/platform/TemporaryFolder.h"

namespace kestedit::test {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using enum StagedFile::Permissions;

class Files : public testing::Test {
  protected:
    TemporaryFolder folder_;
    LocalFileSystem files_;
    fs::path target_ = folder_.path() / "job";
};
using StagedFiles = Files;

TEST_F(Files, tellsFilesFromFoldersAndWhatCannotBeDone) {
    const fs::path file = folder_.file("file", "");
    EXPECT_TRUE(files_.FileExists(file));
    EXPECT_FALSE(files_.FolderExists(file));
    EXPECT_FALSE(files_.FileExists(folder_.path()));
    EXPECT_TRUE(files_.FolderExists(folder_.path()));
    EXPECT_FALSE(files_.inspectFolder(file, 10s).exists);
    fs::create_symlink("loop", folder_.path() / "loop");
    EXPECT_THROW(static_cast<void>(files_.FileExists(folder_.path() / "loop")), fs::filesystem_error);
    EXPECT_THROW(files_.CreateFolder(folder_.path() / "x" / "y"), fs::filesystem_error);
    EXPECT_THROW(files_.DeleteFile(folder_.path()), fs::filesystem_error);

    fs::permissions(folder_.path(), fs::perms{0555});
    const FolderStatus found = files_.inspectFolder(folder_.path(), 10s);
    EXPECT_TRUE(found.answered && found.exists && found.readable);
    EXPECT_EQ(found.writable, ::geteuid() == 0);
    fs::permissions(folder_.path(), fs::perms{0755});
    EXPECT_TRUE(files_.inspectFolder(folder_.path(), 10s).writable);
}

TEST_F(Files, joinsAndTakesApartPaths) {
    EXPECT_EQ(files_.BuildPath("/a//", "/b"), "/a/b");
    EXPECT_EQ(files_.BuildPath("/", "b"), "/b");
    EXPECT_EQ(files_.BuildPath("", "b"), "b");
    EXPECT_EQ(files_.GetFileName("/a/b/"), "b");
    EXPECT_EQ(files_.GetFileName("/"), "");
}

TEST(DataFolder, isThatOfTheTreeThatTheCodeStandsIn) {
    EXPECT_TRUE(std::filesystem::exists(dataFolder() / "lang/english.lng")) << dataFolder();
}

TEST(Patience, anAnswerThatDoesNotComeCostsNoMoreThanThePatience) {
    std::promise<int> wakeUp;
    const std::shared_future<int> sleeper = wakeUp.get_future().share();
    for (int i = 0; i < mostQuestions; ++i)
        EXPECT_EQ(answerWithin(1ms, [sleeper] { return sleeper.get(); }), std::nullopt);
    EXPECT_EQ(answerWithin(10s, [] { return 2; }), std::nullopt) << "no more threads for a system that hangs";
    EXPECT_FALSE(LocalFileSystem().inspectFolder("/", 10s).answered);
    EXPECT_EQ(LocalFileSystem().resolve("/a/../b/", 10s), "/b");
    wakeUp.set_value(1);
    while (questionsUnderWay > 0)
        std::this_thread::yield();
    EXPECT_EQ(answerWithin(10s, [] { return 3; }), 3);
}

TEST_F(Files, userSettingsCreateFolderAndFile) {
    UserSettingsFile settings(folder_.path() / "a" / "b" / "user.ini");
    EXPECT_EQ(settings.read("Options", "BGColor", "none"), "none");
    EXPECT_FALSE(settings.write("Options", "BGColor", "\u20AC \u0416"));
    EXPECT_EQ(settings.read("options", "bgcolor", "none"), "\u20AC \u0416");
    for (const char* made : {"a", "a/b"})
        EXPECT_EQ(fs::status(folder_.path() / made).permissions(), fs::perms{0700}) << made;
    EXPECT_EQ(UserSettingsFile(folder_.file("file", "") / "b" / "user.ini").write("S", "k", "v"),
              std::errc::not_a_directory);
}

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
        EXPECT_EQ(fs::status(target_).permissions(), fs::perms{mode});
    }
    fs::permissions(target_, fs::perms{0444});
    EXPECT_THROW(StagedFile(target_, "never", keep), std::system_error);
    EXPECT_EQ(bytesOf(target_), "new");
    StagedFile(target_, "normal", makeNormal).commit();
    EXPECT_EQ(fs::status(target_).permissions(), fs::perms{0644});

    const mode_t mask = umask(027);
    StagedFile(folder_.path() / "fresh", "", keep).commit();
    umask(mask);
    EXPECT_EQ(fs::status(folder_.path() / "fresh").permissions(), fs::perms{0640});

    if (::chown(target_.c_str(), 1234, 4321) != 0) GTEST_SKIP() << "only root can give files away";
    ASSERT_EQ(::chmod(target_.c_str(), 02754), 0);
    StagedFile(target_, "new", keep).commit();
    struct stat status {};
    ASSERT_EQ(::stat(target_.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 1234U);
    EXPECT_EQ(status.st_gid, 4321U);
    EXPECT_EQ(status.st_mode & 07777U, 02754U);
}

TEST_F(StagedFiles, aFileTakesAfterTheOneThatHeldItsContentAndSecretsReachNobodyNew) {
    const fs::path former = folder_.path() / "former";
    const mode_t mask = umask(022);
    constexpr unsigned none = 0;
    struct Row {
        bool secret;
        unsigned former, existing, expected;
    };
    for (const Row& row : {Row{false, none, none, 0644}, Row{true, none, none, 0600}, Row{false, 0600, none, 0600},
                           Row{false, 0464, none, 0664}, Row{true, 0644, none, 0644}, Row{false, 0600, 0644, 0644},
                           Row{true, 0640, 0664, 0640}, Row{true, none, 0664, 0600}}) {
        for (const auto& [path, mode] : {std::pair{former, row.former}, {target_, row.existing}}) {
            fs::remove(path);
            if (mode != none) fs::permissions(folder_.file(path.filename(), ""), fs::perms{mode});
        }
        StagedFile(target_, "new", {makeNormal, row.secret, row.former == none ? fs::path{} : former}).commit();
        EXPECT_EQ(fs::status(target_).permissions(), fs::perms{row.expected})
            << row.secret << std::oct << " " << row.former << " " << row.existing;
    }
    StagedFile(target_, "new", {makeNormal, true, target_}).commit();
    EXPECT_EQ(fs::status(target_).permissions(), fs::perms{0600}) << "a file that gets a secret keeps its permissions";
    fs::permissions(target_, fs::perms{0664});
    StagedFile(target_, "new", {makeNormal, true, target_}).commit();
    EXPECT_EQ(fs::status(target_).permissions(), fs::perms{0664});
    umask(mask);

    if (::chown(folder_.file("former", "").c_str(), 1234, 4321) != 0) GTEST_SKIP() << "only root can give files away";
    StagedFile(folder_.path() / "renamed", "new", {makeNormal, false, former}).commitReplacing(former);
    struct stat status {};
    ASSERT_EQ(::stat((folder_.path() / "renamed").c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 1234U);
    EXPECT_EQ(status.st_gid, 4321U);
}

/// The hidden files in the folder.
std::vector<fs::path> hiddenIn(const fs::path& folder) {
    std::vector<fs::path> hidden;
    for (const auto& entry : fs::directory_iterator(folder))
        if (entry.path().filename().string().starts_with(".kestedit-")) hidden.push_back(entry.path());
    return hidden;
}

TEST_F(StagedFiles, whatAKilledSaveLeftGoesWithTheNextSaveOfTheSameFile) {
    const auto leave = [&](const std::string& target, const std::string& former) {
        const pid_t child = ::fork();
        if (child == 0) {
            const StagedFile killed(folder_.path() / target, "", {keep, false, folder_.path() / former});
            ::_exit(0);
        }
        ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    };
    const auto save = [&](const std::string& target, const std::string& former) {
        StagedFile(folder_.path() / target, "new", {keep, false, folder_.path() / former}).commit();
        return hiddenIn(folder_.path()).size();
    };
    leave("job", "job");
    leave("other", "other");
    EXPECT_EQ(hiddenIn(folder_.path()).size(), 2U);
    EXPECT_EQ(save("job", "job"), 1U) << "the other job's stays";
    EXPECT_EQ(save("other", "other"), 0U);
    // A rename that was killed concerns both names, and one that is made does.
    for (const char* left : {"job", "renamed"}) {
        leave("renamed", "job");
        EXPECT_EQ(save(left, left), 0U) << left;
    }
    leave("job", "job");
    EXPECT_EQ(save("renamed", "job"), 0U);

    StagedFile running(target_, "", keep);
    EXPECT_EQ(save("job", "job"), 1U) << "this process lives";
    running = StagedFile(target_, "last", keep);
    // One of another machine may live, unless it has not been touched for long.
    leave("job", "job");
    running.commit();
    leave("job", "job");
    const fs::path ours = hiddenIn(folder_.path()).at(0);
    std::string elsewhere = ours.filename();
    elsewhere.replace(elsewhere.find('-', 30) - 8, 8, "00000000");
    fs::rename(ours, folder_.path() / elsewhere);
    EXPECT_EQ(save("job", "job"), 1U);
    fs::last_write_time(folder_.path() / elsewhere, fs::file_time_type::clock::now() - 25h);
    EXPECT_EQ(save("job", "job"), 0U);
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

    folder_.file("former", "old");
    fs::remove(target_);
    fs::create_symlink("former", target_);
    StagedFile(target_, "new", keep).commitReplacing(former);
    EXPECT_EQ(bytesOf(target_), "new") << "a link to the former file is no other place";
}

}  // namespace
}  // namespace kestedit::test
