// What stands beside the fields: what is wrong with their content, or worth knowing. Nothing here refuses anything.
#pragma once

#include "form/FormModel.h"
#include "persistence/modIniHandler.h"
#include "platform/Platform.h"

namespace kestedit {

/// Sets Notice of every control from what the form holds now. `typing` is the field that the user is typing into, or
/// null: what is missing or unfinished there is not told before the field is left, unless it was told already.
void RefreshNotices(FormModel& form, const modIniHandler& texts, const Platform& platform, const EditorControl* typing);

}  // namespace kestedit
