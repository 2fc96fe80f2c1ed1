// Check boxes and radio buttons whose captions break into lines where the page is too narrow for them.
#pragma once

#include <QCheckBox>
#include <QRadioButton>

namespace kestedit {

/// Draws itself as its base class does as long as the caption fits into one line.
template <typename Button>
class ChoiceButton : public Button {
  public:
    explicit ChoiceButton(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& position) const override;

  private:
    [[nodiscard]] QSize indicatorSize() const;
    [[nodiscard]] int captionOffset() const;
    /// Space that the caption takes when it is broken at `width`.
    [[nodiscard]] QSize captionSize(int width) const;
    [[nodiscard]] bool fitsOneLine() const { return this->width() >= this->sizeHint().width(); }
};

class CheckBox : public ChoiceButton<QCheckBox> {
    Q_OBJECT

  public:
    using ChoiceButton::ChoiceButton;
};

class RadioButton : public ChoiceButton<QRadioButton> {
    Q_OBJECT

  public:
    using ChoiceButton::ChoiceButton;
};

}  // namespace kestedit
