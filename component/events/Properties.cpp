#include "component/events/Properties.h"

#include <algorithm>
#include <array>
#include <limits>

#include "component/events/Arguments.h"
#include "component/events/EventFaults.h"
#include "component/events/OpenWindows.h"
#include "component/events/PrintedText.h"
#include "component/events/WholeNumber.h"
#include "editor/dlgNewFolder.h"
#include "editor/frmEdit.h"

namespace kestedit {

namespace {

// clang-format off
constexpr auto controlRows = std::to_array<ControlProperty>({
    {"EditValue",   [](const EditorControl& control) { return valueText(control.EditValue); }},
    {"State",       [](const EditorControl& control) { return std::to_string(control.State); }},
    {"Enabled",     [](const EditorControl& control) { return flagText(control.Enabled); }},
    {"Visible",     [](const EditorControl& control) { return flagText(control.Visible); }},
    {"Caption",     [](const EditorControl& control) { return quotedText(control.Caption); }},
    {"ToolTipText", [](const EditorControl& control) { return quotedText(control.ToolTipText); }},
    {"Notice",      [](const EditorControl& control) { return quotedText(control.Notice); }},
    {"TabIndex",    [](const EditorControl& control) { return std::to_string(control.TabIndex); }},
    {"TabStop",     [](const EditorControl& control) { return flagText(control.TabStop); }},
    {"Items",       [](const EditorControl& control) { return listText(control.Items); }},
});

// clang-format on

std::string focusText(const frmEdit& form) {
    return form.FocusedControl ? quotedText(form.FocusedControl->Name()) : std::string(emptyText);
}

struct FormField {
    std::string_view name;
    std::string (*text)(const frmEdit& form);
};

// clang-format off
constexpr auto fieldRows = std::to_array<FormField>({
    {"Caption",                 [](const frmEdit& form) { return quotedText(form.Caption); }},
    {"Mode",                    [](const frmEdit& form) { return quotedText(form.values().Mode); }},
    {"JobFile",                 [](const frmEdit& form) { return quotedText(form.values().JobFile); }},
    {"LoadedName",              [](const frmEdit& form) { return quotedText(form.LoadedName); }},
    {"ViewLevel",               [](const frmEdit& form) { return quotedText(form.ViewLevel); }},
    {"SelectedAction",          [](const frmEdit& form) { return std::to_string(form.SelectedAction); }},
    {"ActionPicture",           [](const frmEdit& form) { return std::to_string(form.ActionPicture); }},
    {"CompressionLevel",        [](const frmEdit& form) { return std::to_string(form.CompressionLevel); }},
    {"DisableInsteadOfHide",    [](const frmEdit& form) { return flagText(form.DisableInsteadOfHide); }},
    {"InvalidRenamerChars",     [](const frmEdit& form) { return flagText(form.InvalidRenamerChars); }},
    {"InvalidFileNameChars",    [](const frmEdit& form) { return flagText(form.InvalidFileNameChars); }},
    {"InvalidFolderMatchChars", [](const frmEdit& form) { return flagText(form.InvalidFolderMatchChars); }},
    {"InvalidExtChars",         [](const frmEdit& form) { return flagText(form.InvalidExtChars); }},
    {"DateFormatChanged",       [](const frmEdit& form) { return flagText(form.DateFormatChanged); }},
    {"StoredAsUtf8",            [](const frmEdit& form) { return flagText(form.StoredAsUtf8); }},
    {"FocusedControl",          focusText},
    {"ShowIcons",               [](const frmEdit& form) { return flagText(form.Navigation.ShowIcons); }},
    {"RowColour",               [](const frmEdit& form) { return std::to_string(form.Navigation.RowColour); }},
    {"RowTextColour",           [](const frmEdit& form) { return std::to_string(form.Navigation.RowTextColour); }},
});
// clang-format on

std::string pageNodeText(const frmEdit& form, std::size_t page) {
    const auto entry = form.PageNodeIndex.find(static_cast<int>(page));
    return entry == form.PageNodeIndex.end() ? std::string(emptyText) : std::to_string(entry->second);
}

/// A field that is read by index, from 0 to size - 1.
struct FormList {
    std::string_view name;
    std::size_t size;
    std::string (*text)(const frmEdit& form, std::size_t index);
};

constexpr std::size_t anyPage = std::numeric_limits<int>::max();

// clang-format off
constexpr auto listRows = std::to_array<FormList>({
    {"TextCatalogue",  catalogueSize,  [](auto& form, auto at) { return quotedText(form.TextCatalogue[at]); }},
    {"ReplaceIfTexts", replaceIfCount, [](auto& form, auto at) { return quotedText(form.ReplaceIfTexts[at]); }},
    {"Localizer",      localizerSize,  [](auto& form, auto at) { return quotedText(form.Localizer[at]); }},
    {"PageNodeIndex",  anyPage,        pageNodeText},
});
// clang-format on

UnknownName unknown(std::string_view owner, std::string_view property) {
    return UnknownName(std::string(owner) + " has no property " + std::string(property));
}

/// The form stays visible behind the dialog; only a name that both have means the one in front.
const EditorControl& visibleControl(const OpenWindows& windows, std::string_view name) {
    const EditorControl* const inFront = windows.front().find(name);
    return inFront ? *inFront : OpenWindows{windows.form}.control(name);
}

std::string controlText(const EditorControl& control, std::string_view property) {
    const auto row = std::ranges::find(controlRows, property, &ControlProperty::name);
    if (row == controlRows.end()) throw unknown(control.Name(), property);
    return row->text(control);
}

std::string formText(const frmEdit& form, std::string_view field) {
    if (!field.ends_with(')')) {
        const auto row = std::ranges::find(fieldRows, field, &FormField::name);
        if (row == fieldRows.end()) throw unknown("frmEdit", field);
        return row->text(form);
    }
    const auto open = std::min(field.find('('), field.size() - 1);
    const auto row = std::ranges::find(listRows, field.substr(0, open), &FormList::name);
    if (row == listRows.end()) throw unknown("frmEdit", field);
    const std::string_view index = field.substr(open + 1, field.size() - open - 2);
    const auto position = parseWholeNumber(index, 0, static_cast<std::int64_t>(row->size) - 1);
    if (!position) throw unknown("frmEdit", field);
    return row->text(form, static_cast<std::size_t>(*position));
}

std::string dialogText(const dlgNewFolder& dialog, std::string_view field) {
    if (field == "Caption") return quotedText(dialog.Caption);
    if (field == "BackColour") return dialog.BackColour ? std::to_string(*dialog.BackColour) : std::string(emptyText);
    throw unknown("dlgNewFolder", field);
}

}  // namespace

std::span<const ControlProperty> controlProperties() {
    return controlRows;
}

std::string propertyText(const OpenWindows& windows, std::string_view name) {
    const auto dot = name.find('.');
    if (dot == std::string_view::npos)
        throw WrongWord(quotedText(name) + " is not " + std::string(arguments::property.wanted));
    const std::string_view owner = name.substr(0, dot);
    const std::string_view property = name.substr(dot + 1);
    if (owner == "frmEdit") return formText(windows.form, property);
    if (owner != "dlgNewFolder") return controlText(visibleControl(windows, owner), property);
    if (!windows.dialog) throw EventRefused("dlgNewFolder is not open");
    return dialogText(*windows.dialog, property);
}

}  // namespace kestedit
