#include "desktop/widgets/DateEdit.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QPushButton>

namespace kestedit {

namespace {

QDate toQt(Date date) {
    return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day()))};
}

Date fromQt(QDate date) {
    return Date{std::chrono::year{date.year()}, std::chrono::month{static_cast<unsigned>(date.month())},
                std::chrono::day{static_cast<unsigned>(date.day())}};
}

}  // namespace

DateEdit::DateEdit(QWidget* parent) : Emptyable(parent) {
    setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31));
    setCalendarPopup(true);
    prepareCalendar();
    connect(this, &QDateEdit::dateChanged, this, &DateEdit::chosen);
}

std::optional<Date> DateEdit::content() const {
    return isEmpty() ? std::nullopt : std::optional{fromQt(date())};
}

void DateEdit::setContent(std::optional<Date> date) {
    if (date) {
        showMoment(toQt(*date).startOfDay());
    } else {
        showNothing();
    }
}

void DateEdit::setCalendarTexts(const QString& today, const QString& clear) {
    today_->setText(today);
    today_->setHidden(today.isEmpty());
    clear_->setText(clear);
    clear_->setHidden(clear.isEmpty());
}

void DateEdit::prepareCalendar() {
    auto* calendar = new QCalendarWidget;
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar->setFirstDayOfWeek(locale().firstDayOfWeek());
    today_ = new QPushButton(calendar);
    clear_ = new QPushButton(calendar);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(4, 4, 4, 4);
    row->addWidget(today_);
    row->addStretch();
    row->addWidget(clear_);
    static_cast<QBoxLayout*>(calendar->layout())->addLayout(row);

    // A day clicked in the calendar fills an empty field even when it is the day behind the empty text.
    connect(calendar, &QCalendarWidget::clicked, this, [this](QDate day) {
        if (!isEmpty()) return;
        showMoment(day.startOfDay());
        announce();
    });
    connect(today_, &QPushButton::clicked, calendar, [this, calendar] {
        calendar->window()->close();
        fill();
    });
    connect(clear_, &QPushButton::clicked, calendar, [this, calendar] {
        calendar->window()->close();
        empty();
    });
    setCalendarWidget(calendar);
}

}  // namespace kestedit
