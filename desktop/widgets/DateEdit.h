// A date with its calendar, or nothing.
#pragma once

#include <QDateEdit>
#include <optional>

#include "desktop/widgets/Emptyable.h"
#include "platform/DateTime.h"

class QPushButton;

namespace kestedit {

class DateEdit : public Emptyable<QDateEdit> {
    Q_OBJECT

  public:
    explicit DateEdit(QWidget* parent = nullptr);

    [[nodiscard]] std::optional<Date> content() const;
    void setContent(std::optional<Date> date);
    /// Captions of the calendar's own buttons.
    void setCalendarTexts(const QString& today, const QString& clear);

  signals:
    void chosen();

  protected:
    void announce() override { emit chosen(); }
    [[nodiscard]] QDateTime presentMoment() const override { return QDateTime::currentDateTime(); }

  private:
    void prepareCalendar();

    QPushButton* today_ = nullptr;  // children of the calendar
    QPushButton* clear_ = nullptr;
};

}  // namespace kestedit
