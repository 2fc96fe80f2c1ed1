// What the job does: the choice of one of six actions, and everything in the editor that follows from it.
#pragma once

#include <string_view>

#include "form/FormModel.h"

namespace kestedit {

/// Image of the action's node, plain or in preview form; the pairs are irregular on purpose.
[[nodiscard]] std::string_view ActionImage(int action, bool preview);

/// Change rule of optAction.
void ApplyAction(FormModel& form);
/// Change rule of chkPreview: image of the action page's node, which has the focus when a user changes the box.
void ApplyPreview(FormModel& form);
/// Picture of an action with its tool tip, in preview form when chkPreview is set.
void ShowActionPicture(FormModel& form, int action);

}  // namespace kestedit
