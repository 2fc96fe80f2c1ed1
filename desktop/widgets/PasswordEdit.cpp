#include "desktop/widgets/PasswordEdit.h"

namespace kestedit {

PasswordEdit::PasswordEdit(QWidget* parent) : ButtonedEdit(parent), reveal_(addButton("field-show")) {
    line().setEchoMode(QLineEdit::Password);
    reveal_.setCheckable(true);
    connect(&reveal_, &QToolButton::toggled, this, &PasswordEdit::showOrHide);
}

void PasswordEdit::setButtonTexts(const QString& show, const QString& hide) {
    show_ = show;
    hide_ = hide;
    showOrHide(reveal_.isChecked());
}

void PasswordEdit::showOrHide(bool shown) {
    line().setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password);
    setPicture(reveal_, shown ? "field-hide" : "field-show");
    reveal_.setToolTip(shown ? hide_ : show_);
}

}  // namespace kestedit
