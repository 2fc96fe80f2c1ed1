#include "desktop/widgets/FieldLabel.h"

#include <algorithm>
#include <utility>

#include "desktop/widgets/MnemonicSlack.h"

namespace kestedit {

void FieldLabel::setAlternatives(QStringList captions) {
    alternatives_ = std::move(captions);
    updateGeometry();
}

QSize FieldLabel::sizeHint() const {
    return withRoom(QLabel::sizeHint());
}

QSize FieldLabel::minimumSizeHint() const {
    return wordWrap() ? QLabel::minimumSizeHint() : withRoom(QLabel::minimumSizeHint());
}

QSize FieldLabel::withRoom(QSize size) const {
    const int present = fontMetrics().horizontalAdvance(text());
    int widest = present;
    for (const QString& caption : alternatives_)
        widest = std::max(widest, fontMetrics().horizontalAdvance(caption));
    return size + QSize(widest - present + mnemonicSlack(fontMetrics(), text()), 0);
}

}  // namespace kestedit
