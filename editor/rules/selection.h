// Which folders and files a job takes: patterns, extensions, size.
#pragma once

#include "form/FormModel.h"

namespace kestedit {

/// Change rule of chkSubFolder: folder matching and its companions, then ApplyZipAll, ApplyFolderStructure and
/// ApplyExistingFilesPage, whose folder options need subfolders.
void ApplySubFolder(FormModel& form);
/// Change rules of the option groups: member 0 takes everything, 1 what matches, 2 what does not match.
void ApplyFolderMatch(FormModel& form);
void ApplyFileMatch(FormModel& form);
void ApplyExt(FormModel& form);
/// Change rule of optSize: 0 any size, 1 smaller, 2 larger than dxSize.
void ApplySize(FormModel& form);

/// Change rules of the two regular-expression switches: caption of the field, and the flag of dropped characters comes
/// down when the switch is set.
void ApplyRegExFile(FormModel& form);
void ApplyRegExFolder(FormModel& form);
void UpdateFileNameCaption(FormModel& form);
void UpdateFolderNameCaption(FormModel& form);

/// Whether the page leaves files or folders out, or takes in subfolders at all.
[[nodiscard]] bool NarrowsFolders(const FormModel& form);
[[nodiscard]] bool NarrowsFiles(const FormModel& form);
[[nodiscard]] bool NarrowsExtensions(const FormModel& form);
[[nodiscard]] bool NarrowsSize(const FormModel& form);

}  // namespace kestedit
