// One control of a form and the widget that shows it.
#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "editor/frmEdit.h"

namespace kestedit {

class Binding;
class NoticeLabel;

/// Where bindings send what the user does.
class EventGate {
  public:
    using Event = std::function<void(frmEdit&)>;

    virtual ~EventGate() = default;

    [[nodiscard]] virtual const frmEdit& form() const = 0;
    /// Hands one user event to the form and then shows what the form says. An event that comes while another is handled
    /// waits for its end, so `event` must own what it uses. Why the form refused it is told at `field`, or in a message
    /// where there is none; so is a failure of the system.
    virtual void hand(Event event, Binding* field) = 0;
    void hand(Event event) { hand(std::move(event), nullptr); }
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

    /// Why the form did not take what the user did here last; empty when it did. Stands in the place of the control's
    /// notice from the next refresh on.
    void setRefusal(std::string reason) { refusal_ = std::move(reason); }
    /// Whether the user can see a notice at the widget now.
    [[nodiscard]] bool showsNotice() const;

  protected:
    [[nodiscard]] EventGate& gate() const { return gate_; }
    /// Hands over what the user did at this widget.
    void hand(EventGate::Event event) { gate_.hand(std::move(event), this); }
    [[nodiscard]] const modIniHandler& texts() const { return gate_.form().texts(); }

    /// The content: value, state, entries.
    virtual void showContent() {}
    virtual void showCaption(const QString& /*caption*/) {}
    virtual void showReadOnly(bool /*readOnly*/) {}
    virtual void showVisible(bool visible) { widget_.setVisible(visible); }
    virtual void showTabStop();
    /// Puts a notice into the page: below the widget, or wherever the control's notice is looked for.
    virtual bool placeNotice(NoticeLabel& notice);
    /// The widgets that a screen reader describes by the notice.
    [[nodiscard]] virtual std::vector<QWidget*> describedWidgets() const { return focusWidgets(); }

  private:
    void showNotice();

    /// The properties as they were shown last.
    struct Shown {
        bool first = true;
        bool enabled = true;
        bool visible = true;
        bool readOnly = false;
        std::string caption;
        std::string toolTip;
        std::string notice;
    };

    EditorControl& control_;
    QWidget& widget_;
    EventGate& gate_;
    Shown shown_;
    std::string refusal_;
    QPointer<NoticeLabel> notice_;     // made with the first notice, a child of the page
    const QWidget* placed_ = nullptr;  // where the widget stood when its notice was placed
};

/// The binding of the control's kind. Throws std::logic_error when `widget` is none that can show it.
[[nodiscard]] std::unique_ptr<Binding> makeBinding(EditorControl& control, QWidget& widget, EventGate& gate);

}  // namespace kestedit
