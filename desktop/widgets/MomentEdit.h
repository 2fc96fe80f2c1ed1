// A date or a time of day as a line of text, which takes whatever is typed.
#pragma once

#include <QAbstractSpinBox>
#include <QString>

namespace kestedit {

/// Reads nothing itself: it tells what is typed and how many steps the user wants. However it gets the focus, typing
/// replaces the whole text, unless a second click has set the caret.
class MomentEdit : public QAbstractSpinBox {
    Q_OBJECT

  public:
    explicit MomentEdit(QWidget* parent = nullptr);

    [[nodiscard]] QLineEdit& line() const { return *lineEdit(); }
    /// The longest text that the field must have room for.
    void setLongestText(const QString& text);

    /// The place in the text where a step applies: where the caret stands, the selection begins or the field was
    /// clicked.
    [[nodiscard]] int caret() const;
    void select(int begin, int length);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
    void stepBy(int steps) override;
    QValidator::State validate(QString& text, int& position) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  signals:
    void typed(const QString& text);
    /// The user has pressed Return.
    void confirmed();
    void stepped(int steps);

  protected:
    [[nodiscard]] StepEnabled stepEnabled() const override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    /// Of the field around a line of that size.
    [[nodiscard]] virtual QSize sizeAround(const QSize& line) const;

  private:
    QString longestText_;
    bool clickedIn_ = false;  // the mouse button that gave the focus is still down
    int clickedCaret_ = 0;    // where that click was; it counts as long as the whole text is selected
};

}  // namespace kestedit
