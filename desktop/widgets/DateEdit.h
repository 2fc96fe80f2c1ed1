// A date with its calendar, or nothing.
#pragma once

#include <QDate>
#include <QStyleOptionComboBox>
#include <optional>

#include "desktop/widgets/MomentEdit.h"

namespace kestedit {

class CalendarPopup;

/// Its button, F4 and Alt+Down open the calendar.
class DateEdit : public MomentEdit {
    Q_OBJECT

  public:
    explicit DateEdit(QWidget* parent = nullptr);

    /// Where the calendar opens; nothing for the present month.
    void setDate(std::optional<QDate> date) { date_ = date; }
    /// Captions of the calendar's own buttons.
    void setCalendarTexts(const QString& today, const QString& clear);
    /// Made when it is first asked for.
    [[nodiscard]] CalendarPopup& calendar();

  signals:
    /// Chosen in the calendar; it opens behind `confirmed`.
    void chosen(QDate date);
    void todayChosen();
    void cleared();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    [[nodiscard]] QSize sizeAround(const QSize& line) const override;

  private:
    [[nodiscard]] QStyleOptionComboBox frameOption() const;
    void placeLine();
    void openCalendar();

    std::optional<QDate> date_;
    QString todayText_;
    QString clearText_;
    CalendarPopup* calendar_ = nullptr;  // a child
};

}  // namespace kestedit
