#include "desktop/widgets/NoticeLabel.h"

#include <QIcon>
#include <QPainter>
#include <QStyle>
#include <utility>

namespace kestedit {

namespace {

constexpr int signSize = 16;
constexpr int gap = 8;

}  // namespace

NoticeLabel::NoticeLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setContentsMargins(gap + signSize + gap, gap, gap, gap);
}

void NoticeLabel::setWarns(bool warns) {
    if (std::exchange(warns_, warns) != warns) update();
}

void NoticeLabel::paintEvent(QPaintEvent* event) {
    if (!text().isEmpty()) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor line = palette().color(QPalette::WindowText);
        line.setAlphaF(0.35F);
        painter.setPen(line);
        painter.setBrush(palette().brush(QPalette::Base));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
        const int top = gap + (fontMetrics().height() - signSize) / 2;
        const QRect sign = QStyle::visualRect(layoutDirection(), rect(), QRect(gap, top, signSize, signSize));
        style()
            ->standardIcon(warns_ ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation, nullptr, this)
            .paint(&painter, sign);
    }
    QLabel::paintEvent(event);
}

}  // namespace kestedit
