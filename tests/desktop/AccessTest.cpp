// The window for those who have no mouse or do not see it: keys, letters to press with Alt, names that are read out.
#include <QAbstractButton>
#include <QDesktopServices>
#include <QKeySequence>
#include <QLabel>
#include <QTextBrowser>
#include <algorithm>
#include <map>
#include <set>
#include <tuple>

#include "tests/desktop/WindowFixture.h"

namespace kestedit::test {
namespace {

class Keyboard : public WindowTest {
  protected:
    /// The controls that Tab reaches, starting at the list, until it is back there.
    std::vector<const EditorControl*> tabWalk() {
        std::vector<const EditorControl*> walk;
        list().setFocus();
        for (int i = 0; i < 200; ++i) {
            const auto* at = window().binder().bindingOf(QApplication::focusWidget());
            if (!at) break;
            if (walk.empty() || walk.back() != &at->control()) walk.push_back(&at->control());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            if (QApplication::focusWidget() == &list()) break;
        }
        return walk;
    }
};

TEST_F(Keyboard, TabWalksThePageInTheFormsSequence) {
    open();
    at("chkSubFolder").TabStop = false;
    for (const char* action : {"optAction(0)", "optAction(5)"}) {
        press(action);
        for (int node = 0; node < list().topLevelItemCount(); ++node) {
            clickNode(node);
            SCOPED_TRACE(title(static_cast<std::size_t>(node)) + ", " + action);
            const auto walk = tabWalk();
            EXPECT_TRUE(std::ranges::is_sorted(walk, {}, &EditorControl::TabIndex));
            // All that a user could act on is reached; an option group counts as one stop, its arrows lead on.
            std::set<std::string_view> reached;
            for (const EditorControl* control : walk) {
                const bool again = !reached.insert(control->Base).second;
                const auto group = form().group(control->Base);
                const bool chosen =
                    control->Kind == ControlKind::option && std::ranges::any_of(group, &EditorControl::isSet);
                EXPECT_FALSE(again && chosen) << control->Name() << " is a stop of its own";
            }
            for (const auto& binding : window().binder().bindings()) {
                const EditorControl& control = binding->control();
                if (binding->focusWidgets().empty() || !binding->widget().isVisible() || !binding->widget().isEnabled())
                    continue;
                EXPECT_EQ(reached.contains(control.Base), control.TabStop) << control.Name();
            }
        }
    }
}

TEST_F(Keyboard, ARightClickTurnsNoPage) {
    open();
    const QRect row = list().visualItemRect(list().topLevelItem(3));
    QTest::mouseClick(list().viewport(), Qt::RightButton, Qt::NoModifier, row.center());
    settle();
    EXPECT_EQ(visibleFrames(), "fraComment");
}

TEST_F(Keyboard, KeysWalkTheListThePageFollowsAndArrowsLeadThroughAnOptionGroup) {
    open();
    list().setFocus();
    const auto pageAfter = [this](Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, with);
        EXPECT_EQ(window().currentPage()->widget()->objectName(), toQt(visibleFrames()));
        EXPECT_TRUE(list().hasFocus());
        return visibleFrames();
    };
    EXPECT_EQ(pageAfter(Qt::Key_Down), "fraMode");
    EXPECT_EQ(pageAfter(Qt::Key_Down), "fraPath");
    EXPECT_EQ(pageAfter(Qt::Key_Up), "fraMode");
    EXPECT_EQ(pageAfter(Qt::Key_End), "fraExisting");
    EXPECT_EQ(pageAfter(Qt::Key_PageDown, Qt::ControlModifier), "fraComment");
    QTest::keyClick(&window(), Qt::Key_N, Qt::AltModifier);  // "&Name des Auftrages"
    EXPECT_TRUE(line("dxName").hasFocus());
    EXPECT_EQ(form().FocusedControl, &at("dxName"));
    EXPECT_EQ(pageAfter(Qt::Key_PageUp, Qt::ControlModifier), "fraExisting");
    QTest::keyClick(&focus("optSize(0)"), Qt::Key_Down);
    EXPECT_TRUE(at("optSize(1)").isSet());
    EXPECT_TRUE(focusOf("dxSize").isVisible());
    QTest::keyClick(&focusOf("optSize(1)"), Qt::Key_Down);
    EXPECT_TRUE(at("optSize(2)").isSet());
    EXPECT_FALSE(at("optSize(1)").isSet());
}

TEST_F(Keyboard, F1OpensTheHostsHelpOrTheManualInTheWindowsLanguageOrTellsThatThereIsNone) {
    const std::string path = folder.path().string();
    std::filesystem::create_directories(folder.path() / "manual");
    for (const char* name : {"help.html", "manual/manual.html", "manual/manual.de.html"})
        folder.file(name, "<p>Help</p>");
    const std::tuple<std::string, const char*, const char*, std::string> cases[] = {
        {"", "english", "", "opens /manual/manual.html"},
        {"", "german", "", "opens /manual/manual.de.html"},
        {"", "english", "/none", "This program has no help."},
        {"/help.html", "german", "", "opens /help.html"},
        {"/gone.html", "english", "", "The help file was not found:\r\n/gone.html"},
    };
    QTextBrowser browser;
    QDesktopServices::setUrlHandler("file", &browser, "setSource");
    const auto pressed = [&] {
        prompts.messages.clear();
        prompts.answers = {Answer::ok};
        QTest::keyClick(&window(), Qt::Key_F1);
        std::string happened =
            prompts.messages.empty() ? "opens " + fromQt(browser.source().toLocalFile()) : prompts.messages[0].text;
        if (const auto at = happened.find(path); at != std::string::npos) happened.erase(at, path.size());
        return happened;
    };
    for (const auto& [own, language, data, expected] : cases) {
        values.HelpFile = own.empty() ? "" : path + own;
        setLanguage(language);
        platform.data = path + data;
        open();
        EXPECT_EQ(pressed(), expected);
    }
    QDesktopServices::unsetUrlHandler("file");
    values.HelpFile = path + "/help.html";
    EXPECT_EQ(pressed(), "The help cannot be opened here. It stands in the file:\r\n/help.html");
}

TEST_F(Keyboard, ControlSSavesEscapeCancelsAndReturnDoesNeither) {
    open();
    enter("dxName", "Backup");
    QTest::keyClick(&line("dxName"), Qt::Key_Return);
    EXPECT_EQ(visibleFrames(), "fraComment");
    QTest::keyClick(&line("dxName"), Qt::Key_Escape);
    EXPECT_FALSE(form().isOpen());
    EXPECT_FALSE(window().isVisible());
    EXPECT_TRUE(values.Cancelled);
    EXPECT_EQ(jobNames(), "");
    open();
    enter("dxName", "Backup");
    QTest::keyClick(&line("dxName"), Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(form().isOpen());
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(jobNames(), "Backup.job ");
}

class Names : public WindowTest, public testing::WithParamInterface<const char*> {
  protected:
    void SetUp() override {
        setLanguage(GetParam());
        // All options are seen at once.
        std::ofstream(values.INIFile) << "[EditWin]\r\nDisableInsteadOfHide=1\r\n";
    }
};

/// The caption by which a user finds an input: its own, its label's, or that of the option it belongs to.
QString captionOf(const QWidget& input, const QWidget& page) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&input)) return button->text();
    for (const auto* label : page.findChildren<QLabel*>())
        if (label->buddy() == &input && !label->isHidden()) return label->text();
    for (const QString& name : input.property("labelledBy").toString().split(u' '))
        if (const auto* other = page.findChild<QAbstractButton*>(name)) return other->text();
    return {};
}

