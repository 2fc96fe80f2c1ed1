// A password: hidden, with a button that shows it and hides it again.
#pragma once

#include "desktop/widgets/ButtonedEdit.h"

namespace kestedit {

class PasswordEdit : public ButtonedEdit {
    Q_OBJECT

  public:
    explicit PasswordEdit(QWidget* parent = nullptr);

    /// What the button does, as tool tip.
    void setButtonTexts(const QString& show, const QString& hide);

  private:
    void showOrHide(bool shown);

    QToolButton& reveal_;
    QString show_;
    QString hide_;
};

}  // namespace kestedit
