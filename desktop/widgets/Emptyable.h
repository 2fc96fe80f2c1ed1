// Date and time fields that may hold nothing.
#pragma once

#include <QDateTimeEdit>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

namespace kestedit {

/// An empty field shows no text. The first digit or step fills in the present moment; Delete or Backspace over the
/// whole selected text empties the field.
template <typename Edit>
class Emptyable : public Edit {
  public:
    explicit Emptyable(QWidget* parent) : Edit(parent) {
        this->setFocusPolicy(Qt::StrongFocus);
        this->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    [[nodiscard]] bool isEmpty() const { return empty_; }
    /// Shows no text; the value behind it is kept for the next fill.
    void showNothing() {
        empty_ = true;
        showText();
    }
    void showMoment(const QDateTime& moment) {
        empty_ = false;
        const QSignalBlocker quiet(this);
        this->setDateTime(moment);
        showText();
    }

    void stepBy(int steps) override {
        if (empty_) return fill();
        Edit::stepBy(steps);
    }

  protected:
    /// The user has changed the content or emptied the field.
    virtual void announce() = 0;
    [[nodiscard]] virtual QDateTime presentMoment() const = 0;

    /// The user has emptied the field.
    void empty() {
        showNothing();
        announce();
    }
    void fill() {
        showMoment(presentMoment());
        this->setSelectedSection(this->sectionAt(0));
        announce();
    }

    [[nodiscard]] QString textFromDateTime(const QDateTime& moment) const override {
        return empty_ ? QString() : Edit::textFromDateTime(moment);
    }
    QValidator::State validate(QString& text, int& position) const override {
        return empty_ && text.isEmpty() ? QValidator::Acceptable : Edit::validate(text, position);
    }
    [[nodiscard]] QAbstractSpinBox::StepEnabled stepEnabled() const override {
        return empty_ ? QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled : Edit::stepEnabled();
    }
    void keyPressEvent(QKeyEvent* event) override {
        const bool deletes = event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace;
        const bool all = this->lineEdit()->selectedText() == this->lineEdit()->text();
        if (deletes && all && !empty_ && !this->isReadOnly()) return empty();
        if (empty_ && deletes) return;
        if (!event->text().isEmpty() && event->text().front().isDigit()) {
            if (empty_) fill();
            // The toolkit ignores a digit over all the sections together: it begins the first one.
            if (all) this->setSelectedSection(this->sectionAt(0));
        }
        Edit::keyPressEvent(event);
    }

  private:
    void showText() {
        const QSignalBlocker quiet(this->lineEdit());  // the base class would read a value out of the empty text
        this->lineEdit()->setText(this->textFromDateTime(this->dateTime()));
    }

    bool empty_ = false;
};

}  // namespace kestedit
