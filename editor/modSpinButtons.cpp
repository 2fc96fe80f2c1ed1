#include "editor/modSpinButtons.h"

#include "i18n/Catalogue.h"

namespace kestedit {

namespace {

constexpr std::int64_t minutesInHour = 60;
constexpr std::int64_t hoursInDay = 24;

void set(EditorControl& editor, std::int64_t number) {
    editor.EditValue = number;
}

void carryIntoDays(EditorControl& hours, EditorControl& days) {
    set(days, days.number() + 1);
    set(hours, 0);
}

void borrowFromDays(EditorControl& hours, EditorControl& days) {
    set(days, days.number() - 1);
    set(hours, hoursInDay - 1);
}

void borrowMinutes(EditorControl& minutes, EditorControl& hours, EditorControl& days) {
    if (hours.number() > 0) {
        set(hours, hours.number() - 1);
    } else if (days.number() > 0) {
        borrowFromDays(hours, days);
    } else {
        set(minutes, 1);  // the smallest duration
        return;
    }
    set(minutes, minutesInHour - 1);
}

struct Unit {
    catalogue::Entry singular;
    catalogue::Entry plural;
};
constexpr Unit day{catalogue::day, catalogue::days};
constexpr Unit hour{catalogue::hour, catalogue::hours};
constexpr Unit minute{catalogue::minute, catalogue::minutes};

void nameUnit(const FormModel& form, const EditorControl& editor, EditorControl& label, Unit unit) {
    label.Caption = form.TextCatalogue[editor.number() == 1 ? unit.singular : unit.plural];
}

}  // namespace

void SpinMinutes(EditorControl& minutes, EditorControl& hours, EditorControl& days, bool up) {
    if (up) {
        if (minutes.number() != minutesInHour) return;
        if (hours.number() == hoursInDay - 1) {
            carryIntoDays(hours, days);
        } else {
            set(hours, hours.number() + 1);
        }
        set(minutes, 0);
    } else if (minutes.number() == -1) {
        borrowMinutes(minutes, hours, days);
    } else if (minutes.number() == 0 && hours.number() == 0 && days.number() == 0) {
        set(minutes, 1);
    }
}

void SpinHours(EditorControl& minutes, EditorControl& hours, EditorControl& days, bool up) {
    if (up) {
        if (hours.number() == hoursInDay) carryIntoDays(hours, days);
    } else if (hours.number() == -1) {
        if (days.number() > 0) {
            borrowFromDays(hours, days);
        } else {
            set(hours, 0);
        }
    } else if (hours.number() == 0 && days.number() == 0 && (minutes.number() == 0 || minutes.number() == -1)) {
        set(minutes, 1);
    }
}

void SpinDays(EditorControl& minutes, EditorControl& hours, EditorControl& days, bool up) {
    if (!up && days.number() == 0 && hours.number() == 0 && minutes.number() == 0) set(minutes, 1);
}

void UpdateIntervalUnitLabels(FormModel& form) {
    nameUnit(form, form.dxDays, form.lblDays, day);
    nameUnit(form, form.dxHours, form.lblHours, hour);
    nameUnit(form, form.dxMinutes, form.lblMinutes, minute);
}

void UpdateAgeUnitLabels(FormModel& form) {
    nameUnit(form, form.dxAge, form.lblFileAgeDays, day);
    nameUnit(form, form.dxAgeHours, form.lblFileAgeHours, hour);
    nameUnit(form, form.dxAgeMinutes, form.lblFileAgeMinutes, minute);
}

}  // namespace kestedit
