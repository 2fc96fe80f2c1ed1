// Controls and widgets stand for one another, one to one.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

#include "tests/desktop/WindowFixture.h"

namespace kestedit::test {
namespace {

/// The nearest widget above that shows a frame.
QString frameAbove(const QWidget& widget) {
    for (const QWidget* above = widget.parentWidget(); above; above = above->parentWidget())
        if (above->objectName().startsWith(QLatin1String("fra"))) return above->objectName();
    return {};
}

TEST_F(WindowTest, EveryControlHasOneWidgetInItsFrameAndEveryWidgetItsControl) {
    for (const int view : allViews) {
        open("New", view).makeAllPages();
        for (const EditorControl* control : form().controls()) {
            SCOPED_TRACE(control->Name() + ", view " + std::to_string(view));
            ASSERT_NE(window().binder().bindingOf(*control), nullptr);
            const QWidget& widget = window().binder().bindingOf(*control)->widget();
            EXPECT_EQ(window().findChildren<QWidget*>(widgetName(*control)).size(), 1);
            EXPECT_EQ(frameAbove(widget), control->Container ? widgetName(*control->Container) : QString());
        }
        for (const PageArea* area : window().findChildren<PageArea*>()) {
            for (const QWidget* widget : area->widget()->findChildren<QWidget*>()) {
                // A page without a title of its own goes by its node's; a field's notice goes with the field.
                const QString owner = widget->objectName().section(QLatin1String("_notice"), 0, 0);
                EXPECT_TRUE(owner.isEmpty() || owner.startsWith(QLatin1String("qt_")) || owner == "pageHeading" ||
                            window().binder().bindingOf(widget) || form().find(owner.toStdString()))
                    << owner.toStdString() << " is bound to nothing";
            }
        }
    }
}

/// What a user reads in a control's widget.
QString seen(const Binding& binding) {
    const QWidget& widget = binding.focusWidgets().empty() ? binding.widget() : *binding.focusWidgets().front();
    for (const char* property : {"plainText", "currentText", "text"})
        if (const QVariant text = widget.property(property); text.isValid()) return text.toString();
    return {};
}

/// What the form has a user read there.
QString said(const EditorControl& control, const Platform& platform) {
    using enum ControlKind;
    const ControlKind kind = control.Kind;
    if (kind == label || kind == command || kind == check || kind == option) return toQt(control.Caption);
    if (kind == number || kind == spin) return control.isEmpty() ? QString() : QString::number(control.number());
    if (const auto date = control.date()) return toQt(platform.dates.text(*date));
    if (const auto time = control.time()) return toQt(platform.times.text(*time));
    return linesToQt(control.text());
}

// Whatever an event changes, on whatever page, the widgets say what the form says.
TEST_F(WindowTest, WidgetsFollowEveryRule) {
    EXPECT_EQ(withoutMnemonic("&Save && close"), "Save & close");
    putJob("Grey", "[Job]\r\nName=Grey\r\nSubFolder=2\r\n");
    openJob("Grey").makeAllPages();
    const auto compare = [&](const std::string& after) {
        for (const auto& binding : window().binder().bindings()) {
            const EditorControl& control = binding->control();
            const QWidget& widget = binding->widget();
            SCOPED_TRACE(control.Name() + " after " + after);
            EXPECT_EQ(widget.isEnabledTo(widget.parentWidget()), control.Enabled);
            EXPECT_TRUE(!control.Container || widget.isHidden() != control.Visible);
            // A list says its entry in full where the form has no tip.
            const auto* list = qobject_cast<const QComboBox*>(&widget);
            EXPECT_EQ(widget.toolTip(),
                      toolTipText(list && control.ToolTipText.empty() ? control.text() : control.ToolTipText));
            const auto* box = qobject_cast<const QCheckBox*>(&widget);
            EXPECT_EQ(widget.property("checked").toBool(), control.State != 0);
            EXPECT_EQ(box && box->checkState() == Qt::PartiallyChecked, control.State == 2);
            // A mnemonic that leads nowhere is not shown.
            const auto* label = qobject_cast<const QLabel*>(&widget);
            const QString text = said(control, platform);
            ASSERT_EQ(seen(*binding), label && !label->buddy() ? withoutMnemonic(text) : text);
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
