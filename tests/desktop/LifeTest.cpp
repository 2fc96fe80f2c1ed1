// A window's life: first paint, failures, end, and what it remembers.
#include <QAbstractButton>
#include <QSplitter>

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
    EXPECT_TRUE(at("lblChkPathMsg").Visible);
}

TEST_F(Life, OpensWithTheNameInFocusAndTheFormsTitle) {
    open();
    EXPECT_TRUE(line("dxName").hasFocus());
    EXPECT_EQ(window().windowTitle().toStdString(), form().Caption);
    EXPECT_EQ(window().windowModality(), Qt::ApplicationModal);
}

TEST_F(Life, CloseBoxEndsWithoutCancelling) {
    open();
    window().close();
    EXPECT_FALSE(form().isOpen());
    EXPECT_FALSE(window().isVisible());
    EXPECT_FALSE(values.Cancelled);
}

TEST_F(Life, FailedSaveIsToldWithTheReasonAndKeepsTheForm) {
    open();
    enter("dxName", "Backup");
    enter("dxSource", "/srv/a");
    enter("dxDest", "/srv/b");
    std::filesystem::remove_all(jobs);
    std::ofstream(jobs) << "a file where the folder of the jobs was";
    prompts.answers = {Answer::ok};
    press("cmdSave");
    ASSERT_EQ(prompts.messages.size(), 1U);
    EXPECT_NE(prompts.messages[0].text.find("Backup.job"), std::string::npos) << prompts.messages[0].text;
    EXPECT_NE(prompts.messages[0].text.find("Not a directory"), std::string::npos) << prompts.messages[0].text;
    EXPECT_EQ(prompts.messages[0].title, "kestEdit");
    EXPECT_TRUE(form().isOpen());
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(line("dxName").text(), "Backup");
}

TEST_F(Life, SaveThatFindsAGapLeadsToTheField) {
    open();
    enter("dxName", "a/b");
    clickNode(8);
    prompts.answers = {Answer::ok};
    press("cmdSave");
    EXPECT_EQ(window().currentPage()->widget()->objectName(), "fraComment");
    EXPECT_TRUE(line("dxName").hasFocus());
}

TEST_F(Life, WindowIsUpToDateWhenAQuestionStandsInFront) {
    open();
    enter("dxName", "Backup");
    putJob("Backup", "[Job]\r\n");
    QString page;
    class Asking final : public Prompts {
      public:
        std::function<void()> look;
        Answer showMessage(const MessageBox&) override {
            look();
            return Answer::no;
        }
        std::optional<std::string> chooseFolder(const FolderRequest&) override { return std::nullopt; }
        std::optional<std::string> chooseFile(const FileRequest&) override { return std::nullopt; }
        void runNewFolder(dlgNewFolder&) override {}
    };
    // Events that arrive while the question is open change nothing: it is modal.
    Asking asking;
    Platform asked{ini, files, clock, dates, asking, settings};
    frmEdit other(values, asked);
    other.Load();
    FormWindow shown(other);
    shown.show();
    settle();
    asking.look = [&] {
        shown.refresh();
        page = shown.currentPage()->widget()->objectName();
        QTest::keyClick(&shown, Qt::Key_Escape);
    };
    QTest::mouseClick(&shown.binder().bindingOf(other.cmdSave)->widget(), Qt::LeftButton);
    EXPECT_EQ(page, "fraComment");
    EXPECT_TRUE(other.isOpen());
}

TEST_F(Life, SizeSplitterAndPageAreRememberedPerUser) {
    putJob("Backup", "[Job]\r\nName=Backup\r\n");
    openJob("Backup");
    const std::string before = jobBytes("Backup");
    window().resize(701, 502);
    clickNode(6);
    auto* splitter = window().findChild<QSplitter*>();
    splitter->setSizes({260, 440});
    settle();
    const int width = splitter->sizes().front();
    leave();
    EXPECT_EQ(jobBytes("Backup"), before);

    openJob("Backup");
    EXPECT_EQ(window().size(), QSize(701, 502));
    EXPECT_EQ(window().findChild<QSplitter*>()->sizes().front(), width);
    EXPECT_EQ(visibleFrames(), "fraFiles");
    EXPECT_EQ(window().currentPage()->widget()->objectName(), "fraFiles");
    // A new job starts at its name all the same, and other views count their pages apart.
    open("New");
    EXPECT_EQ(visibleFrames(), "fraComment");
    openJob("Backup", 15);
    EXPECT_EQ(visibleFrames(), "fraComment");
}

TEST_F(Life, RememberedSizeFitsTheScreen) {
    settings.write("Window", "Width", "90000");
    settings.write("Window", "Height", "nonsense");
    settings.write("Window", "Page4", "99");
    putJob("Backup", "[Job]\r\nName=Backup\r\n");
    openJob("Backup");
    EXPECT_LE(window().width(), window().screen()->availableSize().width());
    EXPECT_EQ(visibleFrames(), "fraComment");
}

TEST_F(Life, ViewThatNobodyKnowsShowsNoPage) {
    open("New", 7);
    EXPECT_EQ(window().currentPage(), nullptr);
    EXPECT_EQ(list().topLevelItemCount(), 0);
    press("cmdNext");
    EXPECT_TRUE(form().isOpen());
}

TEST_F(Life, SmallViewHasTheNameAbovePaths) {
    open("New", 23);
    EXPECT_EQ(window().currentPage()->widget()->objectName(), "fraPath");
    EXPECT_TRUE(line("dxName").isVisible());
    EXPECT_LT(line("dxName").mapTo(&window(), QPoint()).y(), line("dxSource").mapTo(&window(), QPoint()).y());
    QTest::keyClicks(&line("dxName"), "Small");
    EXPECT_EQ(at("dxName").text(), "Small");
}

TEST_F(Life, HelpKeyTellsWhenThereIsNoHelp) {
    values.HelpFile = (folder.path() / "help.html").string();
    open();
    prompts.answers = {Answer::ok};
    QTest::keyClick(&window(), Qt::Key_F1);
    ASSERT_EQ(prompts.messages.size(), 1U);
    EXPECT_NE(prompts.messages[0].text.find("help.html"), std::string::npos);
    EXPECT_TRUE(form().isOpen());
}

}  // namespace
}  // namespace kestedit::test
