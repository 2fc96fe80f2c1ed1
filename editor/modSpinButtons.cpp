#include "editor/modSpinButtons.h"

#include <array>
#include <span>

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

struct UnitLabel {
    EditorControl FormModel::*editor;
    EditorControl FormModel::*label;
    Unit unit;
};
constexpr std::array intervalLabels{
    UnitLabel{&FormModel::dxDays, &FormModel::lblDays, day},
    UnitLabel{&FormModel::dxHours, &FormModel::lblHours, hour},
    UnitLabel{&FormModel::dxMinutes, &FormModel::lblMinutes, minute},
};
constexpr std::array ageLabels{
    UnitLabel{&FormModel::dxAge, &FormModel::lblFileAgeDays, day},
    UnitLabel{&FormModel::dxAgeHours, &FormModel::lblFileAgeHours, hour},
    UnitLabel{&FormModel::dxAgeMinutes, &FormModel::lblFileAgeMinutes, minute},
};

void nameUnits(FormModel& form, std::span<const UnitLabel> labels) {
    for (const auto& [editor, label, unit] : labels)
        (form.*label).Caption = form.TextCatalogue[(form.*editor).number() == 1 ? unit.singular : unit.plural];
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
    nameUnits(form, intervalLabels);
}

void UpdateAgeUnitLabels(FormModel& form) {
    nameUnits(form, ageLabels);
}

std::vector<std::string> UnitCaptions(const FormModel& form, const EditorControl& label) {
    for (const auto& labels : {intervalLabels, ageLabels}) {
        for (const UnitLabel& row : labels) {
            if (&(form.*row.label) != &label) continue;
            return {form.TextCatalogue[row.unit.singular], form.TextCatalogue[row.unit.plural]};
        }
    }
    return {};
}

}  // namespace kestedit
