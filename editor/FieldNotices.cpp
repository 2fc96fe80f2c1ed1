#include "editor/FieldNotices.h"

#include <array>
#include <optional>
#include <regex>
#include <string>

#include "i18n/Texts.h"

namespace kestedit {

namespace {

bool isRegularExpression(const std::string& pattern) {
    try {
        (void)std::regex(pattern, std::regex::ECMAScript);
        return true;
    } catch (const std::regex_error&) {
        return false;
    }
}

/// A pattern that is to be a regular expression and is none matches nothing.
std::optional<TextId> patternNotice(const EditorControl& field, const EditorControl& regExBox) {
    if (!regExBox.isSet() || field.isEmpty() || isRegularExpression(field.text())) return std::nullopt;
    return TextId::badRegEx;
}

struct NoticeRule {
    EditorControl FormModel::*field;
    std::optional<TextId> (*notice)(const FormModel& form);
};

// The first rule of a field that has something to say speaks.
constexpr std::array noticeRules{
    NoticeRule{&FormModel::dxFileName,
               [](const FormModel& form) { return patternNotice(form.dxFileName, form.chkRegExFile); }},
    NoticeRule{&FormModel::dxFolderMatch,
               [](const FormModel& form) { return patternNotice(form.dxFolderMatch, form.chkRegExFolder); }},
};

}  // namespace

void RefreshNotices(FormModel& form, const modIniHandler& texts) {
    for (const NoticeRule& rule : noticeRules)
        (form.*rule.field).Notice.clear();
    for (const NoticeRule& rule : noticeRules) {
        EditorControl& field = form.*rule.field;
        // What the present choices take away has nothing wrong with it.
        if (!field.Notice.empty() || !field.Visible || !field.Enabled) continue;
        if (const auto notice = rule.notice(form)) field.Notice = textOf(texts, *notice);
    }
}

}  // namespace kestedit
