#include <chrono>
#include <future>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <unistd.h>

#include "platform/FileSystem.h"
#include "platform/Patience.h"
#include "platform/UserSettings.h"
#include "tests/platform/TemporaryFolder.h"

namespace kestedit::test {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

class Files : public testing::Test {
  protected:
    TemporaryFolder folder_;
    LocalFileSystem files_;
};

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
    EXPECT_EQ(UserSettingsFile(folder_.file("file", "") / "b" / "user.ini").write("S", "k", "v"),
              std::errc::not_a_directory);
}

}  // namespace
}  // namespace kestedit::test
