// Days, hours and minutes that behave like one duration, with the unit's name beside each.
#pragma once

#include <string>
#include <vector>

#include "form/FormModel.h"
#include "platform/Export.h"

namespace kestedit {

/// Called after a spin editor has taken its step, so the value may lie one past its range: carries into the larger
/// unit, borrows from it, and never lets the whole duration become zero. Typed values are not corrected.
void SpinMinutes(EditorControl& minutes, EditorControl& hours, EditorControl& days, bool up);
void SpinHours(EditorControl& minutes, EditorControl& hours, EditorControl& days, bool up);
void SpinDays(EditorControl& minutes, EditorControl& hours, EditorControl& days, bool up);

/// Singular beside exactly 1, plural beside any other value.
void UpdateIntervalUnitLabels(FormModel& form);
void UpdateAgeUnitLabels(FormModel& form);

/// The captions that a unit's label takes in turn, for a driver that keeps room for the longer one; none for any other
/// label.
[[nodiscard]] KESTEDIT_EXPORT std::vector<std::string> UnitCaptions(const FormModel& form, const EditorControl& label);

}  // namespace kestedit
