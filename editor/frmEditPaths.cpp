// The path fields of frmEdit: choosing and creating folders, and the check of what stands in them.
#include <array>
#include <memory>
#include <string>

#include "editor/ChangeRules.h"
#include "editor/Findings.h"
#include "editor/dlgNewFolder.h"
#include "editor/frmEdit.h"
#include "editor/modBrowseFolders.h"
#include "i18n/Catalogue.h"

namespace kestedit {

namespace {

/// A path field that names a folder: its place is the dialog's fMode.
struct FolderField {
    EditorControl FormModel::*field;
    TextId title;
};

constexpr std::array folderFields{
    FolderField{&FormModel::dxSource, TextId::chooseSource},
    FolderField{&FormModel::dxDest, TextId::chooseDestination},
    FolderField{&FormModel::dxMonitorPath, TextId::chooseMonitored},
};

int modeOf(const FormModel& form, const EditorControl& field) {
    int mode = 0;
    while (&(form.*folderFields.at(static_cast<std::size_t>(mode)).field) != &field)
        ++mode;
    return mode;
}

// Patterns and flags of the program chooser.
constexpr std::string_view programPatterns = " (*.exe, *.com, *.bat)|*.exe;*.com;*.bat";
constexpr std::string_view everyFile = "|*|";
constexpr unsigned hideReadOnlyBox = 4;
constexpr unsigned fileMustExist = 4096;

}  // namespace

void frmEdit::browsePath(EditorControl& control) {
    const FolderField& field = folderFields.at(static_cast<std::size_t>(modeOf(*this, control)));
    const std::string title = textOf(ini_, field.title) + ":";
    const std::string folder =
        BrowseForFolder(platform_.prompts, title, control.text(), true, std::nullopt, true, false);
    if (folder.empty()) return;
    characters_.require(control, folder, JobCharacters::Entry::chosenPath);
    control.EditValue = folder;
    control.ToolTipText = folder;
    changed(control);
    checkPaths();
}

void frmEdit::createFolder(EditorControl& control) {
    fMode = modeOf(*this, control);
    dlgNewFolder dialog(*this, ini_, values_.AppTitle, platform_, characters_);
    dialog.Load();
    platform_.prompts.runNewFolder(dialog);
    characters_.editingFinished();  // of the dialog's field, which goes with it
    changed(control);
    checkPaths();
}

void frmEdit::browseExecPath(int button) {
    if (button != 0) return;
    // A program here has no extension that tells it, so every file is offered first.
    const std::string filter = textOf(ini_, TextId::allFiles) + std::string{everyFile} +
                               TextCatalogue[catalogue::programFilter] + std::string{programPatterns};
    const auto file = platform_.prompts.chooseFile(
        {TextCatalogue[catalogue::programTitle], filter, 1, hideReadOnlyBox | fileMustExist});
    if (!file) return;
    characters_.require(dxExecPath, *file, JobCharacters::Entry::chosenPath);
    dxExecPath.EditValue = *file;
    changed(dxExecPath);
}

void frmEdit::checkPaths() {
    checkedFolders_ = FoldersOf(*this);
    const auto finding = std::make_shared<std::optional<PathFinding>>();
    const auto look = [finding, folders = checkedFolders_, &files = platform_.files] {
        *finding = CheckPaths(folders, files);
    };
    // A look that ends late must not speak over the one that the user's next change has started.
    const auto show = [this, finding, folders = checkedFolders_] {
        if (folders == checkedFolders_) showPathFinding(*finding);
    };
    if (background_) return background_(look, show);
    look();
    show();
}

// What is said of a folder whose path is being typed is out of date, and so is a look that is still under way; the next
// one comes when the field is left.
void frmEdit::withdrawPathFinding(const EditorControl& typed) {
    if (timerRunning_) return;
    checkedFolders_ = FoldersOf(*this);
    if (pathFinding_ && Concerns(*this, *pathFinding_, typed)) showPathFinding(std::nullopt);
}

void frmEdit::showPathFinding(std::optional<PathFinding> finding) {
    pathFinding_ = finding;
    lblChkPathMsg.Caption = finding ? FindingText(ini_, *finding, *this) : std::string{};
    lblChkPathMsg.Visible = finding.has_value();
}

}  // namespace kestedit
