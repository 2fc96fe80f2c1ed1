// The questions as windows: what they show, and what the user's answer comes to.
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <tuple>
#include <utility>

#include "desktop/DesktopPrompts.h"
#include "desktop/DesktopRun.h"
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
            act(*dialog);
            --expected;
        });
        ++expected;
    }
    Answer ask(Buttons buttons, std::function<void(QMessageBox&)> act) {
        whenAsked<QMessageBox>(std::move(act));
        return questions.showMessage({"Title", "First <b>line</b>\r\nSecond", buttons, MessageIcon::question});
    }

    void TearDown() override { EXPECT_EQ(expected, 0) << "a window has not come up"; }

    DesktopPrompts questions;
    int expected = 0;
};

TEST_F(Questions, EachButtonIsItsAnswerAndKeysChangeNothing) {
    using enum QMessageBox::StandardButton;
    const std::tuple<Buttons, QMessageBox::StandardButton, Answer> choices[] = {
        {Buttons::ok, Ok, Answer::ok},
        {Buttons::yesNo, Yes, Answer::yes},
        {Buttons::cancelRetryContinue, Retry, Answer::retry},
        {Buttons::cancelRetryContinue, Ignore, Answer::proceed},
        {Buttons::yesNoCancel, No, Answer::no},
    };
    for (const auto& [buttons, button, answer] : choices)
        EXPECT_EQ(ask(buttons, [button](QMessageBox& box) { box.button(button)->click(); }), answer);
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        const auto press = [key](QMessageBox& box) { QTest::keyClick(&box, key); };
        EXPECT_EQ(ask(Buttons::yesNo, press), Answer::no);
        EXPECT_EQ(ask(Buttons::cancelRetryContinue, press), Answer::cancel);
        EXPECT_EQ(ask(Buttons::yesNoCancel, press), Answer::cancel);
    }
}

TEST_F(Questions, StandBeforeAWindowThatIsUpToDateInPlainTextOfTheEditorsLanguage) {
    bool upToDate = false;
    questions.serve(
        {nullptr, [&] { upToDate = true; }, [](Answer answer) { return answer == Answer::yes ? "Ja" : QString(); }});
    ask(Buttons::yesNo, [&](QMessageBox& box) {
        EXPECT_TRUE(upToDate);
        EXPECT_EQ(box.text(), "First <b>line</b>\nSecond");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.button(QMessageBox::Yes)->text(), "Ja");
        EXPECT_FALSE(box.button(QMessageBox::No)->text().isEmpty());
        box.reject();
    });
}

TEST_F(Questions, ThatCameWhileTypingComeOnceForAFieldAndGiveItBack) {
    open();
    questions.serve({&window(), [this] { window().refresh(); }, {}});
    prompts.answers = {Answer::no};
    prompts.whileAsked = [this] { ask(Buttons::yesNo, [](QMessageBox& box) { box.reject(); }); };
    enter("dxName", "a日本b");
    settle();
    EXPECT_EQ(line("dxName").text(), "ab");
    EXPECT_EQ(prompts.messages.size(), 1U);
    EXPECT_EQ(window().focusWidget(), &line("dxName"));
}

TEST_F(Questions, ButtonsSayTheirAnswersInTheLanguageOfTheForm) {
    DesktopRun run;
    prompts.answers = {};
    QTimer::singleShot(0, qApp, [&] {
        const std::tuple<QMessageBox::StandardButton, const char*> captions[] = {
            {QMessageBox::Yes, "Ja"}, {QMessageBox::No, "Nein"}, {QMessageBox::Cancel, "Abbrechen"}};
        whenAsked<QMessageBox>([&](QMessageBox& box) {
            for (const auto& [button, caption] : captions)
                EXPECT_EQ(withoutMnemonic(box.button(button)->text()), caption);
            box.reject();
        });
        (void)run.prompts().showMessage({"Title", "Text", Buttons::yesNoCancel, MessageIcon::none});
        whenAsked<QMessageBox>([&](QMessageBox& box) {
            EXPECT_EQ(withoutMnemonic(box.button(QMessageBox::Ok)->text()), "OK");
            box.accept();
        });
        (void)run.prompts().showMessage({"Title", "Text", Buttons::ok, MessageIcon::none});
        form().onCloseBox();
        QApplication::closeAllWindows();
    });
    run.run(create());
}

TEST_F(Questions, FileChooserGivesTheFile) {
    const auto program = folder.file("run me.sh", "");
    whenAsked<QFileDialog>([&](QFileDialog& chooser) {
        chooser.selectFile(toQt(program.string()));
        static_cast<QDialog&>(chooser).done(QDialog::Accepted);
    });
    EXPECT_EQ(questions.chooseFile({"Choose", "Alle|*", 1, 4100}), program);
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
    EXPECT_EQ(questions.chooseFolder({"Choose:", folder.path().string(), std::nullopt, 69, "Auswahl: "}), jobs);
}

TEST_F(Questions, CancelledChoosersChooseNothing) {
    whenAsked<QFileDialog>([](QFileDialog& chooser) { chooser.reject(); });
    EXPECT_EQ(questions.chooseFolder({"Choose:", "/nowhere/at/all", std::nullopt, 69, ""}), std::nullopt);
    whenAsked<QFileDialog>([](QFileDialog& chooser) {
        EXPECT_EQ(chooser.nameFilters(), (QStringList{"Programme (*.exe *.com)", "Alle (*)"}));
        EXPECT_EQ(chooser.selectedNameFilter(), "Alle (*)");
        chooser.reject();
    });
    EXPECT_EQ(questions.chooseFile({"Choose", "Programme (*.exe, *.com)|*.exe;*.com|Alle|*", 2, 4100}), std::nullopt);
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
    EXPECT_TRUE(std::filesystem::is_directory(folder.path() / "new"));
    EXPECT_EQ(line("dxSource").text().toStdString(), (folder.path() / "new").string());
}

}  // namespace
}  // namespace kestedit::test
