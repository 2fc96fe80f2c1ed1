// Compression and extraction: companions of the switches, the level, and the mark of the destination page.
#pragma once

#include <string_view>

#include "form/FormModel.h"

namespace kestedit {

/// Change rule of chkZipAll: folder structure inside and outside the archive.
void ApplyZipAll(FormModel& form);
/// Change rule of chkZipDelComp: a grey box becomes a plain one. Its companion keeps its value when the switch is
/// cleared, unlike chkZipDelDeComp's.
void ApplyZipDelComp(FormModel& form);
/// Change rule of chkZipDelDeComp; clears its companion when it is cleared.
void ApplyZipDelDeComp(FormModel& form);
/// The companions of both, shown or not. What a loaded job holds stands.
void ShowZipDelComp(FormModel& form);
void ShowZipDelDeComp(FormModel& form);

/// Fills dxZipGrade and selects the job's level; a level outside 1 to 4 leaves the text as it is.
void FillCompressionLevels(FormModel& form);
/// Change rule of dxZipGrade: the entry picked is the job's level from now on.
void PickCompressionLevel(FormModel& form);

/// Change rule of chkFStruct: marks the destination page.
void ApplyFolderStructure(FormModel& form);
/// Change rule of optUnZip; acts only when `index` differs from the item that it handled last.
void ApplyUnZipExisting(FormModel& form, int index);

/// Change rule of optExist, behind ApplyExist: marks the destination page for any action.
void MarkDestinationPage(FormModel& form);
/// Image that the destination page starts with.
[[nodiscard]] std::string_view DestinationMark(const FormModel& form);

}  // namespace kestedit
