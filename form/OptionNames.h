// What an input is called by those who see the form: by its own caption or by that of a label, under a heading where
// several have the same.
#pragma once

#include <string>
#include <string_view>

#include "form/FormModel.h"
#include "platform/Export.h"

namespace kestedit {

/// "Skip files with these attributes: Hidden" for chkAttrHidden(0). `control` is a name or, for an option group as a
/// whole, its base name. Texts are those that the form shows now; empty for a control that has no words at all.
[[nodiscard]] KESTEDIT_EXPORT std::string nameForUsers(const FormModel& form, std::string_view control);

}  // namespace kestedit
