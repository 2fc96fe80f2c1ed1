// Which rule runs when the user has changed a control.
#pragma once

#include "form/FormModel.h"

namespace kestedit {

/// Runs the change rule of `control`, which may be a member of a group; does nothing for a plain field.
void RunChangeRule(FormModel& form, const EditorControl& control);

}  // namespace kestedit
