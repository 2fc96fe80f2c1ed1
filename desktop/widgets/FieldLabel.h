// The caption beside or above a field.
#pragma once

#include <QLabel>
#include <QStringList>

namespace kestedit {

class FieldLabel : public QLabel {
    Q_OBJECT

  public:
    explicit FieldLabel(QWidget* parent = nullptr) : QLabel(parent) { setTextFormat(Qt::PlainText); }

    /// Captions that the label takes in turn: it is as wide as the widest, so that nothing beside it moves.
    void setAlternatives(QStringList captions);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  private:
    /// As wide as the caption, or as the widest of them.
    [[nodiscard]] QSize withRoom(QSize size) const;

    QStringList alternatives_;
};

}  // namespace kestedit
