#include "desktop/FormBinder.h"

#include <QApplication>
#include <QButtonGroup>
#include <QFocusEvent>
#include <QRadioButton>
#include <algorithm>
#include <set>

#include "desktop/AccessibleNames.h"
#include "desktop/Text.h"

namespace kestedit {

namespace {

bool isInput(const Binding& binding) {
    return !binding.focusWidgets().empty() && binding.control().Kind != ControlKind::nodeList;
}

bool hasFocus(const Binding& binding) {
    return std::ranges::any_of(binding.focusWidgets(), &QWidget::hasFocus);
}

/// While a question stands in front of the window, the focus wanders behind it without the user's doing.
bool isBehindQuestion(const Binding& binding) {
    const QWidget* const front = QApplication::activeModalWidget();
    return front && front != binding.widget().window();
}

const QWidget& pageOf(const QWidget& widget) {
    const QWidget* page = &widget;
    while (page->parentWidget() && !page->property(pageProperty).toBool())
        page = page->parentWidget();
    return *page;
}

/// The buttons inside of a field are called by the field and by what they do.
void nameForReaders(const Binding& binding) {
    const QString name = accessibleNameOf(binding.widget(), pageOf(binding.widget()));
    const auto parts = binding.focusWidgets();
    for (QWidget* part : parts)
        part->setAccessibleName(part == parts.front() ? name : name + QLatin1String(": ") + part->toolTip());
}

}  // namespace

QString widgetName(const EditorControl& control) {
    const QString base = toQt(control.Base);
    return control.Member < 0 ? base : base + u'_' + QString::number(control.Member);
}

std::size_t FormBinder::bind(QWidget& root) {
    std::unordered_map<std::string, QWidget*> byName;
    const auto enter = [&](QWidget* widget) {
        if (!widget->objectName().isEmpty()) byName.emplace(widget->objectName().toStdString(), widget);
    };
    enter(&root);
    std::ranges::for_each(root.findChildren<QWidget*>(), enter);

    std::size_t bound = 0;
    for (EditorControl* control : gate_.form().controls()) {
        if (byControl_.contains(control)) continue;
        const auto found = byName.find(widgetName(*control).toStdString());
        if (found == byName.end()) continue;
        add(*control, *found->second);
        ++bound;
    }
    return bound;
}

void FormBinder::add(EditorControl& control, QWidget& widget) {
    bindings_.push_back(makeBinding(control, widget, gate_));
    Binding* const binding = bindings_.back().get();
    byControl_.emplace(&control, binding);
    byWidget_.emplace(&widget, binding);
    joinGroup(control, widget);
    widget.installEventFilter(this);
    for (QWidget* part : binding->focusWidgets()) {
        byWidget_.emplace(part, binding);
        part->installEventFilter(this);
    }
}

void FormBinder::joinGroup(const EditorControl& control, QWidget& widget) {
    auto* const button = qobject_cast<QRadioButton*>(&widget);
    if (!button) return;
    for (const EditorControl* member : gate_.form().group(control.Base)) {
        const Binding* const other = bindingOf(*member);
        if (!other || &other->widget() == &widget) continue;
        static_cast<QRadioButton&>(other->widget()).group()->addButton(button);
        return;
    }
    (new QButtonGroup(widget.parentWidget()))->addButton(button);
}

void FormBinder::refresh() {
    std::set<const QWidget*> renamed;
    for (const auto& binding : bindings_)
        if (binding->refresh()) renamed.insert(&pageOf(binding->widget()));
    if (renamed.empty()) return;
    for (const auto& binding : bindings_)
        if (isInput(*binding) && renamed.contains(&pageOf(binding->widget()))) nameForReaders(*binding);
}

Binding* FormBinder::bindingOf(const EditorControl& control) const {
    const auto found = byControl_.find(&control);
    return found == byControl_.end() ? nullptr : found->second;
}

Binding* FormBinder::bindingOf(const QWidget* widget) const {
    for (; widget; widget = widget->parentWidget()) {
        if (const auto found = byWidget_.find(widget); found != byWidget_.end()) return found->second;
    }
    return nullptr;
}

std::vector<QWidget*> FormBinder::tabSequence() const {
    std::vector<const Binding*> inputs;
    for (const auto& binding : bindings_)
        if (!binding->focusWidgets().empty()) inputs.push_back(binding.get());
    std::ranges::stable_sort(inputs, {}, [](const Binding* binding) { return binding->control().TabIndex; });
    std::vector<QWidget*> sequence;
    for (const Binding* binding : inputs)
        std::ranges::copy(binding->focusWidgets(), std::back_inserter(sequence));
    return sequence;
}

bool FormBinder::eventFilter(QObject* watched, QEvent* event) {
    Binding* const binding = watched->isWidgetType() ? bindingOf(static_cast<QWidget*>(watched)) : nullptr;
    if (!binding) return false;
    switch (event->type()) {
        case QEvent::FocusIn:
            focusGained(*binding);
            return false;
        case QEvent::FocusOut:
            focusLost(*binding, static_cast<QFocusEvent*>(event)->reason());
            return false;
        case QEvent::Wheel:
            // A page is scrolled over a field without the focus; the field must not change on the way.
            if (!binding->takesWheel() || static_cast<QWidget*>(watched)->hasFocus()) return false;
            event->ignore();
            return true;
        default:
            return false;
    }
}

void FormBinder::focusGained(Binding& binding) {
    if (gate_.form().FocusedControl == &binding.control() || isBehindQuestion(binding)) return;
    gate_.hand([&binding](frmEdit& form) {
        // May have waited for another event, and the focus gone on with it.
        if (hasFocus(binding)) form.onFocused(binding.control());
    });
}

// A menu, a list that drops down or another window takes the focus for a moment only.
void FormBinder::focusLost(Binding& binding, Qt::FocusReason reason) {
    const bool back =
        reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason || reason == Qt::ActiveWindowFocusReason;
    if (back || !binding.isField() || isBehindQuestion(binding)) return;
    gate_.hand([&binding](frmEdit& form) { form.onEditingFinished(binding.control()); });
}

}  // namespace kestedit
