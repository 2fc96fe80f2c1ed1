#include "desktop/bindings/Binding.h"

#include <array>
#include <cstddef>

#include "desktop/Text.h"
#include "desktop/bindings/Kinds.h"
#include "desktop/bindings/NoticePlace.h"
#include "desktop/widgets/NoticeLabel.h"

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
    showNotice();
    return renamed;
}

void Binding::showNotice() {
    const std::string& wanted = refusal_.empty() ? control_.Notice : refusal_;
    if (!wanted.empty() && !notice_) {
        notice_ = new NoticeLabel(&widget_);
        notice_->setObjectName(widget_.objectName() + noticeSuffix);
        notice_->hide();
    }
    if (!notice_) return;
    // A view may have moved the widget to another page since.
    if (placed_ != widget_.parentWidget()) {
        if (!placeNotice(*notice_)) return;
        placed_ = widget_.parentWidget();
    }
    notice_->setWarns(!refusal_.empty() || control_.NoticeWarns);
    if (shown_.notice != wanted) {
        shown_.notice = wanted;
        const QString text = linesToQt(wanted);
        notice_->setText(text);
        for (QWidget* described : describedWidgets())
            described->setAccessibleDescription(text);
    }
    const bool visible = control_.Visible && !wanted.empty();
    if (notice_->isHidden() == visible) notice_->setVisible(visible);
}

bool Binding::showsNotice() const {
    return notice_ && notice_->isVisible();
}

bool Binding::placeNotice(NoticeLabel& notice) {
    return placeNoticeBelow(widget_, notice);
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
