// The caption beside or above a field.
#pragma once

#include <QLabel>

namespace kestedit {

class FieldLabel : public QLabel {
    Q_OBJECT

  public:
    explicit FieldLabel(QWidget* parent = nullptr) : QLabel(parent) { setTextFormat(Qt::PlainText); }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  private:
    [[nodiscard]] QSize slack() const;
};

}  // namespace kestedit
