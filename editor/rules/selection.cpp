#include "editor/rules/selection.h"

#include "editor/NodeImages.h"
#include "editor/rules/applicability.h"
#include "editor/rules/compression.h"
#include "editor/rules/existing.h"
#include "i18n/Catalogue.h"

namespace kestedit {

namespace {

/// Whether a member other than 0, "everything", is chosen. A group without a choice takes everything.
bool restricts(const ControlArray<3>& group) {
    return group.selected().value_or(0) != 0;
}

}  // namespace

void ApplySubFolder(FormModel& form) {
    const bool subfolders = form.chkSubFolder.isSet();
    SetAllApply(form, subfolders, form.lblFolderTitle, form.optFolderMatch);
    SetAllApply(form, subfolders, form.lblNoScans, form.chkNoHiddenFolder, form.chkNoSystemFolder,
                form.chkNoReadOnlyFolder);
    form.chkDelEFol.Enabled = subfolders;  // always this one: its Visible follows the action
    ApplyFolderMatch(form);
    ApplyZipAll(form);
    ApplyFolderStructure(form);
    ApplyExistingFilesPage(form);
}

void ApplyFolderMatch(FormModel& form) {
    const bool pattern = form.chkSubFolder.isSet() && restricts(form.optFolderMatch);
    SetAllApply(form, pattern, form.lblFolder, form.dxFolderMatch, form.chkRegExFolder);
    SetNodeImage(form, Page::folders, ChoiceMark(NarrowsFolders(form)));
}

void ApplyFileMatch(FormModel& form) {
    SetAllApply(form, restricts(form.optFileMatch), form.lblFileName, form.dxFileName, form.chkRegExFile);
    SetNodeImage(form, Page::files, ChoiceMark(NarrowsFiles(form)));
}

void ApplyExt(FormModel& form) {
    SetAllApply(form, restricts(form.optExt), form.lblExt, form.dxExt);
    SetNodeImage(form, Page::extensions, ChoiceMark(NarrowsExtensions(form)));
}

void ApplySize(FormModel& form) {
    SetAllApply(form, restricts(form.optSize), form.dxSize, form.lblSize);
    SetNodeImage(form, Page::filesize, ChoiceMark(NarrowsSize(form)));
}

void ApplyRegExFile(FormModel& form) {
    UpdateFileNameCaption(form);
    if (!form.chkRegExFile.isSet()) return;
    form.InvalidFileNameChars = false;
    form.DroppedChars.erase(&form.dxFileName);
}

void ApplyRegExFolder(FormModel& form) {
    UpdateFolderNameCaption(form);
    if (!form.chkRegExFolder.isSet()) return;
    form.InvalidFolderMatchChars = false;
    form.DroppedChars.erase(&form.dxFolderMatch);
}

void UpdateFileNameCaption(FormModel& form) {
    form.lblFileName.Caption =
        form.TextCatalogue.at(form.chkRegExFile.isSet() ? catalogue::fileRegEx : catalogue::fileWildcards);
}

void UpdateFolderNameCaption(FormModel& form) {
    form.lblFolder.Caption =
        form.TextCatalogue.at(form.chkRegExFolder.isSet() ? catalogue::folderRegEx : catalogue::folderWildcards);
}

bool NarrowsFolders(const FormModel& form) {
    return form.chkSubFolder.isSet();  // all else on the page chooses among subfolders
}

bool NarrowsFiles(const FormModel& form) {
    return restricts(form.optFileMatch);
}

bool NarrowsExtensions(const FormModel& form) {
    return restricts(form.optExt);
}

bool NarrowsSize(const FormModel& form) {
    return restricts(form.optSize);
}

}  // namespace kestedit
