#include "editor/TextFilters.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "platform/Text.h"

namespace kestedit {

namespace {

// What the fields leave out is on purpose: extensions are separated by comma or blank, a rename text has no dot.
constexpr std::string_view ExtensionCharSet = "abcdefghijklmnopqrstuvwxyzäöü0123456789.*, ";
constexpr std::string_view RenamerCharSet = "abcdefghijklmnopqrstuvwxyzäöü0123456789 _-";
// Wildcards stay allowed; the double quote belongs to the set too, but is dropped only where no regular expression
// stands.
constexpr std::string_view NameForbiddenCharSet = "<>|/\\:´~^¨¦`\"";

struct Filter {
    EditorControl FormModel::*field;
    std::string_view characters;
    bool allowed;                        ///< the characters are the accepted ones, not the dropped ones
    EditorControl FormModel::*freeWhen;  ///< a switch that lifts the filter, or null
    bool FormModel::*flag;
};

// clang-format off
constexpr std::array filters{
    Filter{&FormModel::dxExt,         ExtensionCharSet,     true,  nullptr,                    &FormModel::InvalidExtChars},
    Filter{&FormModel::dxRenamer,     RenamerCharSet,       true,  nullptr,                    &FormModel::InvalidRenamerChars},
    Filter{&FormModel::dxFileName,    NameForbiddenCharSet, false, &FormModel::chkRegExFile,   &FormModel::InvalidFileNameChars},
    Filter{&FormModel::dxFolderMatch, NameForbiddenCharSet, false, &FormModel::chkRegExFolder, &FormModel::InvalidFolderMatchChars},
};
// clang-format on

const Filter* filterOf(const FormModel& form, const EditorControl& field) {
    const auto* const filter =
        std::ranges::find_if(filters, [&](const Filter& row) { return &(form.*row.field) == &field; });
    return filter == filters.end() ? nullptr : filter;
}

bool contains(std::string_view characters, char32_t wanted) {
    while (!characters.empty()) {
        if (lowerCase(takeCharacter(characters).codePoint) == lowerCase(wanted)) return true;
    }
    return false;
}

/// Hands each character of `text` that the field does not accept to `drop`; returns the others.
template <class Drop>
std::string filtered(const FormModel& form, const Filter& filter, std::string_view text, Drop drop) {
    if (filter.freeWhen && (form.*filter.freeWhen).isSet()) return std::string(text);
    std::string kept;
    while (!text.empty()) {
        const Character character = takeCharacter(text);
        if (contains(filter.characters, character.codePoint) == filter.allowed) {
            kept += character.bytes;
        } else {
            drop(character.bytes);
        }
    }
    return kept;
}

}  // namespace

std::string KeptText(const FormModel& form, const EditorControl& field, std::string_view text) {
    const Filter* const filter = filterOf(form, field);
    return filter ? filtered(form, *filter, text, [](std::string_view) {}) : std::string(text);
}

void FilterFieldText(FormModel& form, EditorControl& field) {
    const Filter* const filter = filterOf(form, field);
    if (!filter) return;
    if (!(form.*filter->flag)) form.DroppedChars.erase(&field);
    field.EditValue = filtered(form, *filter, field.text(), [&](std::string_view character) {
        form.*filter->flag = true;
        std::string& dropped = form.DroppedChars[&field];
        if (dropped.find(character) == std::string::npos) dropped += character;
    });
}

}  // namespace kestedit
