// What stands beside the fields: what is wrong with their content, or worth knowing. Nothing here refuses anything.
#pragma once

#include "form/FormModel.h"
#include "persistence/modIniHandler.h"

namespace kestedit {

/// Sets Notice of every control that has a rule for one, from what the form holds now.
void RefreshNotices(FormModel& form, const modIniHandler& texts);

}  // namespace kestedit
