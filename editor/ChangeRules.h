// Which rule runs when the user has changed a control.
#pragma once

#include "form/FormModel.h"

namespace kestedit {

/// Runs the rules that are marked for the moment when the form opens. Those that RefreshPageStates lists come first and
/// in their own order.
void RunRulesOfOpening(FormModel& form);

/// Runs the change rule of `control`, which may be a member of a group; does nothing for a plain field.
void RunChangeRule(FormModel& form, const EditorControl& control);

}  // namespace kestedit
