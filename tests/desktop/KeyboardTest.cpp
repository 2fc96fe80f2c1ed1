// The window without a mouse.
#include <QAbstractButton>
#include <algorithm>
#include <set>

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
    for (int node = 0; node < 13; ++node) {
        clickNode(node);
        const auto walk = tabWalk();
        SCOPED_TRACE(title(static_cast<std::size_t>(node)));
        EXPECT_TRUE(std::ranges::is_sorted(walk, {}, &EditorControl::TabIndex));
        // All that a user could act on is reached; an option group counts as one stop, its arrows lead on.
        std::set<std::string> reached;
        for (const EditorControl* control : walk)
            reached.insert(std::string{control->Base});
        for (const auto& binding : window().binder().bindings()) {
            if (binding->focusWidgets().empty() || !binding->widget().isVisible() || !binding->widget().isEnabled())
                continue;
            EXPECT_TRUE(!binding->control().TabStop || reached.contains(std::string{binding->control().Base}))
                << binding->control().Name();
        }
    }
}

TEST_F(Keyboard, ArrowsLeadThroughAnOptionGroup) {
    open();
    turnTo("optSize(0)");
    QWidget& first = focusOf("optSize(0)");
    first.setFocus();
    QTest::keyClick(&first, Qt::Key_Down);
    EXPECT_TRUE(at("optSize(1)").isSet());
    EXPECT_TRUE(focusOf("dxSize").isVisible());
    QTest::keyClick(&focusOf("optSize(1)"), Qt::Key_Down);
    EXPECT_TRUE(at("optSize(2)").isSet());
    EXPECT_FALSE(at("optSize(1)").isSet());
}

TEST_F(Keyboard, ArrowsWalkTheListAndThePageFollows) {
    open();
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_Down);
    EXPECT_EQ(visibleFrames(), "fraPath");
    EXPECT_EQ(window().currentPage()->widget()->objectName(), "fraPath");
    EXPECT_TRUE(list().hasFocus());
    QTest::keyClick(&list(), Qt::Key_Up);
    EXPECT_EQ(window().currentPage()->widget()->objectName(), "fraMode");
    // The list does not go round at its ends, the buttons do.
    QTest::keyClick(&list(), Qt::Key_Up);
    QTest::keyClick(&list(), Qt::Key_Up);
    EXPECT_EQ(list().currentIndex().row(), 0);
    QTest::keyClick(&list(), Qt::Key_End);
    EXPECT_EQ(visibleFrames(), "fraExisting");
}

TEST_F(Keyboard, ControlAndPageKeysStepFromAnyField) {
    open();
    line("dxName").setFocus();
    QTest::keyClick(&line("dxName"), Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(visibleFrames(), "fraExisting");
    EXPECT_TRUE(list().hasFocus());
    QTest::keyClick(&list(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(visibleFrames(), "fraComment");
}

TEST_F(Keyboard, ControlSSavesAndReturnDoesNot) {
    open();
    enter("dxName", "Backup");
    QTest::keyClick(&line("dxName"), Qt::Key_Return);
    EXPECT_TRUE(form().isOpen());
    enter("dxSource", "/srv/a");
    enter("dxDest", "/srv/b");
    QTest::keyClick(&window(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(form().isOpen());
    EXPECT_FALSE(window().isVisible());
    EXPECT_NE(jobBytes("Backup").find("/srv/a"), std::string::npos);
}

TEST_F(Keyboard, EscapeCancels) {
    open();
    enter("dxName", "Backup");
    QTest::keyClick(&line("dxName"), Qt::Key_Escape);
    EXPECT_FALSE(form().isOpen());
    EXPECT_FALSE(window().isVisible());
    EXPECT_TRUE(values.Cancelled);
    EXPECT_EQ(jobNames(), "");
}

TEST_F(Keyboard, AltAndLetterGoToTheFieldOfTheLabel) {
    open();
    list().setFocus();
    QTest::keyClick(&window(), Qt::Key_N, Qt::AltModifier);  // "&Name des Auftrages"
    EXPECT_TRUE(line("dxName").hasFocus());
    EXPECT_EQ(form().FocusedControl, &at("dxName"));
}

TEST_F(Keyboard, FieldsThatTheFormSkipsAreNoStops) {
    open();
    press("optAction(5)");  // synchronising takes the folder structure out of the sequence
    turnTo("chkFStruct");
    const auto walk = tabWalk();
    EXPECT_EQ(std::ranges::find(walk, &at("chkFStruct")), walk.end());
    EXPECT_NE(std::ranges::find(walk, &at("optSyncStart(0)")), walk.end());
}

}  // namespace
}  // namespace kestedit::test
