// Saving: the checks of the form, the job's file name, the questions before a file is lost, and the write.
#include <array>
#include <string>

#include "editor/frmEdit.h"
#include "editor/modCompNodes.h"
#include "persistence/modSaveValues.h"
#include "platform/Text.h"

namespace kestedit {

namespace {

// What a job's name must not contain, since it becomes a file name. The slash stands here three times.
constexpr std::string_view invalidNameChars = "<>|/\\//:´~^¨¦`*?\"";

constexpr std::string_view messagesSection = "Messages";

// Catalogue entries of the messages.
constexpr std::size_t validationTitle = 79;
constexpr std::size_t invalidName = 21;
constexpr std::size_t filteredOut = 22;
constexpr std::size_t pleaseCheck = 23;

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
    RequiredField{&FormModel::dxRenamer,     [](const FormModel& form) { return form.optExist[2].isSet(); },
                  &FormModel::InvalidRenamerChars,     &FormModel::InvalidRenamerChars,  24},
    RequiredField{&FormModel::dxFileName,    [](const FormModel& form) { return asksForPattern(form.optFileMatch); },
                  &FormModel::InvalidFileNameChars,    &FormModel::InvalidFileNameChars, 25},
    RequiredField{&FormModel::dxFolderMatch, [](const FormModel& form) { return asksForPattern(form.optFolderMatch); },
                  &FormModel::InvalidFolderMatchChars, &FormModel::InvalidFileNameChars, 37},
    RequiredField{&FormModel::dxExt,         [](const FormModel& form) { return asksForPattern(form.optExt); },
                  &FormModel::InvalidExtChars,         &FormModel::InvalidExtChars,      26},
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
        {TextCatalogue[validationTitle],
         joined({TextCatalogue[message], TextCatalogue[filteredOut], TextCatalogue[pleaseCheck]}), Buttons::ok,
         MessageIcon::none});
    if (const auto position = nodeOfControl(*this, control)) showPage(*position);
    focus(control);
}

bool frmEdit::validate() {
    if (hasInvalidNameChar(dxName.text())) {
        reportInvalid(dxName, invalidName);
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
        (void)askForName(Buttons::cancelRetryContinue, "t3");
        return;
    }
    const std::string file = jobPath(name);
    if (platform_.files.FileExists(file) && !confirmOverwrite("Möchten Sie den existierenden Auftrag überschreiben?")) {
        return;
    }
    jobs_.write(file, SaveValues(*this, platform_.dates, platform_.clock.now()), JobStore::Write::create);
    values_.JobFile = file;
    close();
}

void frmEdit::saveEdited(const std::string& name) {
    if (name.empty()) {
        // The text is looked up under the key of the last line, deliberately. Test: SaveJob.EmptyNameOfAnEditedJob.
        if (askForName(Buttons::yesNo, "t6") == Answer::yes) {
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
        if (!confirmOverwrite("Möchten Sie diesen Auftrag überschreiben?")) return;
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

Answer frmEdit::askForName(Buttons buttons, std::string_view firstKey) {
    const auto text = [this](std::string_view key, std::string_view german) {
        return ini_.ReadLanguageText(messagesSection, key, german, textSize);
    };
    std::string question = joined({text(firstKey, "Das Feld 'Name des Autrages' darf nicht leer sein."),
                                   text("t4", "Der Name wird als Dateiname benutzt."),
                                   text("t5", "Bitte geben Sie einen Namen für Ihren Autrag ein."), "",
                                   text("t6", "Möchten Sie den letzten Namen verwenden?")});
    return platform_.prompts.showMessage(
        {text("t7", "Zwingende Eingabe"), std::move(question), buttons, MessageIcon::none});
}

bool frmEdit::confirmOverwrite(std::string_view question) {
    const auto text = [this](std::string_view key, std::string_view german) {
        return ini_.ReadLanguageText(messagesSection, key, german, textSize);
    };
    const Answer answer = platform_.prompts.showMessage(
        {text("t10", "Meldung"),
         joined({text("t8", "Ein Auftrag mit diesem Namen existiert schon!"), text("t9", question)}), Buttons::yesNo,
         MessageIcon::none});
    return answer == Answer::yes;
}

std::string frmEdit::jobPath(const std::string& name) const {
    return platform_.files.BuildPath(values_.JobDir, name + values_.JobExtension);
}

}  // namespace kestedit
