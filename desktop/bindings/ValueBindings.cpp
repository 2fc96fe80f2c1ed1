// Fields that hold a number, a date, a time of day or an entry of a list.
#include <QComboBox>
#include <QLineEdit>
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <string>

#include "desktop/Text.h"
#include "desktop/bindings/Kinds.h"
#include "desktop/bindings/LineText.h"
#include "desktop/widgets/DateEdit.h"
#include "desktop/widgets/MomentEdit.h"
#include "desktop/widgets/NumberEdit.h"
#include "editor/NumberRanges.h"

namespace kestedit {

namespace {

QDate qtDate(Date date) {
    return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day()))};
}

Date dateFromQt(QDate date) {
    return Date{std::chrono::year{date.year()}, std::chrono::month{static_cast<unsigned>(date.month())},
                std::chrono::day{static_cast<unsigned>(date.day())}};
}

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
        // A narrow page cuts a long entry.
        if (control().ToolTipText.empty()) edit().setToolTip(toolTipText(control().text()));
    }

  private:
    std::vector<std::string> shown_;
};

class NumberBinding : public ValueBinding<NumberEdit> {
  public:
    NumberBinding(EditorControl& control, NumberEdit& edit, EventGate& gate)
        : ValueBinding(control, edit, gate), range_(numberRange(control.Base)) {
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
        // A stored number may be longer than any that can be typed.
        const auto digits = [](std::int64_t of) { return static_cast<int>(std::to_string(of).size()); };
        const int needed = std::max(digits(range_.most), digits(number.value_or(0)));
        if (edit().digits() != needed) edit().setDigits(needed);
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

/// Place in `shown` of the number in which the caret stood while it was typed: "5|.11.2026" is "05|.11.2026".
int caretInSameNumber(const QString& typed, int caret, const QString& shown) {
    const auto endsNumber = [](const QString& text, int at) {
        return at > 0 && at < text.size() && text[at - 1].isDigit() && !text[at].isDigit();
    };
    int numbers = 0;
    bool separated = false;
    for (int at = 1; at < typed.size(); ++at) {
        separated = separated || endsNumber(typed, at);
        if (at < caret && endsNumber(typed, at)) ++numbers;
    }
    if (caret >= typed.size()) return static_cast<int>(shown.size());
    for (int at = 0; at < shown.size(); ++at) {
        if (separated && endsNumber(shown, at) && numbers-- == 0) return at;
        if (!separated && shown[at].isDigit() && caret-- == 0) return at;
    }
    return static_cast<int>(shown.size());
}

/// A date or a time of day: what is typed is read by the form.
class MomentBinding : public ValueBinding<MomentEdit> {
  public:
    MomentBinding(EditorControl& control, MomentEdit& edit, EventGate& gate) : ValueBinding(control, edit, gate) {
        QObject::connect(&edit, &MomentEdit::typed, &edit, [this](const QString& text) {
            hand([this, typed = fromQt(text)](frmEdit& form) { form.onTextTyped(this->control(), typed); });
        });
        QObject::connect(&edit, &MomentEdit::confirmed, &edit, [this] { endTyping(); });
        QObject::connect(&edit, &MomentEdit::stepped, &edit, [this](int steps) {
            const QString typed = this->edit().text();
            const int caret = this->edit().caret();
            endTyping();
            const QString shown = this->edit().text();
            const int place = shown == typed ? caret : caretInSameNumber(typed, caret, shown);
            step(fromQt(shown.left(place)).size(), steps);
        });
    }

  protected:
    [[nodiscard]] const Platform& platform() const { return gate().form().platform(); }
    [[nodiscard]] std::string shownText() const { return gate().form().momentText(control()); }

    void showContent() override {
        const QString wanted = toQt(shownText());
        if (edit().text() != wanted) replaceText(edit().line(), wanted);
    }

    /// The user wants so many steps of what stands at that place of the text, which counts as the core counts.
    virtual void step(std::size_t caret, int steps) = 0;

    void select(const std::string& text, std::size_t begin, std::size_t length) {
        edit().select(static_cast<int>(toQt(text.substr(0, begin)).size()),
                      static_cast<int>(toQt(text.substr(begin, length)).size()));
    }

  private:
    void endTyping() {
        hand([this](frmEdit& form) { form.onEditingFinished(control()); });
    }
};

class DateBinding final : public MomentBinding {
  public:
    DateBinding(EditorControl& control, DateEdit& edit, EventGate& gate)
        : MomentBinding(control, edit, gate), edit_(edit) {
        const auto& strings = gate.form().Localizer;
        edit.setCalendarTexts(toQt(strings[today]), toQt(strings[clear]));
        edit.setLongestText(toQt(platform().dates.text(Date{std::chrono::year{2000} / 10 / 20})));
        QObject::connect(&edit, &DateEdit::chosen, &edit, [this](QDate date) { choose(dateFromQt(date)); });
        QObject::connect(&edit, &DateEdit::todayChosen, &edit, [this] { choose(platform().clock.now().date); });
        QObject::connect(&edit, &DateEdit::cleared, &edit, [this] { choose(std::nullopt); });
    }

  protected:
    void showContent() override {
        MomentBinding::showContent();
        const auto date = control().date();
        edit_.setDate(date ? std::optional{qtDate(*date)} : std::nullopt);
    }

    void step(std::size_t caret, int steps) override {
        const auto date = control().date();
        if (!date && shownText().empty()) return choose(platform().clock.now().date);
        if (!date || control().Typed) return;  // a text that says no date
        const auto [reached, begin, length] = platform().dates.step(*date, caret, steps);
        choose(reached);
        select(platform().dates.text(reached), begin, length);
    }

  private:
    // Identifiers of the localizer.
    static constexpr std::size_t clear = 0;
    static constexpr std::size_t today = 1;

    void choose(std::optional<Date> date) {
        hand([this, date](frmEdit& form) { form.onDateChosen(control(), date); });
    }

    DateEdit& edit_;
};

class TimeBinding final : public MomentBinding {
  public:
    TimeBinding(EditorControl& control, MomentEdit& edit, EventGate& gate) : MomentBinding(control, edit, gate) {
        edit.setLongestText(toQt(platform().times.text(TimeOfDay{std::chrono::days{1}} - TimeOfDay{1})));
    }

  protected:
    void step(std::size_t caret, int steps) override {
        const auto time = control().time();
        if (!time && shownText().empty()) return choose(platform().clock.now().time);
        if (!time || control().Typed) return;
        const auto [reached, begin, length] = platform().times.step(*time, caret, steps);
        choose(reached);
        select(platform().times.text(reached), begin, length);
    }

  private:
    void choose(TimeOfDay time) {
        hand([this, time](frmEdit& form) { form.onTimeChosen(control(), time); });
    }
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
    return std::make_unique<TimeBinding>(control, widgetAs<MomentEdit>(widget), gate);
}

}  // namespace kestedit
