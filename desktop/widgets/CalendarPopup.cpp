#include "desktop/widgets/CalendarPopup.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

namespace kestedit {

CalendarPopup::CalendarPopup(const QString& today, const QString& clear, QWidget* parent)
    : QFrame(parent, Qt::Popup), days_(new QCalendarWidget) {
    setFrameShape(QFrame::StyledPanel);
    days_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    days_->setFirstDayOfWeek(locale().firstDayOfWeek());
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(1, 1, 1, 4);
    column->addWidget(days_);
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(4, 0, 4, 0);
    column->addLayout(row);

    const auto addButton = [this, row](const QString& caption, void (CalendarPopup::*pressed)()) {
        if (caption.isEmpty()) return;
        auto* const button = new QPushButton(caption);
        row->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, pressed] {
            close();
            emit(this->*pressed)();
        });
    };
    addButton(today, &CalendarPopup::todayChosen);
    row->addStretch();
    addButton(clear, &CalendarPopup::cleared);

    const auto take = [this](QDate day) {
        if (!isVisible()) return;  // a click is both
        close();
        emit chosen(day);
    };
    connect(days_, &QCalendarWidget::clicked, this, take);
    connect(days_, &QCalendarWidget::activated, this, take);
}

void CalendarPopup::openAt(const QWidget& field, std::optional<QDate> date) {
    days_->setSelectedDate(date.value_or(QDate::currentDate()));
    adjustSize();
    const QRect screen = field.screen()->availableGeometry();
    const QPoint below = field.mapToGlobal(QPoint(0, field.height()));
    const QPoint above = field.mapToGlobal(QPoint(0, -height()));
    const bool fitsBelow = below.y() + height() <= screen.bottom() + 1;
    const int left = std::max(screen.left(), std::min(below.x(), screen.right() + 1 - width()));
    move(left, fitsBelow ? below.y() : std::max(screen.top(), above.y()));
    show();
    days_->setFocus();
}

}  // namespace kestedit
