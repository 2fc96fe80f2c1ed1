// What the job does: the choice of one of six actions, and everything in the editor that follows from it.
#pragma once

#include <string_view>

#include "form/FormModel.h"

namespace kestedit {

[[nodiscard]] inline Action selectedAction(const FormModel& form) {
    return static_cast<Action>(form.SelectedAction);
}

/// Image of the action's node, plain or in preview form; the pairs are irregular on purpose.
[[nodiscard]] std::string_view ActionImage(int action, bool preview);

/// Change rule of optAction.
void ApplyAction(FormModel& form);
/// Change rule of chkPreview: image of the action page's node, which has the focus when a user changes the box.
void ApplyPreview(FormModel& form);
/// Change rule of chkOnlyCompare; acts only for synchronise. Selects what happens to existing files anew.
void ApplyOnlyCompare(FormModel& form);
/// The same without a new selection: what a loaded job says about existing files stands.
void ReflectOnlyCompare(FormModel& form);

/// Title of the destination page's node: synchronising gives it another one.
void TitleDestinationNode(FormModel& form);

/// Image of the compression page, which applies to compress and extract only, and the rule that sets it.
[[nodiscard]] std::string_view CompressionMark(const FormModel& form);
void MarkCompressionPage(FormModel& form);
/// Picture of an action with its tool tip, in preview form when chkPreview is set.
void ShowActionPicture(FormModel& form, int action);
/// Frames of the compression page by action, then the rules of its check boxes.
void ShowCompressionFrames(FormModel& form);
/// Frames of the destination page by action, then the rule of existing files.
void ShowDestinationFrames(FormModel& form);

}  // namespace kestedit
