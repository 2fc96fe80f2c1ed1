// Captions of controls that the first language files have no text for.
#pragma once

#include "form/FormModel.h"
#include "persistence/modIniHandler.h"

namespace kestedit {

/// Sets them from section "Window" of the language file; one that the file lacks comes as textOf gives it. A file that
/// captions nothing leaves these captions empty, too.
void LoadCaptions(FormModel& form, const modIniHandler& texts);

}  // namespace kestedit
