// The properties of controls and the fields of the form, by name and as scripts print them.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace kestedit {

struct EditorControl;
class dlgNewFolder;
class frmEdit;

struct ControlProperty {
    std::string_view name;
    std::string (*text)(const EditorControl& control);
};

/// Every property that a control has for scripts.
[[nodiscard]] std::span<const ControlProperty> controlProperties();

// Each gives the present value in its printed form and throws std::invalid_argument for a name that it does not know,
// or for an index that the field does not have ("TextCatalogue(4)").
[[nodiscard]] std::string controlText(const EditorControl& control, std::string_view property);
[[nodiscard]] std::string formText(const frmEdit& form, std::string_view field);
[[nodiscard]] std::string dialogText(const dlgNewFolder& dialog, std::string_view field);

}  // namespace kestedit
