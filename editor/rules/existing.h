// The destination's page: what happens to files that exist there, which folders are kept, and the page's mark.
#pragma once

#include <string_view>

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

/// Change rule of chkFStruct: marks the destination page.
void ApplyFolderStructure(FormModel& form);
/// Change rule of optUnZip; acts only when `index` differs from the item that it handled last.
void ApplyUnZipExisting(FormModel& form, int index);

/// Change rule of optExist, behind ApplyExist: marks the destination page for any action.
void MarkDestinationPage(FormModel& form);
/// Image that the destination page starts with.
[[nodiscard]] std::string_view DestinationMark(const FormModel& form);

/// Title of the destination page's node: synchronising gives it another one.
void TitleDestinationNode(FormModel& form);

/// Frames of the page by action, then the rule of existing files.
void ShowDestinationFrames(FormModel& form);

}  // namespace kestedit
