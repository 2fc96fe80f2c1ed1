#include "editor/RequiredFields.h"

#include <array>

namespace kestedit {

namespace {

// Whether a pattern is asked for. A group without a choice, as in a mode that loads nothing, takes everything.
bool asksForPattern(const ControlArray<3>& group) {
    return group.selected().value_or(0) != 0;
}

// Reporting the folder pattern clears the file pattern's flag, deliberately, so that its own report comes back until a
// regular expression is allowed. Story: tests/golden/required.golden.
// clang-format off
constexpr std::array fields{
    RequiredField{&FormModel::dxRenamer,     [](const FormModel& form) { return form.optExist[Existing::rename].isSet(); },
                  &FormModel::InvalidRenamerChars,     &FormModel::InvalidRenamerChars,  catalogue::invalidRenamer},
    RequiredField{&FormModel::dxFileName,    [](const FormModel& form) { return asksForPattern(form.optFileMatch); },
                  &FormModel::InvalidFileNameChars,    &FormModel::InvalidFileNameChars, catalogue::invalidFileName},
    RequiredField{&FormModel::dxFolderMatch, [](const FormModel& form) { return asksForPattern(form.optFolderMatch); },
                  &FormModel::InvalidFolderMatchChars, &FormModel::InvalidFileNameChars, catalogue::invalidFolderMatch},
    RequiredField{&FormModel::dxExt,         [](const FormModel& form) { return asksForPattern(form.optExt); },
                  &FormModel::InvalidExtChars,         &FormModel::InvalidExtChars,      catalogue::invalidExt},
};
// clang-format on

}  // namespace

std::span<const RequiredField> requiredFields() {
    return fields;
}

}  // namespace kestedit
