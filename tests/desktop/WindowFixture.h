// The editor's window over a folder of a test's own, driven by keys and mouse.
#pragma once

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>
#include <QWheelEvent>
#include <memory>
#include <string>
#include <string_view>

#include "desktop/FormWindow.h"
#include "desktop/Text.h"
#include "desktop/bindings/NoticePlace.h"
#include "desktop/widgets/PageArea.h"
#include "editor/Views.h"
#include "tests/editor/EditorFixture.h"

namespace kestedit::test {

class WindowTest : public EditorTest {
  protected:
    /// A window of the size that it chooses itself.
    FormWindow& open(std::string_view mode = "New", int view = 4) {
        window_.reset();
        window_ = std::make_unique<FormWindow>(show(mode, view));
        window_->show();
        window_->activateWindow();
        settle();
        return *window_;
    }
    FormWindow& openJob(std::string_view job, int view = 4) {
        values.JobFile = jobFile(job).string();
        return open("Edit", view);
    }
    void leave() { window_.reset(); }
    FormWindow& window() { return *window_; }
    void setLanguage(const char* name) { values.Language = std::string{KESTEDIT_LANG_DIR "/"} + name + ".lng"; }

    /// Lets everything that is waiting happen, and what that leaves waiting in turn: a layout takes several rounds, and
    /// an answer from another thread may come in the last of them.
    static void settle() {
        QCoreApplication::processEvents();
        while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents))
            continue;
    }

    /// Of a control on whatever page; makes the pages that nobody has looked at.
    Binding& binding(std::string_view name) {
        if (!window().binder().bindingOf(at(name))) window().makeAllPages();
        return *window().binder().bindingOf(at(name));
    }
    /// The widget that takes the control's keys.
    QWidget& focusOf(std::string_view name) { return *binding(name).focusWidgets().front(); }
    template <typename Widget>
    Widget& shownBy(std::string_view name) {
        return dynamic_cast<Widget&>(binding(name).widget());
    }
    QLineEdit& line(std::string_view name) { return dynamic_cast<QLineEdit&>(focusOf(name)); }
    /// What stands beside the field; nothing when no notice does.
    QString notice(std::string_view name) {
        const QWidget& widget = binding(name).widget();
        const auto* label = window().findChild<NoticeLabel*>(widget.objectName() + noticeSuffix);
        return label && label->isVisible() ? label->text() : QString();
    }
    QTreeWidget& list() { return shownBy<QTreeWidget>("dxTreeList1"); }

    void clickNode(int position) {
        const QRect row = list().visualItemRect(list().topLevelItem(position));
        QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, row.center());
        settle();
    }
    /// Shows the control's page by a click on its node.
    void turnTo(std::string_view name) { clickNode(*nodeOfControl(form(), at(name))); }
    /// Clicks a button, a box or an option on its page.
    void press(std::string_view name) {
        if (at(name).Container) turnTo(name);
        QWidget& widget = binding(name).widget();
        QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(8, widget.height() / 2));
        settle();
    }
    /// Puts the caret into a field on its page.
    QWidget& focus(std::string_view name) {
        turnTo(name);
        focusOf(name).setFocus();
        return focusOf(name);
    }
    /// Types into a field in place of what it holds.
    void enter(std::string_view name, const char* text) {
        QWidget& field = focus(name);
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&field, Qt::Key_Delete);
        for (const QChar letter : QString::fromUtf8(text)) {  // which need not be on a keyboard
            QKeyEvent key(QEvent::KeyPress, letter == u'\n' ? Qt::Key_Return : 0, Qt::NoModifier, QString(letter));
            QApplication::sendEvent(&field, &key);
        }
    }
    /// Turns the wheel one notch down while the pointer is over the middle of a widget.
    static void turnWheel(QWidget& over) {
        const QPoint place = over.rect().center();
        QWheelEvent wheel(place, over.mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        // Only what comes from the user travels on to the widgets around.
        QSpontaneKeyEvent::setSpontaneous(&wheel);
        qApp->notify(&over, &wheel);
        settle();
    }

  private:
    std::unique_ptr<FormWindow> window_;
};

inline constexpr const char* languages[] = {"german", "english"};

}  // namespace kestedit::test
