// A window's life: first paint, failures, end, and what it remembers.
#include <QSplitter>
#include <QThread>
#include <future>

#include "tests/desktop/WindowFixture.h"

namespace kestedit::test {
namespace {

using Life = WindowTest;

TEST_F(Life, ChecksRunAfterTheFirstPaint) {
    FormWindow early(create());
    EXPECT_TRUE(form().isTimerRunning());
    EXPECT_FALSE(at("lblChkPathMsg").Visible);
    early.show();
    settle();
    EXPECT_FALSE(form().isTimerRunning());
    EXPECT_TRUE(QTest::qWaitFor([this] { return at("lblChkPathMsg").Visible; }));
}

TEST(BackgroundWork, IsNotWaitedForAndIsFollowedOnTheWindowsThread) {
    std::promise<void> answer;
    const QThread* followedOn = nullptr;
    auto background = std::make_unique<Background>();
    background->run([&] { answer.get_future().wait(); }, [&] { followedOn = QThread::currentThread(); });
    QCoreApplication::processEvents();
    EXPECT_EQ(followedOn, nullptr);
    answer.set_value();
    EXPECT_TRUE(QTest::qWaitFor([&] { return followedOn != nullptr; }));
    EXPECT_EQ(followedOn, QThread::currentThread());
    background->run([] {}, [&] { followedOn = nullptr; });
    background.reset();
    QCoreApplication::processEvents();
    EXPECT_NE(followedOn, nullptr) << "nothing follows when the window has gone";
}

TEST_F(Life, OpensAtTheNameAndItsCloseBoxCancelsNothing) {
    open();
    EXPECT_TRUE(line("dxName").hasFocus());
    EXPECT_EQ(window().windowTitle().toStdString(), form().Caption);
    EXPECT_EQ(window().windowModality(), Qt::ApplicationModal);
    window().close();
    EXPECT_FALSE(form().isOpen());
    EXPECT_FALSE(window().isVisible());
    EXPECT_FALSE(values.Cancelled);
}

TEST_F(Life, SavesThatFailAreToldWithTheReasonAndKeepTheForm) {
    open();
    enter("dxName", "a/b");
    clickNode(8);
    prompts.answers = {Answer::ok, Answer::ok};
    press("cmdSave");
    EXPECT_EQ(window().currentPage()->widget()->objectName(), "fraComment");
    EXPECT_TRUE(line("dxName").hasFocus());
    enter("dxName", "Backup");
    std::filesystem::remove_all(jobs);
    std::ofstream(jobs) << "a file where the folder of the jobs was";
    press("cmdSave");
    ASSERT_EQ(prompts.messages.size(), 2U);
    EXPECT_EQ(prompts.messages[1].title, "kestEdit");
    EXPECT_NE(prompts.messages[1].text.find("Backup.job\": Not a directory"), std::string::npos)
        << prompts.messages[1].text;
    EXPECT_TRUE(form().isOpen());
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(line("dxName").text(), "Backup");
}

TEST_F(Life, SizeSplitterAndPageAreRememberedPerUserAndFitTheScreen) {
    putJob("Backup", "[Job]\r\nName=Backup\r\n");
    folder.file("user.ini", "[Window]\r\nWidth=90000\r\nHeight=nonsense\r\nPage4=99\r\n");
    openJob("Backup");
    EXPECT_LE(window().width(), window().screen()->availableSize().width());
    EXPECT_EQ(visibleFrames(), "fraComment");
    window().resize(701, 502);
    clickNode(6);
    window().findChild<QSplitter*>()->setSizes({260, 440});
    settle();
    const int width = window().findChild<QSplitter*>()->sizes().front();
    leave();
    openJob("Backup");
    EXPECT_EQ(window().size(), QSize(701, 502));
    EXPECT_EQ(window().findChild<QSplitter*>()->sizes().front(), width);
    EXPECT_EQ(visibleFrames(), "fraFiles");
    EXPECT_EQ(window().currentPage()->widget()->objectName(), "fraFiles");
    // Other views count their pages apart, and a new job starts at its name all the same.
    openJob("Backup", 15);
    EXPECT_EQ(visibleFrames(), "fraComment");
    open("New");
    EXPECT_EQ(visibleFrames(), "fraComment");
}

}  // namespace
}  // namespace kestedit::test
