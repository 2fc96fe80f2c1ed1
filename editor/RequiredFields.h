// Fields that a chosen option needs.
#pragma once

#include <span>

#include "form/FormModel.h"
#include "i18n/Catalogue.h"

namespace kestedit {

/// A save reports the field while it is empty or a character was dropped from it.
struct RequiredField {
    EditorControl FormModel::*field;
    bool (*active)(const FormModel& form);
    bool FormModel::*flag;    ///< a character was dropped
    bool FormModel::*clears;  ///< the flag that comes down with the report
    catalogue::Entry message;
};

/// In the order in which a save looks at them.
[[nodiscard]] std::span<const RequiredField> requiredFields();

}  // namespace kestedit
