// The keyboard order of the form.
#pragma once

#include "form/FormModel.h"

namespace kestedit {

/// Sets TabIndex of every control that takes the focus: the listed sequence, with each control that the list does not
/// name right behind the listed one that governs it. The four command buttons come last.
void SetTabOrder(FormModel& form);

}  // namespace kestedit
