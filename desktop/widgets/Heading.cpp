#include "desktop/widgets/Heading.h"

#include <QApplication>
#include <QEvent>

namespace kestedit {

Heading::Heading(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    adjustFont();
}

void Heading::setLevel(int level) {
    level_ = level;
    setContentsMargins(0, level == 2 ? 14 : level == 3 ? 6 : 0, 0, level == 1 ? 4 : 0);
    adjustFont();
}

bool Heading::event(QEvent* event) {
    if (event->type() == QEvent::ApplicationFontChange) adjustFont();
    return QLabel::event(event);
}

void Heading::adjustFont() {
    QFont font = QApplication::font("QLabel");
    font.setPointSizeF(font.pointSizeF() * (level_ == 1 ? 1.45 : 1.0));
    font.setWeight(level_ == 3 ? QFont::Normal : QFont::DemiBold);
    setFont(font);
}

}  // namespace kestedit
