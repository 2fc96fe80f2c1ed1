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

bool contains(std::string_view characters, char32_t wanted) {
    while (!characters.empty()) {
        if (lowerCase(takeCharacter(characters).codePoint) == lowerCase(wanted)) return true;
    }
    return false;
}

}  // namespace

void FilterFieldText(FormModel& form, EditorControl& field) {
    const auto* const filter =
        std::ranges::find_if(filters, [&](const Filter& row) { return &(form.*row.field) == &field; });
    if (filter == filters.end()) return;
    const bool lifted = filter->freeWhen && (form.*filter->freeWhen).isSet();
    const std::string typed = field.text();
    if (!(form.*filter->flag)) form.DroppedChars.erase(&field);
    std::string kept;
    for (std::string_view rest = typed; !rest.empty();) {
        const Character character = takeCharacter(rest);
        if (lifted || contains(filter->characters, character.codePoint) == filter->allowed) {
            kept += character.bytes;
        } else {
            form.*filter->flag = true;
            std::string& dropped = form.DroppedChars[&field];
            if (dropped.find(character.bytes) == std::string::npos) dropped += character.bytes;
        }
    }
    field.EditValue = std::move(kept);
}

}  // namespace kestedit
