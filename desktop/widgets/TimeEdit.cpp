#include "desktop/widgets/TimeEdit.h"

#include <QLocale>

namespace kestedit {

namespace {

/// The locale's short form has no seconds, but a job's time has.
QString formatWithSeconds(const QLocale& locale) {
    QString format = locale.timeFormat(QLocale::ShortFormat);
    if (!format.contains(u's')) format.replace(QLatin1String("mm"), QLatin1String("mm:ss"));
    return format;
}

}  // namespace

TimeEdit::TimeEdit(QWidget* parent) : Emptyable(parent) {
    setDisplayFormat(formatWithSeconds(locale()));
    connect(this, &QTimeEdit::timeChanged, this, &TimeEdit::chosen);
}

std::optional<TimeOfDay> TimeEdit::content() const {
    if (isEmpty()) return std::nullopt;
    return TimeOfDay{QTime(0, 0).secsTo(time())};
}

void TimeEdit::setContent(std::optional<TimeOfDay> time) {
    if (time) {
        showMoment(QDateTime(date(), QTime(0, 0).addSecs(static_cast<int>(time->count()))));
    } else {
        showNothing();
    }
}

}  // namespace kestedit
