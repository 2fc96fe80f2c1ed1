// Saving: the checks of the form, the job's file name, the questions before a file is lost, and the write.
#include <array>
#include <string>

#include "editor/frmEdit.h"
#include "editor/modCompNodes.h"
#include "i18n/Catalogue.h"
#include "persistence/modSaveValues.h"
#include "platform/Text.h"

namespace kestedit {

namespace {

// What a job's name must not contain, since it becomes a file name. The slash stands here three times.
constexpr std::string_view invalidNameChars = "<>|/\\//:´~^¨¦`*?\"";

/// A field that a chosen option needs: it fails when it is empty or a character was dropped from it.
struct RequiredField {
    EditorControl FormModel::*field;
    bool (*active)(const FormModel& form);
    bool FormModel::*flag;
    bool FormModel::*clears;  ///< the flag that comes down with the report
    std::size_t message;
};

// Whether a pattern is asked for. A group without a choice, as in a mode that loads nothing, takes everything.
bool asksForPattern(const ControlArray<3>& group) {
    return group.selected().value_or(0) != 0;
}

// Reporting the folder pattern clears the file pattern's flag, deliberately, so that its own report comes back until a
// regular expression is allowed. Test: SaveJob.FolderPatternIsReportedAgainUntilRegEx.
// clang-format off
constexpr std::array requiredFields{
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

bool hasInvalidNameChar(std::string_view name) {
    for (std::string_view rest = name; !rest.empty();) {
        if (invalidNameChars.find(takeCharacter(rest).bytes) != std::string_view::npos) return true;
    }
    return false;
}

std::string joined(std::initializer_list<std::string_view> lines) {
    std::string text;
    for (const std::string_view& line : lines) {
        if (&line != lines.begin()) text += "\r\n";
        text += line;
    }
    return text;
}

}  // namespace

void frmEdit::reportInvalid(EditorControl& control, std::size_t message) {
    (void)platform_.prompts.showMessage(
        {TextCatalogue[catalogue::validationTitle],
         joined({TextCatalogue[message], TextCatalogue[catalogue::filteredOut], TextCatalogue[catalogue::pleaseCheck]}),
         Buttons::ok, MessageIcon::none});
    if (const auto position = nodeOfControl(*this, control)) showPage(*position);
    focus(control);
}

bool frmEdit::validate() {
    if (hasInvalidNameChar(dxName.text())) {
        reportInvalid(dxName, catalogue::invalidName);
        return false;
    }
    for (const RequiredField& row : requiredFields) {
        // What the present choices take away, the user could not fill in.
        if (!row.active(*this) || obstacle(this->*row.field)) continue;
        if (!(this->*row.field).isEmpty() && !(this->*row.flag)) continue;
        reportInvalid(this->*row.field, row.message);
        this->*row.clears = false;
        return false;
    }
    return true;
}

void frmEdit::save() {
    if (!validate()) return;
    const std::string name{trimBlanks(dxName.text())};
    if (values_.Mode == "New") return saveNew(name);
    if (values_.Mode == "Edit") return saveEdited(name);
    close();
}

void frmEdit::saveNew(const std::string& name) {
    if (name.empty()) {
        (void)askForName(Buttons::cancelRetryContinue, TextId::nameMissing);
        return;
    }
    const std::string file = jobPath(name);
    if (platform_.files.FileExists(file) && !confirmOverwrite(TextId::overwriteNew)) {
        return;
    }
    jobs_.write(file, SaveValues(*this, platform_.dates, platform_.clock.now()), JobStore::Write::create);
    values_.JobFile = file;
    close();
}

void frmEdit::saveEdited(const std::string& name) {
    if (name.empty()) {
        if (askForName(Buttons::yesNo, TextId::nameMissingEdited) == Answer::yes) {
            dxName.EditValue = LoadedName;
            changed(dxName);
        }
        focus(dxName);
        return;
    }
    if (name == LoadedName) {
        jobs_.write(values_.JobFile, SaveValues(*this, platform_.dates, platform_.clock.now()),
                    JobStore::Write::update);
        return close();
    }
    const std::string file = jobPath(name);
    if (platform_.files.FileExists(file)) {
        if (!confirmOverwrite(TextId::overwriteEdited)) return;
        jobs_.write(file, SaveValues(*this, platform_.dates, platform_.clock.now()), JobStore::Write::create);
    } else if (hasInvalidNameChar(LoadedName)) {
        // No save gave the old job this name, and it could lead to a file elsewhere: that one stays.
        jobs_.write(file, SaveValues(*this, platform_.dates, platform_.clock.now()), JobStore::Write::create);
    } else {
        jobs_.rename(jobPath(LoadedName), file, SaveValues(*this, platform_.dates, platform_.clock.now()));
    }
    // What was saved is a job of another name now, which the host has to look for.
    values_.Mode = "New";
    values_.JobFile = file;
    close();
}

Answer frmEdit::askForName(Buttons buttons, TextId firstLine) {
    using enum TextId;
    std::string question = joined({textOf(ini_, firstLine), textOf(ini_, nameIsFileName), textOf(ini_, nameWanted), "",
                                   textOf(ini_, useLastName)});
    return platform_.prompts.showMessage({textOf(ini_, nameTitle), std::move(question), buttons, MessageIcon::none});
}

bool frmEdit::confirmOverwrite(TextId question) {
    const Answer answer = platform_.prompts.showMessage(
        {textOf(ini_, TextId::saveTitle), joined({textOf(ini_, TextId::jobExists), textOf(ini_, question)}),
         Buttons::yesNo, MessageIcon::none});
    return answer == Answer::yes;
}

std::string frmEdit::jobPath(const std::string& name) const {
    return platform_.files.BuildPath(values_.JobDir, name + values_.JobExtension);
}

}  // namespace kestedit
