// Text fields that accept only certain characters: cleaned as the user types, reported when the job is saved.
#pragma once

#include "form/FormModel.h"

namespace kestedit {

/// Drops the characters that the field does not accept and raises its flag when one was dropped; fields without a
/// filter stay as they are. A flag never comes down here. The comparison ignores the case of every letter, whatever the
/// process's locale is.
void FilterFieldText(FormModel& form, EditorControl& field);

}  // namespace kestedit
