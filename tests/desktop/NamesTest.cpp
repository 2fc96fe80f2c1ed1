// What inputs are called: by a caption that is seen, by a screen reader, by Alt and a letter.
#include <QAbstractButton>
#include <QLabel>
#include <map>
#include <set>

#include "tests/desktop/WindowFixture.h"

namespace kestedit::test {
namespace {

/// Every page in every state would be a long list; disabled instead of hidden, all options are seen at once.
class Names : public WindowTest, public testing::WithParamInterface<const char*> {
  protected:
    void SetUp() override {
        setLanguage(GetParam());
        std::ofstream(values.INIFile) << "[EditWin]\r\nDisableInsteadOfHide=1\r\n";
        open().makeAllPages();
        press("optAction(5)");  // gives its options their captions
    }

    static bool isInput(const EditorControl& control) {
        using enum ControlKind;
        return control.Kind != frame && control.Kind != label && control.Kind != picture && control.Kind != nodeList;
    }

    /// Inputs of a page by its frame; what stands on the form itself belongs to every page.
    std::map<const EditorControl*, std::vector<const EditorControl*>> inputsByPage() {
        std::map<const EditorControl*, std::vector<const EditorControl*>> pages;
        for (const EditorControl* control : form().controls()) {
            const EditorControl* page = control->Container;
            while (page && page->Container)
                page = page->Container;
            if (isInput(*control) && page) pages[page].push_back(control);
        }
        return pages;
    }
};

TEST_P(Names, EveryInputHasACaptionToSee) {
    for (const auto& [page, inputs] : inputsByPage()) {
        for (const EditorControl* input : inputs) {
            const QWidget& widget = binding(input->Name()).widget();
            const QWidget& root = *widget.window();
            QString caption;
            if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) caption = button->text();
            for (const QLabel* label : root.findChildren<QLabel*>())
                if (label->buddy() == &widget && !label->isHidden()) caption = label->text();
            for (const QString& name : widget.property("labelledBy").toString().split(u' '))
                if (const auto* other = root.findChild<QAbstractButton*>(name); other && caption.isEmpty())
                    caption = other->text();
            EXPECT_FALSE(caption.isEmpty()) << input->Name();
        }
    }
}

TEST_P(Names, ReadersTellTheInputsOfAPageApart) {
    for (const auto& [page, inputs] : inputsByPage()) {
        std::map<QString, std::string> names;
        for (const EditorControl* input : inputs) {
            for (const QWidget* part : binding(input->Name()).focusWidgets()) {
                EXPECT_FALSE(part->accessibleName().isEmpty()) << input->Name();
                const auto [other, fresh] = names.emplace(part->accessibleName(), input->Name());
                EXPECT_TRUE(fresh) << input->Name() << " and " << other->second << " are both "
                                   << part->accessibleName().toStdString();
            }
        }
    }
}

/// The letter that Alt takes to this caption, in lower case.
QString mnemonicOf(const std::string& caption) {
    const QString text = toQt(caption);
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != u'&') continue;
        if (text[i + 1] != u'&') return text.mid(i + 1, 1).toLower();
        ++i;
    }
    return {};
}

// Hidden options keep their letters to themselves, so the test looks at a page as it stands, for each action.
TEST_P(Names, MnemonicsAreUniqueOnEachPage) {
    std::ofstream(values.INIFile) << "[EditWin]\r\nDisableInsteadOfHide=0\r\n";
    for (int action = 0; action < actionCount; ++action) {
        open().makeAllPages();
        press("optAction(" + std::to_string(action) + ")");
        for (const EditorControl* page : form().controls()) {
            if (page->Kind != ControlKind::frame || page->Container) continue;
            std::map<QString, std::string> letters;
            for (const EditorControl* control : form().controls()) {
                const EditorControl* top = control->Container;
                bool seen = control->Visible;
                while (top && top->Container) {
                    seen = seen && top->Visible;
                    top = top->Container;
                }
                const QString letter = mnemonicOf(control->Caption);
                if ((top && top != page) || letter.isEmpty() || !seen) continue;
                const auto [other, fresh] = letters.emplace(letter, control->Name());
                EXPECT_TRUE(fresh) << control->Name() << " and " << other->second << " are both Alt+"
                                   << letter.toStdString() << ", action " << action;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, Names, testing::ValuesIn(languages));

}  // namespace
}  // namespace kestedit::test
