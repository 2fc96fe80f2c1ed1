// Re-runs the dependent-state rules of one page or of all pages.
#pragma once

#include <string_view>

#include "form/FormModel.h"

namespace kestedit {

/// `what` "all" runs every rule of the view, any other text those of one page. `page` is the position of the page's
/// node in the list. The view's record says which rules run where. Running it twice has no further effect.
void RefreshPageStates(FormModel& form, std::string_view what, int viewLevel, int page);

/// Called whenever a node's page is shown: adapts the page to the node.
void SetNodeIFace(FormModel& form, int position, int viewLevel, std::string_view text);

/// The rules that follow from the choices of a job just loaded or a new one, in every view.
void ApplyLoadedChoices(FormModel& form);

}  // namespace kestedit
