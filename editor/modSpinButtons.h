// Days, hours and minutes that behave like one duration, with the unit's name beside each.
#pragma once

#include "form/FormModel.h"

namespace kestedit {

/// Called after a spin editor has taken its step, so the value may lie one past its range: carries into the larger
/// unit, borrows from it, and never lets the whole duration become zero. Typed values are not corrected.
void SpinMinutes(EditorControl& minutes, EditorControl& hours, EditorControl& days, bool up);
void SpinHours(EditorControl& minutes, EditorControl& hours, EditorControl& days, bool up);
void SpinDays(EditorControl& minutes, EditorControl& hours, EditorControl& days, bool up);

/// Singular beside exactly 1, plural beside any other value.
void UpdateIntervalUnitLabels(FormModel& form);
void UpdateAgeUnitLabels(FormModel& form);

}  // namespace kestedit
