#include "editor/rules/existing.h"

#include "editor/NodeImages.h"
#include "editor/Views.h"
#include "editor/rules/applicability.h"
#include "i18n/Catalogue.h"

namespace kestedit {

namespace {

// Of the replace-if conditions, those that compare sizes only.
constexpr int larger = 2;
constexpr int smaller = 5;

bool copiesOrMoves(const FormModel& form) {
    return form.action() == Action::copy || form.action() == Action::move;
}

/// Whether optExist decides: extracting and synchronising have groups of their own, deleting has no destination.
bool handlesExisting(const FormModel& form) {
    return copiesOrMoves(form) || form.action() == Action::compress;
}

bool renames(const FormModel& form) {
    return handlesExisting(form) && form.optExist[Existing::rename].isSet();
}

bool replacesOnCondition(const FormModel& form) {
    return (handlesExisting(form) && form.optExist[Existing::replaceIf].isSet()) ||
           (form.action() == Action::synchronise && form.optSyncExist[SyncExisting::replaceIf].isSet());
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
    const bool moves = form.action() == Action::move;
    const bool subfolders = form.chkSubFolder.isSet();
    SetApplies(form, form.chkFStruct, copiesOrMoves(form) && subfolders);  // synchronising always keeps them
    SetApplies(form, form.chkDelTypeSource, moves);
    SetApplies(form, form.chkDelEFolSource, moves && subfolders);
}

// The mark while files are copied or moved: folder structure first, then the choice for existing files.
std::string_view copyMark(const FormModel& form) {
    if (!form.chkSubFolder.isSet()) return image::none;
    if (form.chkFStruct.isSet()) return image::applies;
    return form.optExist[Existing::keep].State == 0 ? image::applies : image::none;
}

std::string_view extractMark(const FormModel& form) {
    if (form.chkFStruct.isSet()) return image::applies;
    return form.optUnZip[UnZipExisting::keep].State == 0 ? image::applies : image::none;
}

std::string_view compressMark(const FormModel& form) {
    return form.optExist[Existing::keep].State == 0 ? image::applies : image::none;
}

}  // namespace

void ApplyExist(FormModel& form) {
    applyFolderOptions(form);
    SetAllApply(form, handlesExisting(form), form.lblExist, form.optExist);
    ApplyRenameText(form);
    ApplyRenameScheme(form);
    SetAllApply(form, replacesOnCondition(form), form.lblPickExistSelecter, form.dxPickExistSelecter);
    SetAllApply(form, comparesTimes(form), form.lblExistTime, form.optExtFileTime);
    ApplyFolderStructure(form);
}

void ApplyExistingFilesPage(FormModel& form) {
    SetAllApply(form, form.action() == Action::extract, form.lblDestZExist, form.optUnZip);
    ApplyExist(form);
}

void ApplyRenameText(FormModel& form) {
    SetAllApply(form, renames(form), form.lblRenamer, form.dxRenamer, form.optRenameSelect);
}

void ApplyRenameScheme(FormModel& form) {
    SetAllApply(form, renames(form), form.lblAnd, form.dxPickRenamer, form.chkDelSourceRename);
}

void ApplyFolderStructure(FormModel& form) {
    switch (form.action()) {
        case Action::copy:
        case Action::move:
            return SetNodeImage(form, Page::existing, copyMark(form));
        case Action::extract:
            return SetNodeImage(form, Page::existing, extractMark(form));
        case Action::remove:
        case Action::compress:
        case Action::synchronise:
            return;
    }
}

void ApplyUnZipExisting(FormModel& form, int index) {
    if (index == form.HandledUnZipItem) return;
    form.HandledUnZipItem = index;
    // Compressing asks for the group of existing files here, not for the one of extracting: the page shows that group.
    // Test: CompressionRules.ExistingFilesMarkOfCompressAndExtract.
    if (form.action() == Action::compress) SetNodeImage(form, Page::existing, compressMark(form));
    if (form.action() == Action::extract) {
        SetNodeImage(form, Page::existing,
                     form.optUnZip[UnZipExisting::keep].State == 0 ? image::applies : image::none);
    }
}

std::string_view DestinationMark(const FormModel& form) {
    if (!form.optAction.selected()) return image::none;
    switch (form.action()) {
        case Action::copy:
        case Action::move:
            return copyMark(form);
        case Action::remove:
            return image::doesNotApply;
        case Action::compress:
            return compressMark(form);
        case Action::extract:
            return extractMark(form);
        case Action::synchronise:
            break;
    }
    return image::none;
}

void MarkDestinationPage(FormModel& form) {
    SetNodeImage(form, Page::existing, DestinationMark(form));
}

void TitleDestinationNode(FormModel& form) {
    const View* const view = viewOf(form);
    const auto position = nodeOfPage(form, Page::existing);
    if (form.TreeBusy || !view || !view->titlesDestination || !position || form.Navigation.Nodes.empty()) return;
    const bool synchronise = form.action() == Action::synchronise;
    form.Navigation.Nodes.at(static_cast<std::size_t>(*position)).Title =
        form.TextCatalogue[synchronise ? catalogue::synchronisation : catalogue::destinationNode];
}

void ShowDestinationFrames(FormModel& form) {
    const Action action = form.action();
    form.fraZielverzeichnis.Visible = action != Action::remove && action != Action::extract;
    form.fraExistingUnzip.Visible = action == Action::extract && !isHiddenByView(form, form.fraExistingUnzip);
    form.lblNoOptionMsg[1].Visible = !form.fraZielverzeichnis.Visible && !form.fraExistingUnzip.Visible;
    if (form.lblNoOptionMsg[1].Visible) form.lblNoOptionMsg[1].Caption = NoOptionText(form);
    ApplyExistingFilesPage(form);
}

}  // namespace kestedit
