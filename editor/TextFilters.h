// Text fields that accept only certain characters: cleaned as the user types, reported when the job is saved.
#pragma once

#include <string>
#include <string_view>

#include "form/FormModel.h"

namespace kestedit {

/// What the field keeps of a text; all of it without a filter.
[[nodiscard]] std::string KeptText(const FormModel& form, const EditorControl& field, std::string_view text);

/// Drops the characters that the field does not accept, notes them in DroppedChars and raises the field's flag; fields
/// without a filter stay as they are. A flag never comes down here. The comparison ignores the case of every letter,
/// whatever the process's locale is.
void FilterFieldText(FormModel& form, EditorControl& field);

}  // namespace kestedit
