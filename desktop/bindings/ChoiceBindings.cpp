// Check boxes and option groups.
#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QRadioButton>
#include <algorithm>
#include <span>

#include "desktop/bindings/Kinds.h"
#include "desktop/bindings/NoticePlace.h"

namespace kestedit {

namespace {

class CheckBinding final : public Binding {
  public:
    CheckBinding(EditorControl& control, QCheckBox& box, EventGate& gate) : Binding(control, box, gate), box_(box) {
        QObject::connect(&box, &QCheckBox::clicked, &box, [this] {
            const int state = box_.isChecked() ? 1 : 0;
            hand([this, state](frmEdit& form) { form.onCheckClicked(this->control(), state); });
        });
    }

    [[nodiscard]] std::vector<QWidget*> focusWidgets() const override { return {&box_}; }

  protected:
    void showCaption(const QString& caption) override { box_.setText(caption); }
    void showContent() override {
        // A grey box becomes a plain one with the user's click, and stays one.
        const bool grey = control().State == 2;
        if (box_.isTristate() != grey) box_.setTristate(grey);
        const Qt::CheckState state = grey ? Qt::PartiallyChecked : control().isSet() ? Qt::Checked : Qt::Unchecked;
        if (box_.checkState() != state) box_.setCheckState(state);
    }

  private:
    QCheckBox& box_;
};

class OptionBinding final : public Binding {
  public:
    OptionBinding(EditorControl& control, QRadioButton& button, EventGate& gate)
        : Binding(control, button, gate), button_(button), members_(gate.form().group(control.Base)) {
        QObject::connect(&button, &QRadioButton::clicked, &button,
                         [this] { hand([this](frmEdit& form) { form.onOptionChosen(this->control()); }); });
    }

    [[nodiscard]] std::vector<QWidget*> focusWidgets() const override { return {&button_}; }

  protected:
    void showCaption(const QString& caption) override { button_.setText(caption); }

    void showContent() override {
        if (button_.isChecked() == control().isSet()) return;
        // The form may select no member at all, or two for a moment: the group is to show what it is told.
        QButtonGroup* const group = button_.group();
        if (group) group->setExclusive(false);
        button_.setChecked(control().isSet());
        if (group) group->setExclusive(true);
    }

    // A group is one stop of the tab sequence: its selected member, and arrow keys lead to the others. A group without
    // a member selected is entered at each.
    void showTabStop() override {
        const bool another = std::ranges::any_of(members_, [this](const EditorControl* member) {
            return member != &control() && member->isSet() && member->Visible && member->Enabled;
        });
        const bool stop = control().TabStop && (control().isSet() || !another);
        const Qt::FocusPolicy policy = stop ? Qt::StrongFocus : Qt::ClickFocus;
        if (button_.focusPolicy() != policy) button_.setFocusPolicy(policy);
    }

    // A group is one question, and its notice stands below the last answer.
    bool placeNotice(NoticeLabel& notice) override {
        const QRadioButton* last = &button_;
        for (const auto* sibling :
             button_.parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly))
            if (sibling->group() == button_.group()) last = sibling;
        return placeNoticeBelow(*last, notice);
    }
    [[nodiscard]] std::vector<QWidget*> describedWidgets() const override {
        const auto buttons = button_.group()->buttons();
        return {buttons.begin(), buttons.end()};
    }

  private:
    QRadioButton& button_;
    const std::span<EditorControl* const> members_;
};

}  // namespace

std::unique_ptr<Binding> bindCheck(EditorControl& control, QWidget& widget, EventGate& gate) {
    return std::make_unique<CheckBinding>(control, widgetAs<QCheckBox>(widget), gate);
}

std::unique_ptr<Binding> bindOption(EditorControl& control, QWidget& widget, EventGate& gate) {
    return std::make_unique<OptionBinding>(control, widgetAs<QRadioButton>(widget), gate);
}

}  // namespace kestedit
