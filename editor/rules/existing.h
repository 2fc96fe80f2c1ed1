// What happens to files that exist at the destination.
#pragma once

#include "form/FormModel.h"

namespace kestedit {

/// Change rule of optExist (0 leave, 1 replace by a newer source, 2 rename, 3 overwrite, 4 replace under a condition)
/// and of dxPickExistSelecter. The action's rule ends with it, so it decides on everything in fraZielverzeichnis, also
/// on the condition that synchronising shares.
void ApplyExist(FormModel& form);
/// The destination page as a whole, by action and choice; the last step whenever the page is shown.
void ApplyExistingFilesPage(FormModel& form);
/// The rename rules, parts of ApplyExist: text and place of it (dxRenamer, optRenameSelect), and scheme (dxPickRenamer,
/// chkDelSourceRename).
void ApplyRenameText(FormModel& form);
void ApplyRenameScheme(FormModel& form);

}  // namespace kestedit
