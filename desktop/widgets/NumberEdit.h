// A whole number of any size that 64 bits hold, or none.
#pragma once

#include <QAbstractSpinBox>
#include <cstdint>
#include <optional>

namespace kestedit {

/// Takes no step itself: it tells how many steps the user wants, and shows the number that it is given then.
class NumberEdit : public QAbstractSpinBox {
    Q_OBJECT
    /// Digits that the field has room for without scrolling.
    Q_PROPERTY(int digits READ digits WRITE setDigits)

  public:
    explicit NumberEdit(QWidget* parent = nullptr);

    [[nodiscard]] std::optional<std::int64_t> number() const;
    void setNumber(std::optional<std::int64_t> number);
    [[nodiscard]] QLineEdit& line() const { return *lineEdit(); }

    [[nodiscard]] int digits() const { return digits_; }
    void setDigits(int digits);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
    void stepBy(int steps) override;
    QValidator::State validate(QString& text, int& position) const override;

  signals:
    /// The user typed; nothing stands for an emptied field.
    void typed(std::optional<std::int64_t> number);
    void stepped(int steps);

  protected:
    [[nodiscard]] StepEnabled stepEnabled() const override;

  private:
    void textEdited(const QString& text);

    int digits_ = 6;
};

}  // namespace kestedit
