// The properties of controls and the fields of the form, by name and in their printed form.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace kestedit {

struct EditorControl;
struct OpenWindows;

struct ControlProperty {
    std::string_view name;
    std::string (*text)(const EditorControl& control);
};

/// Every property that a control has for drivers.
[[nodiscard]] std::span<const ControlProperty> controlProperties();

/// The present value of "dxName.EditValue", "frmEdit.TextCatalogue(4)" or "dlgNewFolder.Caption". Throws UnknownName
/// for a control, property or index that does not exist, WrongWord for a name without a dot, and EventRefused for the
/// dialog while it is not open.
[[nodiscard]] std::string propertyText(const OpenWindows& windows, std::string_view name);

}  // namespace kestedit
