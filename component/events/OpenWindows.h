// What a driver that is told the user's events in words has open.
#pragma once

#include <string_view>

#include "form/EditorControl.h"

namespace kestedit {

class dlgNewFolder;
class frmEdit;

/// The form and, while it stands in front of it, the new-folder dialog. Both outlive the value.
struct OpenWindows {
    frmEdit& form;
    dlgNewFolder* dialog = nullptr;

    [[nodiscard]] const ControlRegistry& front() const;
    /// A control of the window in front. Throws UnknownName.
    [[nodiscard]] EditorControl& control(std::string_view name) const;
    /// A member of one of the form's groups. Throws UnknownName.
    [[nodiscard]] EditorControl& member(std::string_view group, int index) const;
};

}  // namespace kestedit
