#include "editor/PatternHint.h"

#include <regex>

#include "i18n/Texts.h"

namespace kestedit {

namespace {

/// The box that makes the field's pattern a regular expression, or null for a field without one.
const EditorControl* regExBox(const FormModel& form, const EditorControl& field) {
    if (&field == &form.dxFileName) return &form.chkRegExFile;
    if (&field == &form.dxFolderMatch) return &form.chkRegExFolder;
    return nullptr;
}

bool isRegularExpression(const std::string& pattern) {
    try {
        (void)std::regex(pattern, std::regex::ECMAScript);
        return true;
    } catch (const std::regex_error&) {
        return false;
    }
}

}  // namespace

std::optional<std::string> patternProblem(const FormModel& form, const EditorControl& field,
                                          const modIniHandler& texts) {
    const EditorControl* const box = regExBox(form, field);
    if (!box || !box->isSet() || field.isEmpty() || !field.Visible || !field.Enabled) return std::nullopt;
    if (isRegularExpression(field.text())) return std::nullopt;
    return textOf(texts, TextId::badRegEx);
}

}  // namespace kestedit
