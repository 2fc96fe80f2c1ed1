// Synchronising two folders.
#pragma once

#include "form/FormModel.h"

namespace kestedit {

/// Change rule of optSyncExist: 0 leave existing files, 1 overwrite, 2 replace under a condition. The whole
/// group decides, whichever `item` changed.
void ApplySyncExist(FormModel& form, int item);
/// Change rule of optSyncStart: 0 source to destination, 1 both ways; deleting applies one way only.
void ApplySyncStart(FormModel& form);

/// Change rule of chkOnlyCompare; acts only for synchronise. Selects what happens to existing files anew.
void ApplyOnlyCompare(FormModel& form);
/// The same without a new selection: what a loaded job says about existing files stands.
void ReflectOnlyCompare(FormModel& form);

}  // namespace kestedit
