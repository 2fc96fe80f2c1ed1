// One control of a form and the widget that shows it.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "editor/frmEdit.h"

namespace kestedit {

/// Where bindings send what the user does.
class EventGate {
  public:
    virtual ~EventGate() = default;

    [[nodiscard]] virtual const frmEdit& form() const = 0;
    /// Hands one user event to the form and then shows what the form says. Gives the reason when the form refused the
    /// event; a failure of the system is shown to the user from here.
    virtual std::optional<std::string> hand(const std::function<void(frmEdit&)>& event) = 0;
};

/// Shows the control's properties and hands the user's events to the gate. Setting a widget from here never counts as
/// an event.
class Binding {
  public:
    /// All must outlive the binding.
    Binding(EditorControl& control, QWidget& widget, EventGate& gate)
        : control_(control), widget_(widget), gate_(gate) {}
    virtual ~Binding() = default;
    Binding(const Binding&) = delete;
    Binding& operator=(const Binding&) = delete;

    [[nodiscard]] EditorControl& control() const { return control_; }
    [[nodiscard]] QWidget& widget() const { return widget_; }

    /// Brings the widget to what the control says; touches only what differs. True when a caption has changed, or
    /// whether it can be seen.
    bool refresh();
    /// The widgets that take the keyboard, in tab order; none for what only shows.
    [[nodiscard]] virtual std::vector<QWidget*> focusWidgets() const { return {}; }
    /// Whether leaving the widget ends an editing that the form wants to hear of.
    [[nodiscard]] virtual bool isField() const { return false; }
    /// Whether the wheel would change the value.
    [[nodiscard]] virtual bool takesWheel() const { return false; }

  protected:
    [[nodiscard]] EventGate& gate() const { return gate_; }
    [[nodiscard]] const modIniHandler& texts() const { return gate_.form().texts(); }

    /// The content: value, state, entries.
    virtual void showContent() {}
    virtual void showCaption(const QString& /*caption*/) {}
    virtual void showReadOnly(bool /*readOnly*/) {}
    virtual void showVisible(bool visible) { widget_.setVisible(visible); }
    virtual void showTabStop();

  private:
    /// The properties as they were shown last.
    struct Shown {
        bool first = true;
        bool enabled = true;
        bool visible = true;
        bool readOnly = false;
        std::string caption;
        std::string toolTip;
    };

    EditorControl& control_;
    QWidget& widget_;
    EventGate& gate_;
    Shown shown_;
};

/// The binding of the control's kind. Throws std::logic_error when `widget` is none that can show it.
[[nodiscard]] std::unique_ptr<Binding> makeBinding(EditorControl& control, QWidget& widget, EventGate& gate);

}  // namespace kestedit
