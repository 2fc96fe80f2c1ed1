// Re-runs the dependent-state rules of one page or of all pages.
#pragma once

#include <string_view>

#include "form/FormModel.h"

namespace kestedit {

/// `what` "all" runs every rule of the view, any other text those of one page. `page` is the position of the page's
/// node in the list, deliberately also in view 15, whose pages stand at other positions than in the complete editor.
/// View 9 has no rule pass. Running it twice has no further effect.
void RefreshPageStates(FormModel& form, std::string_view what, int viewLevel, int page);

/// Called whenever a node's page is shown: adapts the page to the node.
void SetNodeIFace(FormModel& form, int position, int viewLevel, std::string_view text);

/// The rules that follow from the choices of a job just loaded or a new one, in every view.
void ApplyLoadedChoices(FormModel& form);

}  // namespace kestedit
