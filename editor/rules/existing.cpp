#include "editor/rules/existing.h"

#include "editor/rules/action.h"
#include "editor/rules/applicability.h"
#include "editor/rules/compression.h"

namespace kestedit {

namespace {

// Of the replace-if conditions, those that compare sizes only.
constexpr int larger = 2;
constexpr int smaller = 5;

bool copiesOrMoves(const FormModel& form) {
    return selectedAction(form) == Action::copy || selectedAction(form) == Action::move;
}

/// Whether optExist decides: extracting and synchronising have groups of their own, deleting has no destination.
bool handlesExisting(const FormModel& form) {
    return copiesOrMoves(form) || selectedAction(form) == Action::compress;
}

bool renames(const FormModel& form) {
    return handlesExisting(form) && form.optExist[Existing::rename].isSet();
}

bool replacesOnCondition(const FormModel& form) {
    return (handlesExisting(form) && form.optExist[Existing::replaceIf].isSet()) ||
           (selectedAction(form) == Action::synchronise && form.optSyncExist[SyncExisting::replaceIf].isSet());
}

bool conditionComparesTimes(const FormModel& form) {
    const auto condition = form.dxPickExistSelecter.itemIndex();
    return condition && *condition != larger && *condition != smaller;
}

bool comparesTimes(const FormModel& form) {
    return (handlesExisting(form) && form.optExist[Existing::replaceOlder].isSet()) ||
           (replacesOnCondition(form) && conditionComparesTimes(form));
}

/// What becomes of folders: kept at the destination, and deleted at the source when a move has emptied them.
void applyFolderOptions(FormModel& form) {
    const bool moves = selectedAction(form) == Action::move;
    const bool subfolders = form.chkSubFolder.isSet();
    SetApplies(form, form.chkFStruct, copiesOrMoves(form) && subfolders);  // synchronising always keeps them
    SetApplies(form, form.chkDelTypeSource, moves);
    SetApplies(form, form.chkDelEFolSource, moves && subfolders);
}

}  // namespace

void ApplyExist(FormModel& form) {
    applyFolderOptions(form);
    SetAllApply(form, handlesExisting(form), form.lblExist, form.optExist);
    ApplyRenameText(form);
    ApplyRenameScheme(form);
    SetApplies(form, form.dxPickExistSelecter, replacesOnCondition(form));
    SetAllApply(form, comparesTimes(form), form.lblExistTime, form.optExtFileTime);
    ApplyFolderStructure(form);
}

void ApplyExistingFilesPage(FormModel& form) {
    SetAllApply(form, selectedAction(form) == Action::extract, form.lblDestZExist, form.optUnZip);
    ApplyExist(form);
}

void ApplyRenameText(FormModel& form) {
    SetAllApply(form, renames(form), form.lblRenamer, form.dxRenamer, form.optRenameSelect);
}

void ApplyRenameScheme(FormModel& form) {
    SetAllApply(form, renames(form), form.lblAnd, form.dxPickRenamer, form.chkDelSourceRename);
}

}  // namespace kestedit
