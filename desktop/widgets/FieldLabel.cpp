#include "desktop/widgets/FieldLabel.h"

#include "desktop/widgets/MnemonicSlack.h"

namespace kestedit {

QSize FieldLabel::sizeHint() const {
    return QLabel::sizeHint() + slack();
}

QSize FieldLabel::minimumSizeHint() const {
    return wordWrap() ? QLabel::minimumSizeHint() : QLabel::minimumSizeHint() + slack();
}

QSize FieldLabel::slack() const {
    return {mnemonicSlack(fontMetrics(), text()), 0};
}

}  // namespace kestedit
