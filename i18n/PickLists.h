// Pick lists whose entries are texts of the catalogue.
#pragma once

#include <string>
#include <vector>

#include "form/FormModel.h"

namespace kestedit {

/// Gives `list` new entries. The selection stays at its position.
void ReplaceItems(EditorControl& list, std::vector<std::string> entries);

/// Fills dxPickRenamer and dxPickExistSelecter from the catalogue, wherever its texts came from.
void FillPickLists(FormModel& form);

}  // namespace kestedit
