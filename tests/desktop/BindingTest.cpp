// Controls and widgets stand for one another, one to one.
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimeEdit>

#include "desktop/widgets/PasswordEdit.h"
#include "desktop/widgets/PathEdit.h"
#include "tests/desktop/WindowFixture.h"

namespace kestedit::test {
namespace {

bool isRightKind(ControlKind kind, const QWidget& widget) {
    const auto is = [&](const char* name) { return widget.inherits(name); };
    switch (kind) {
        case ControlKind::frame:
            return qstrcmp(widget.metaObject()->className(), "QWidget") == 0;
        case ControlKind::label:
        case ControlKind::picture:
            return is("QLabel");
        case ControlKind::command:
            return is("QPushButton");
        case ControlKind::nodeList:
            return is("QTreeWidget");
        case ControlKind::check:
            return is("QCheckBox");
        case ControlKind::option:
            return is("QRadioButton");
        case ControlKind::text:
            return is("QLineEdit");
        case ControlKind::password:
            return is("kestedit::PasswordEdit");
        case ControlKind::memo:
            return is("QPlainTextEdit");
        case ControlKind::path:
            return is("kestedit::PathEdit");
        case ControlKind::pick:
            return is("QComboBox");
        case ControlKind::number:
        case ControlKind::spin:
            return is("kestedit::NumberEdit");
        case ControlKind::date:
            return is("QDateEdit");
        case ControlKind::time:
            return is("QTimeEdit");
    }
    return false;
}

/// The nearest widget above that shows a frame.
QString frameAbove(const QWidget& widget) {
    for (const QWidget* above = widget.parentWidget(); above; above = above->parentWidget())
        if (above->objectName().startsWith(QLatin1String("fra"))) return above->objectName();
    return {};
}

class Binding : public WindowTest, public testing::WithParamInterface<int> {};

TEST_P(Binding, EveryControlHasOneWidgetOfItsKindInItsFrame) {
    open("New", GetParam()).makeAllPages();
    for (const EditorControl* control : form().controls()) {
        SCOPED_TRACE(control->Name());
        ASSERT_NE(window().binder().bindingOf(*control), nullptr);
        const QWidget& widget = window().binder().bindingOf(*control)->widget();
        EXPECT_EQ(window().findChildren<QWidget*>(widgetName(*control)).size(), 1);
        EXPECT_TRUE(isRightKind(control->Kind, widget)) << widget.metaObject()->className();
        EXPECT_EQ(frameAbove(widget), control->Container ? widgetName(*control->Container) : QString());
    }
}

TEST_P(Binding, NoWidgetOfAPageIsBoundToNothing) {
    open("New", GetParam()).makeAllPages();
    for (const PageArea* area : window().findChildren<PageArea*>()) {
        for (const QWidget* widget : area->widget()->findChildren<QWidget*>()) {
            if (widget->objectName().isEmpty() || widget->objectName().startsWith(QLatin1String("qt_"))) continue;
            // A page without a title of its own goes by its node's; a field's notice goes with the field.
            const QString owner = widget->objectName().section(QLatin1String("_notice"), 0, 0);
            EXPECT_TRUE(owner == QLatin1String("pageHeading") || window().binder().bindingOf(widget) ||
                        form().find(owner.toStdString()))
                << widget->objectName().toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Views, Binding, testing::ValuesIn(allViews));

/// What a user sees of a control, read back from the widget alone.
std::string seen(const kestedit::Binding& binding) {
    const QWidget& widget = binding.widget();
    std::string text = binding.control().Name();
    text += widget.isEnabledTo(widget.parentWidget()) ? " enabled" : " disabled";
    if (binding.control().Container) text += widget.isHidden() ? " hidden" : " visible";
    if (const auto* box = qobject_cast<const QCheckBox*>(&widget)) text += " " + std::to_string(box->checkState());
    if (const auto* option = qobject_cast<const QRadioButton*>(&widget)) text += option->isChecked() ? " set" : "";
    if (const auto* pick = qobject_cast<const QComboBox*>(&widget)) text += " " + pick->currentText().toStdString();
    if (const auto* number = qobject_cast<const QAbstractSpinBox*>(&widget)) text += " " + number->text().toStdString();
    if (const auto* memo = qobject_cast<const QPlainTextEdit*>(&widget))
        text += " " + memo->toPlainText().toStdString();
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        if (!label->buddy()) text += " " + label->text().toStdString();
    }
    if (binding.control().Kind == ControlKind::text)
        text += " " + static_cast<const QLineEdit&>(widget).text().toStdString();
    return text + " " + widget.toolTip().toStdString();
}

std::string said(const EditorControl& control, const DateFormat& dates) {
    std::string text = control.Name() + (control.Enabled ? " enabled" : " disabled");
    const bool page = control.Kind == ControlKind::frame && !control.Container;
    if (control.Container) text += control.Visible ? " visible" : " hidden";
    if (control.Kind == ControlKind::check)
        text += " " + std::to_string(control.State == 1 ? 2 : control.State == 2 ? 1 : 0);
    if (control.Kind == ControlKind::option && control.isSet()) text += " set";
    if (control.Kind == ControlKind::pick) text += " " + (control.itemIndex() ? control.text() : "");
    if (control.Kind == ControlKind::number || control.Kind == ControlKind::spin)
        text += " " + (control.isEmpty() ? "" : std::to_string(control.number()));
    if (control.Kind == ControlKind::date) text += " " + (control.date() ? dates.text(*control.date()) : "");
    if (control.Kind == ControlKind::time) text += " " + (control.time() ? timeText(*control.time()) : "");
    if (control.Kind == ControlKind::memo) text += " " + linesToQt(control.text()).toStdString();
    if (control.Kind == ControlKind::text) text += " " + control.text();
    static_cast<void>(page);
    return text + " " + toolTipText(control.ToolTipText).toStdString();
}

// Whatever an event changes, on whatever page, the widgets say what the form says.
TEST_F(WindowTest, WidgetsFollowEveryRule) {
    open().makeAllPages();
    const auto compare = [&](const std::string& after) {
        for (const auto& binding : window().binder().bindings()) {
            const EditorControl& control = binding->control();
            std::string expected = said(control, dates);
            if (control.Kind == ControlKind::label || control.Kind == ControlKind::picture) {
                const auto* label = qobject_cast<const QLabel*>(&binding->widget());
                if (!label->buddy()) {
                    const std::string head = control.Name() + (control.Enabled ? " enabled" : " disabled") +
                                             (control.Container ? (control.Visible ? " visible" : " hidden") : "");
                    expected = head + " " + withoutMnemonic(toQt(control.Caption)).toStdString() + " " +
                               toolTipText(control.ToolTipText).toStdString();
                }
            }
            ASSERT_EQ(seen(*binding), expected) << after;
        }
    };
    compare("start");
    for (const EditorControl* control : form().controls()) {
        if (control->Kind != ControlKind::check && control->Kind != ControlKind::option) continue;
        if (form().obstacle(*control)) continue;
        press(control->Name());
        compare(control->Name());
    }
}

}  // namespace
}  // namespace kestedit::test
