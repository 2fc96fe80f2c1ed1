// How a rule takes an option away that has no effect under the present choices.
#pragma once

#include <string>

#include "form/FormModel.h"

namespace kestedit {

/// With DisableInsteadOfHide the control stays visible and is disabled, otherwise it is hidden. Its value is kept. The
/// other of the two properties is not touched.
inline void SetApplies(const FormModel& form, EditorControl& control, bool applies) {
    (form.DisableInsteadOfHide ? control.Enabled : control.Visible) = applies;
}

/// The same for several controls or whole control arrays.
template <typename... Controls>
void SetAllApply(const FormModel& form, bool applies, Controls&... controls) {
    const auto set = [&](auto& one) {
        if constexpr (requires { one.begin(); }) {
            for (EditorControl& member : one)
                SetApplies(form, member, applies);
        } else {
            SetApplies(form, one, applies);
        }
    };
    (set(controls), ...);
}

/// What stands on a page that has nothing to set for the job's action: "(Mode Copy files - no options here)".
[[nodiscard]] std::string NoOptionText(const FormModel& form);

}  // namespace kestedit
