// The questions as windows: what they show, and what the user's answer comes to.
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <utility>

#include "desktop/DesktopPrompts.h"
#include "desktop/NewFolderWindow.h"
#include "tests/desktop/WindowFixture.h"

namespace kestedit::test {
namespace {

class Questions : public WindowTest {
  protected:
    /// Acts on the modal window that comes up next.
    template <typename Dialog>
    void whenAsked(std::function<void(Dialog&)> act) {
        QTimer::singleShot(0, qApp, [this, act = std::move(act)] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            seen = true;
            act(*dialog);
        });
    }
    Answer ask(Buttons buttons, std::function<void(QMessageBox&)> act) {
        whenAsked<QMessageBox>(std::move(act));
        return questions.showMessage({"Title", "First <b>line</b>\r\nSecond", buttons, MessageIcon::question});
    }

    DesktopPrompts questions;
    bool seen = false;
};

TEST_F(Questions, MessageShowsPlainLinesAndTakesTheAnswer) {
    EXPECT_EQ(ask(Buttons::yesNo,
                  [](QMessageBox& box) {
                      EXPECT_EQ(box.text(), "First <b>line</b>\nSecond");
                      EXPECT_EQ(box.textFormat(), Qt::PlainText);
                      EXPECT_EQ(box.buttons().size(), 2);
                      box.button(QMessageBox::Yes)->click();
                  }),
              Answer::yes);
    EXPECT_EQ(ask(Buttons::cancelRetryContinue, [](QMessageBox& box) { box.button(QMessageBox::Ignore)->click(); }),
              Answer::proceed);
    EXPECT_EQ(ask(Buttons::cancelRetryContinue, [](QMessageBox& box) { box.button(QMessageBox::Retry)->click(); }),
              Answer::retry);
}

TEST_F(Questions, EscapeIsTheAnswerThatChangesNothing) {
    const auto escape = [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); };
    EXPECT_EQ(ask(Buttons::yesNo, escape), Answer::no);
    EXPECT_EQ(ask(Buttons::cancelRetryContinue, escape), Answer::cancel);
    EXPECT_EQ(ask(Buttons::ok, escape), Answer::ok);
}

TEST_F(Questions, ButtonsSpeakTheEditorsLanguage) {
    questions.serve({nullptr, nullptr, [](Answer answer) { return answer == Answer::yes ? "Ja" : QString(); }});
    ask(Buttons::yesNo, [](QMessageBox& box) {
        EXPECT_EQ(box.button(QMessageBox::Yes)->text(), "Ja");
        EXPECT_FALSE(box.button(QMessageBox::No)->text().isEmpty());
        box.reject();
    });
    EXPECT_TRUE(seen);
}

TEST_F(Questions, FolderChooserOpensAtTheFolderAndTellsTheSelection) {
    const QString start = toQt(folder.path().string());
    whenAsked<QFileDialog>([&](QFileDialog& chooser) {
        EXPECT_EQ(chooser.directory().absolutePath(), start);
        EXPECT_EQ(chooser.windowTitle(), "Choose:");
        const auto* status = chooser.findChild<QLabel*>("statusLine");
        ASSERT_NE(status, nullptr);
        EXPECT_EQ(status->text(), "Auswahl: " + start);
        emit chooser.currentChanged(start + "/jobs");
        EXPECT_EQ(status->text(), "Auswahl: " + start + "/jobs");
        chooser.selectFile(start + "/jobs");
        static_cast<QDialog&>(chooser).done(QDialog::Accepted);
    });
    std::filesystem::create_directories(folder.path() / "jobs");
    const auto chosen = questions.chooseFolder({"Choose:", folder.path().string(), std::nullopt, 69, "Auswahl: "});
    EXPECT_TRUE(seen);
    EXPECT_EQ(chosen, (folder.path() / "jobs").string());
}

TEST_F(Questions, CancelledChoosersChooseNothing) {
    whenAsked<QFileDialog>([](QFileDialog& chooser) { chooser.reject(); });
    EXPECT_EQ(questions.chooseFolder({"Choose:", "/nowhere/at/all", std::nullopt, 69, ""}), std::nullopt);
    whenAsked<QFileDialog>([](QFileDialog& chooser) {
        EXPECT_EQ(chooser.nameFilters(), QStringList{"Programme (*.exe *.com *.bat)"});
        chooser.reject();
    });
    EXPECT_EQ(questions.chooseFile({"Choose", "Programme (*.exe, *.com, *.bat)|*.exe;*.com;*.bat", 1, 4100}),
              std::nullopt);
    EXPECT_TRUE(seen);
}

TEST_F(Questions, FiltersOfSeveralPairs) {
    EXPECT_EQ(nameFilters("Text|*.txt;*.md|All files (*)|*"), (QStringList{"Text (*.txt *.md)", "All files (*)"}));
    EXPECT_EQ(nameFilters("broken"), QStringList());
}

TEST_F(Questions, NewFolderIsMadeFromItsWindow) {
    open();
    enter("dxSource", folder.path().c_str());
    form().platform().settings.write("Options", "BGColor", "8388608");
    prompts.newFolder = [&](dlgNewFolder& dialog) { questions.runNewFolder(dialog); };
    whenAsked<NewFolderWindow>([&](NewFolderWindow& shown) {
        auto* name = shown.findChild<QLineEdit*>("dxTextEdit1");
        auto* create = shown.findChild<QPushButton*>("cmdCreate");
        EXPECT_EQ(shown.palette().color(QPalette::Window), QColor(0, 0, 128));
        EXPECT_EQ(shown.focusWidget(), name);
        QTest::keyClicks(name, "n");
        EXPECT_FALSE(create->isEnabled());
        QTest::keyClicks(name, "ew");
        EXPECT_TRUE(create->isEnabled());
        QTest::keyClick(name, Qt::Key_Return);
    });
    QTest::mouseClick(binding("dxSource").focusWidgets()[2], Qt::LeftButton);
    EXPECT_TRUE(seen);
    EXPECT_TRUE(std::filesystem::is_directory(folder.path() / "new"));
    EXPECT_EQ(line("dxSource").text().toStdString(), (folder.path() / "new").string());
}

TEST_F(Questions, NewFolderWindowGoesAtEscape) {
    open();
    turnTo("dxSource");
    prompts.newFolder = [&](dlgNewFolder& dialog) { questions.runNewFolder(dialog); };
    whenAsked<NewFolderWindow>([](NewFolderWindow& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
    QTest::mouseClick(binding("dxSource").focusWidgets()[2], Qt::LeftButton);
    EXPECT_TRUE(seen);
    EXPECT_EQ(line("dxSource").text(), "");
    EXPECT_TRUE(form().isOpen());
}

}  // namespace
}  // namespace kestedit::test
