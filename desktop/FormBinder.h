// Binds the controls of a form to the widgets of a window by name alone.
#pragma once

#include <QObject>
#include <QString>
#include <memory>
#include <unordered_map>
#include <vector>

#include "desktop/bindings/Binding.h"

namespace kestedit {

/// Name of the widget that shows `control`: the control's name, a member's as "optExist_2".
[[nodiscard]] QString widgetName(const EditorControl& control);

/// Set on the root widget of a page: names are looked up inside of it.
inline constexpr const char* pageProperty = "page";

/// Keeps the bindings of a window, listens to focus and wheel at their widgets, and gives every input the name
/// that a screen reader says.
///
/// A widget tells with two dynamic properties what its caption cannot: "labelledBy" names the widgets whose caption it
/// goes by when it has neither caption nor buddy (the first visible one counts), "groupedBy" the caption that is said
/// in front of its own, because another input of the page is called the same.
class FormBinder : public QObject {
    Q_OBJECT

  public:
    /// `gate` must outlive the binder.
    explicit FormBinder(EventGate& gate) : gate_(gate) {}

    /// Binds every control of the form whose widget stands in `root`, `root` among them; returns how many. A control
    /// that is bound already keeps its widget.
    std::size_t bind(QWidget& root);

    /// Brings all widgets to what the controls say.
    void refresh();

    /// Null for a control that has no widget yet.
    [[nodiscard]] Binding* bindingOf(const EditorControl& control) const;
    /// The binding that `widget` belongs to, or null.
    [[nodiscard]] Binding* bindingOf(const QWidget* widget) const;
    [[nodiscard]] const std::vector<std::unique_ptr<Binding>>& bindings() const { return bindings_; }

    /// Every widget that takes the keyboard, in the tab sequence of the form.
    [[nodiscard]] std::vector<QWidget*> tabSequence() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void add(EditorControl& control, QWidget& widget);
    void joinGroup(const EditorControl& control, QWidget& widget);
    void focusGained(Binding& binding);
    void focusLost(Binding& binding, Qt::FocusReason reason);

    EventGate& gate_;
    std::vector<std::unique_ptr<Binding>> bindings_;
    std::unordered_map<const EditorControl*, Binding*> byControl_;
    std::unordered_map<const QWidget*, Binding*> byWidget_;
};

}  // namespace kestedit
