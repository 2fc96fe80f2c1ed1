// The navigation list: its nodes for each view level, and the page that a node shows.
#pragma once

#include "form/FormModel.h"

namespace kestedit {

/// Adds the nodes of the form's view, each with its title and the mark that follows from the form's present choices,
/// and hides what the view leaves out. Runs once, while the form is loading.
void BuildNavigationTree(FormModel& form);

/// Hides the choices whose pages the view does not have.
void ApplyViewRestrictions(FormModel& form);

/// Shows the frame of the focused node and no other; for a position outside the view no frame at all.
void ShowNodePage(FormModel& form);

}  // namespace kestedit
