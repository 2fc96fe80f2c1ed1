// What is wrong with a search pattern while the user types it. A bad pattern is told, never refused.
#pragma once

#include <optional>
#include <string>

#include "form/FormModel.h"
#include "persistence/modIniHandler.h"
#include "platform/Export.h"

namespace kestedit {

/// Why the pattern in `field` matches nothing ("Not a valid regular expression"): a field whose regular-expression box
/// is set holds none that can be read. Nothing for every other field, for an empty one, and for one that does not
/// apply.
[[nodiscard]] KESTEDIT_EXPORT std::optional<std::string> patternProblem(const FormModel& form,
                                                                        const EditorControl& field,
                                                                        const modIniHandler& texts);

}  // namespace kestedit
