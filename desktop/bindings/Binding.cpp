#include "desktop/bindings/Binding.h"

#include <array>
#include <cstddef>

#include "desktop/Text.h"
#include "desktop/bindings/Kinds.h"

namespace kestedit {

bool Binding::refresh() {
    const bool renamed = shown_.first || shown_.caption != control_.Caption || shown_.visible != control_.Visible;
    if (shown_.first || shown_.caption != control_.Caption) {
        shown_.caption = control_.Caption;
        showCaption(toQt(shown_.caption));
    }
    if (shown_.first || shown_.toolTip != control_.ToolTipText) {
        shown_.toolTip = control_.ToolTipText;
        widget_.setToolTip(toolTipText(shown_.toolTip));
    }
    if (shown_.first || shown_.readOnly != control_.ReadOnly) {
        shown_.readOnly = control_.ReadOnly;
        showReadOnly(shown_.readOnly);
    }
    if (shown_.first || shown_.enabled != control_.Enabled) {
        shown_.enabled = control_.Enabled;
        widget_.setEnabled(shown_.enabled);
    }
    if (shown_.first || shown_.visible != control_.Visible) {
        shown_.visible = control_.Visible;
        showVisible(shown_.visible);
    }
    shown_.first = false;
    showTabStop();
    showContent();
    return renamed;
}

void Binding::showTabStop() {
    const Qt::FocusPolicy policy = control_.TabStop ? Qt::StrongFocus : Qt::ClickFocus;
    for (QWidget* widget : focusWidgets()) {
        if (widget->focusPolicy() != policy) widget->setFocusPolicy(policy);
    }
}

std::unique_ptr<Binding> makeBinding(EditorControl& control, QWidget& widget, EventGate& gate) {
    // In the order of ControlKind.
    static constexpr std::array<MakeBinding*, 16> kinds{
        bindFrame,    bindLabel, bindCommand, bindPicture, bindNodeList, bindCheck, bindOption, bindText,
        bindPassword, bindMemo,  bindPath,    bindPick,    bindNumber,   bindSpin,  bindDate,   bindTime,
    };
    static_assert(static_cast<std::size_t>(ControlKind::time) + 1 == kinds.size(), "a kind of control has no binding");
    return kinds[static_cast<std::size_t>(control.Kind)](control, widget, gate);
}

}  // namespace kestedit
