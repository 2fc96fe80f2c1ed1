// Compression and extraction: the page's frames and its mark, companions of the switches, the level.
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

/// Image of the compression page, which applies to compress and extract only, and the rule that sets it.
[[nodiscard]] std::string_view CompressionMark(const FormModel& form);
void MarkCompressionPage(FormModel& form);
/// Frames of the page by action, then the rules of its check boxes.
void ShowCompressionFrames(FormModel& form);

}  // namespace kestedit
