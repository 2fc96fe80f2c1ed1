// A time of day in the user's own form, or nothing.
#pragma once

#include <QTimeEdit>
#include <optional>

#include "desktop/widgets/Emptyable.h"
#include "platform/DateTime.h"

namespace kestedit {

class TimeEdit : public Emptyable<QTimeEdit> {
    Q_OBJECT

  public:
    explicit TimeEdit(QWidget* parent = nullptr);

    [[nodiscard]] std::optional<TimeOfDay> content() const;
    void setContent(std::optional<TimeOfDay> time);

  signals:
    void chosen();

  protected:
    void announce() override { emit chosen(); }
    [[nodiscard]] QDateTime presentMoment() const override { return QDateTime::currentDateTime(); }
};

}  // namespace kestedit
