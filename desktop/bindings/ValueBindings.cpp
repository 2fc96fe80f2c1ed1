// Fields that hold a number, a date, a time of day or an entry of a list.
#include <QComboBox>
#include <QLineEdit>
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <string>

#include "desktop/Text.h"
#include "desktop/bindings/Kinds.h"
#include "desktop/widgets/DateEdit.h"
#include "desktop/widgets/NumberEdit.h"
#include "desktop/widgets/TimeEdit.h"
#include "editor/NumberRanges.h"

namespace kestedit {

namespace {

/// A field whose widget is its only focus and which the wheel changes.
template <typename Widget>
class ValueBinding : public Binding {
  public:
    ValueBinding(EditorControl& control, Widget& edit, EventGate& gate) : Binding(control, edit, gate), edit_(edit) {}

    [[nodiscard]] std::vector<QWidget*> focusWidgets() const override { return {&edit_}; }
    [[nodiscard]] bool isField() const override { return true; }
    [[nodiscard]] bool takesWheel() const override { return true; }

  protected:
    [[nodiscard]] Widget& edit() const { return edit_; }

  private:
    Widget& edit_;
};

class PickBinding final : public ValueBinding<QComboBox> {
  public:
    PickBinding(EditorControl& control, QComboBox& box, EventGate& gate) : ValueBinding(control, box, gate) {
        box.setFocusPolicy(Qt::StrongFocus);
        box.setSizeAdjustPolicy(QComboBox::AdjustToContents);
        QObject::connect(&box, &QComboBox::activated, &box, [this](int index) {
            this->hand([this, index](frmEdit& form) { form.onItemPicked(this->control(), index); });
        });
    }

  protected:
    void showContent() override {
        if (shown_ != control().Items) {
            shown_ = control().Items;
            edit().clear();
            for (const std::string& entry : control().distinctItems())
                edit().addItem(toQt(entry));
        }
        const int index = control().itemIndex().value_or(-1);
        if (edit().currentIndex() != index) edit().setCurrentIndex(index);
        // A text that is no entry of the list stands in the job all the same.
        if (index < 0) edit().setPlaceholderText(toQt(control().text()));
    }

  private:
    std::vector<std::string> shown_;
};

class NumberBinding : public ValueBinding<NumberEdit> {
  public:
    NumberBinding(EditorControl& control, NumberEdit& edit, EventGate& gate)
        : ValueBinding(control, edit, gate), range_(numberRange(control.Base)) {
        edit.setDigits(static_cast<int>(std::to_string(range_.most).size()));
        QObject::connect(&edit, &NumberEdit::typed, &edit, [this](std::optional<std::int64_t> number) {
            this->hand([this, number](frmEdit& form) { form.onNumberTyped(this->control(), number); });
        });
        QObject::connect(&edit, &NumberEdit::stepped, &edit,
                         [this](int steps) { this->hand([this, steps](frmEdit& form) { step(form, steps); }); });
    }

  protected:
    void showReadOnly(bool readOnly) override { edit().setReadOnly(readOnly); }
    void showContent() override {
        const auto* const held = std::get_if<std::int64_t>(&control().EditValue);
        const std::optional<std::int64_t> number = held ? std::optional{*held} : std::nullopt;
        if (edit().number() != number) edit().setNumber(number);
    }
    // A step at the end of the range leads nowhere, and there is nothing to say about it.
    virtual void step(frmEdit& form, int steps) {
        form.onNumberTyped(control(), std::clamp(control().number() + steps, range_.least, range_.most));
    }

  private:
    const NumberRange range_;
};

/// Steps are the form's: they carry into the next unit.
class SpinBinding final : public NumberBinding {
  public:
    using NumberBinding::NumberBinding;

  protected:
    void step(frmEdit& form, int steps) override {
        for (int i = 0; i < std::abs(steps); ++i)
            form.onSpin(control(), steps > 0);
    }
};

class DateBinding final : public ValueBinding<DateEdit> {
  public:
    DateBinding(EditorControl& control, DateEdit& edit, EventGate& gate) : ValueBinding(control, edit, gate) {
        edit.setDisplayFormat(toQt(gate.form().platform().dates.pattern()));
        const auto& strings = gate.form().Localizer;
        edit.setCalendarTexts(toQt(strings[today]), toQt(strings[clear]));
        QObject::connect(&edit, &DateEdit::chosen, &edit, [this] {
            const std::optional<Date> date = this->edit().content();
            this->hand([this, date](frmEdit& form) { form.onDateChosen(this->control(), date); });
        });
    }

  protected:
    void showContent() override {
        if (first_ || edit().content() != control().date()) edit().setContent(control().date());
        first_ = false;
    }

  private:
    // Identifiers of the localizer.
    static constexpr std::size_t clear = 0;
    static constexpr std::size_t today = 1;

    bool first_ = true;
};

class TimeBinding final : public ValueBinding<TimeEdit> {
  public:
    TimeBinding(EditorControl& control, TimeEdit& edit, EventGate& gate) : ValueBinding(control, edit, gate) {
        QObject::connect(&edit, &TimeEdit::chosen, &edit, [this] {
            const std::optional<TimeOfDay> time = this->edit().content();
            this->hand([this, time](frmEdit& form) { form.onTimeChosen(this->control(), time); });
        });
    }

  protected:
    void showContent() override {
        if (first_ || edit().content() != control().time()) edit().setContent(control().time());
        first_ = false;
    }

  private:
    bool first_ = true;
};

}  // namespace

std::unique_ptr<Binding> bindPick(EditorControl& control, QWidget& widget, EventGate& gate) {
    return std::make_unique<PickBinding>(control, widgetAs<QComboBox>(widget), gate);
}

std::unique_ptr<Binding> bindNumber(EditorControl& control, QWidget& widget, EventGate& gate) {
    return std::make_unique<NumberBinding>(control, widgetAs<NumberEdit>(widget), gate);
}

std::unique_ptr<Binding> bindSpin(EditorControl& control, QWidget& widget, EventGate& gate) {
    return std::make_unique<SpinBinding>(control, widgetAs<NumberEdit>(widget), gate);
}

std::unique_ptr<Binding> bindDate(EditorControl& control, QWidget& widget, EventGate& gate) {
    return std::make_unique<DateBinding>(control, widgetAs<DateEdit>(widget), gate);
}

std::unique_ptr<Binding> bindTime(EditorControl& control, QWidget& widget, EventGate& gate) {
    return std::make_unique<TimeBinding>(control, widgetAs<TimeEdit>(widget), gate);
}

}  // namespace kestedit
