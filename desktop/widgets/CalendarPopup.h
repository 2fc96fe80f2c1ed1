// The calendar that drops down from a date.
#pragma once

#include <QDate>
#include <QFrame>
#include <optional>

class QCalendarWidget;

namespace kestedit {

/// Closes itself when a day or one of its buttons is chosen.
class CalendarPopup : public QFrame {
    Q_OBJECT

  public:
    /// A button without a caption is not there.
    CalendarPopup(const QString& today, const QString& clear, QWidget* parent);

    /// Drops down from `field`, with all its room on the screen.
    void openAt(const QWidget& field, std::optional<QDate> date);
    [[nodiscard]] QCalendarWidget& days() const { return *days_; }

  signals:
    void chosen(QDate date);
    void todayChosen();
    void cleared();

  private:
    QCalendarWidget* const days_;
};

}  // namespace kestedit
