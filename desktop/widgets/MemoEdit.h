// Text of several lines in which Tab leads to the next field, as everywhere on a form.
#pragma once

#include <QPlainTextEdit>

namespace kestedit {

class MemoEdit : public QPlainTextEdit {
    Q_OBJECT

  public:
    explicit MemoEdit(QWidget* parent = nullptr) : QPlainTextEdit(parent) { setTabChangesFocus(true); }

    [[nodiscard]] QSize sizeHint() const override { return {200, fontMetrics().lineSpacing() * 8}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {120, fontMetrics().lineSpacing() * 4}; }
};

}  // namespace kestedit
