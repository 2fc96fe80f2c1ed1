// What inputs are called: by a caption that is seen, by a screen reader, by Alt and a letter.
#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <map>

#include "tests/desktop/WindowFixture.h"

namespace kestedit::test {
namespace {

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

TEST_P(Names, MnemonicsAreUniqueAmongWhatIsSeen) {
    for (const int view : {4, 23}) {  // which share the pages' controls out in two ways
        open("New", view);
        for (const int action : {0, 2, 3, 4, 5}) {  // to move shows what to copy does
            press("optAction(" + std::to_string(action) + ")");
            for (int node = 0; node < list().topLevelItemCount(); ++node) {
                clickNode(node);
                SCOPED_TRACE(title(static_cast<std::size_t>(node)) + ", action " + std::to_string(action));
                std::map<QString, QString> captions;
                for (const QWidget* widget : window().findChildren<QWidget*>()) {
                    const QString caption = widget->isVisible() ? widget->property("text").toString() : QString();
                    const QString key = QKeySequence::mnemonic(caption).toString();
                    if (key.isEmpty()) continue;
                    const auto [other, isNew] = captions.emplace(key, caption);
                    EXPECT_TRUE(isNew) << caption.toStdString() << " and " << other->second.toStdString();
                }
                EXPECT_GE(captions.size(), 4U) << "each command has one";
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, Names, testing::ValuesIn(languages));

}  // namespace
}  // namespace kestedit::test