TEST_P(Names, EveryInputHasACaptionToSeeAndANameOfItsOwnOnThePage) {
    open().makeAllPages();
    press("optAction(5)");  // gives its options their captions
    for (const PageArea* page : window().findChildren<PageArea*>()) {
        std::map<QString, std::string> names;
        for (const auto& input : window().binder().bindings()) {
            if (!page->isAncestorOf(&input->widget()) || input->focusWidgets().empty()) continue;
            EXPECT_FALSE(captionOf(input->widget(), *page).isEmpty()) << input->control().Name();
            for (const QWidget* part : input->focusWidgets()) {
                const auto [other, isNew] = names.emplace(part->accessibleName(), input->control().Name());
                EXPECT_FALSE(part->accessibleName().isEmpty()) << input->control().Name();
                EXPECT_TRUE(isNew) << input->control().Name() << " and " << other->second << " are both "
                                   << part->accessibleName().toStdString();
            }
        }
    }
}

TEST_P(Names, EachMnemonicLeadsToOneWidgetOfThePageWhateverTheAction) {
    for (const int view : {4, 23}) {  // which share the pages' controls out in two ways
        open("New", view);
        std::map<int, std::map<QString, const QWidget*>> pages;
        for (const int action : {0, 2, 3, 4, 5}) {  // to move shows what to copy does
            const std::string option = "optAction(" + std::to_string(action) + ")";
            if (form().obstacle(at(option))) continue;
            press(option);
            for (int node = 0; node < list().topLevelItemCount(); ++node) {
                clickNode(node);
                SCOPED_TRACE(title(static_cast<std::size_t>(node)) + ", action " + std::to_string(action));
                for (const QWidget* widget : window().findChildren<QWidget*>()) {
                    const QString caption = widget->isVisible() ? widget->property("text").toString() : QString();
                    const QString key = QKeySequence::mnemonic(caption).toString();
                    if (key.isEmpty()) continue;
                    const QWidget* const other = pages[node].emplace(key, widget).first->second;
                    EXPECT_EQ(other, widget) << caption.toStdString() << " and " << other->objectName().toStdString();
                }
                EXPECT_GE(pages[node].size(), 4U) << "each command has one";
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, Names, testing::ValuesIn(languages));

}  // namespace
}  // namespace kestedit::test
