// Saving: the checks of the form, the job's file name, the questions before a file is lost, and the write.
#include <algorithm>
#include <string>

#include "editor/JobName.h"
#include "editor/RequiredFields.h"
#include "editor/TypedMoments.h"
#include "editor/Views.h"
#include "editor/frmEdit.h"
#include "form/OptionNames.h"
#include "i18n/Catalogue.h"
#include "persistence/JobMerge.h"
#include "persistence/modSaveValues.h"
#include "platform/Text.h"

namespace kestedit {

namespace {

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
    open(control);
}

void frmEdit::open(EditorControl& control) {
    if (const auto position = nodeOfControl(*this, control)) showPage(*position);
    focus(control);
}

bool frmEdit::validate() {
    if (!isFileName(dxName.text())) {
        reportInvalid(dxName, catalogue::invalidName);
        return false;
    }
    for (const RequiredField& row : requiredFields()) {
        // What the present choices take away, the user could not fill in.
        if (!row.active(*this) || obstacle(this->*row.field)) continue;
        if (!(this->*row.field).isEmpty() && !(this->*row.flag)) continue;
        reportInvalid(this->*row.field, row.message);
        this->*row.clears = false;
        return false;
    }
    return momentsAreRead();
}

// The window would close over the notice about a text that is no date: the first save that meets it shows it instead.
bool frmEdit::momentsAreRead() {
    for (EditorControl* control : controls()) {
        if (obstacle(*control) || !saysNothing(*control, platform_) || control->Typed->heldSave) continue;
        control->Typed->heldSave = true;
        open(*control);
        return false;
    }
    return true;
}

void frmEdit::save() {
    for (EditorControl* control : controls())
        if (control->Typed) onEditingFinished(*control);
    typing_ = nullptr;
    refreshNotices();
    if (!validate()) return;
    const std::string name{trimBlanks(dxName.text())};
    if (values_.Mode == "New") return saveNew(name);
    if (values_.Mode == "Edit") return saveEdited(name);
    close();
}

void frmEdit::saveNew(const std::string& name) {
    if (name.empty()) {
        wantName();
        (void)askForName(Buttons::ok, TextId::nameMissing);
        return open(dxName);
    }
    const std::string file = jobPath(name);
    if (platform_.files.FileExists(file) && !confirmOverwrite(TextId::overwriteNew)) {
        return;
    }
    if (!create(file)) return;
    values_.JobFile = file;
    close();
}

void frmEdit::wantName() {
    NameWanted = true;
    refreshNotices();
}

void frmEdit::saveEdited(const std::string& name) {
    if (name.empty()) {
        wantName();
        if (askForName(Buttons::yesNo, TextId::nameMissingEdited) == Answer::yes) {
            dxName.EditValue = LoadedName;
            changed(dxName);
        }
        return open(dxName);
    }
    const bool renamed = name != trimBlanks(LoadedName);
    const std::string file = renamed ? jobPath(name) : values_.JobFile;
    const bool own = opened_ && platform_.files.isSameFile(opened_->file, file);
    if (!own && platform_.files.FileExists(file)) {
        if (!confirmOverwrite(TextId::overwriteEdited) || !create(file)) return;
    } else if (opened_ && (own || renamed)) {
        if (!saveOpened(renamed ? std::filesystem::path(file) : opened_->file)) return;
    } else if (!create(file)) {
        return;
    }
    if (renamed) {
        // What was saved is a job of another name now, which the host has to look for.
        values_.Mode = "New";
        values_.JobFile = file;
    }
    close();
}

/// False when the user goes back to the form, as of saveOpened.
bool frmEdit::create(const std::string& file) {
    const auto lines = SaveValues(*this, platform_.dates, platform_.clock.now());
    if (!jobs_.readsBack(file, lines) && !characters_.agreeToSave()) return false;
    jobs_.create(file, lines, opened_ ? opened_->file : std::filesystem::path{});
    CorrectValues(*this);
    return true;
}

/// Writes the job over what its file holds now, which may be another program's work. False when the user goes back to
/// the form instead.
bool frmEdit::saveOpened(const std::filesystem::path& target) {
    const auto lines = SaveValues(*this, platform_.dates, platform_.clock.now());
    Winner winner = Winner::mine;
    std::vector<BothChanged> answered;
    for (;;) {
        JobChange change = jobs_.change(*opened_);
        const JobMerge merge = MergeJob(lines, *opened_, change.present(), winner);
        if (merge.conflicts == answered) {
            if (!change.readsBack(merge.lines)) {
                if (!characters_.agreeToSave()) return false;
                continue;  // anew, as UTF-8
            }
            target == opened_->file ? change.save(merge.lines) : change.saveAs(target, merge.lines);
            CorrectValues(*this);
            return true;
        }
        const Answer answer = askWhoseValues(merge.conflicts);
        if (answer == Answer::cancel) return false;
        // The file may have changed again meanwhile: the answer holds for what it was given on.
        winner = answer == Answer::yes ? Winner::mine : Winner::theirs;
        answered = merge.conflicts;
    }
}

Answer frmEdit::askWhoseValues(const std::vector<BothChanged>& keys) {
    std::vector<std::string> names;
    for (const BothChanged& key : keys) {
        std::string name = nameForUsers(*this, key.row->control);
        if (std::ranges::find(names, name) == names.end()) names.push_back(std::move(name));
    }
    std::string text = textOf(ini_, TextId::changedByOther) + "\r\n";
    for (const std::string& name : names)
        text.append("\r\n- ").append(name);
    text.append("\r\n\r\n").append(textOf(ini_, TextId::keepOwnValues));
    return platform_.prompts.showMessage(
        {textOf(ini_, TextId::saveTitle), std::move(text), Buttons::yesNoCancel, MessageIcon::question});
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
