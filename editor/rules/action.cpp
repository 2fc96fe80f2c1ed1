#include "editor/rules/action.h"

#include <array>
#include <string>

#include "editor/NodeImages.h"
#include "editor/Views.h"
#include "editor/rules/compression.h"
#include "editor/rules/dateAge.h"
#include "editor/rules/existing.h"
#include "editor/rules/synchronise.h"
#include "i18n/Catalogue.h"

namespace kestedit {

namespace {

constexpr int actionCount = 6;

struct ActionImages {
    std::string_view plain;
    std::string_view preview;
};

// In the order of the actions. Compress and synchronise break the row on purpose: runners store these numbers with the
// job. Test: ActionRules.NodeImagesFollowActionAndPreview.
constexpr std::array<ActionImages, actionCount> actionImages{{
    {"2", "3"},
    {"4", "5"},
    {"6", "7"},
    {"9", "13"},
    {"14", "15"},
    {"12", "11"},
}};

void markPagesByAction(FormModel& form, Action action) {
    const bool compressing = action == Action::compress || action == Action::extract;
    if (compressing) form.chkFStruct.State = 0;
    if (action == Action::remove) SetNodeImage(form, Page::existing, image::doesNotApply);
    SetNodeImage(form, Page::compression, compressing ? image::applies : image::doesNotApply);
    if (action == Action::synchronise) SetNodeImage(form, Page::existing, image::none);
}

// Path page and linked options. Synchronising renames source and destination, keeps the folder structure in any case
// and has its own choice for existing files.
void linkOptionsToAction(FormModel& form, Action action) {
    const bool synchronise = action == Action::synchronise;
    const auto& texts = form.TextCatalogue;
    form.chkOnlyCompare.Visible = synchronise || action == Action::copy || action == Action::move;
    form.fraSync.Visible = synchronise;
    if (synchronise) {
        form.BringToFront(form.fraSync);
        form.BringToFront(form.fraZielverzeichnis);
        ApplyOnlyCompare(form);
    }
    form.lblSource[0].Caption = texts[synchronise ? catalogue::synchroniseOneWay : catalogue::source];
    form.lblDest[0].Caption = texts[synchronise ? catalogue::synchroniseBothWays : catalogue::destination];
    form.chkOnlyCompare.Caption = texts[synchronise ? catalogue::onlyCompareSynchronised : catalogue::onlyCompare];
    TitleDestinationNode(form);
    if (synchronise) form.chkFStruct.State = 1;
    form.chkFStruct.TabStop = !synchronise;
    for (EditorControl& member : form.optExist)
        member.TabStop = !synchronise;
    if (synchronise) {
        ApplySyncExist(form, 0);
        ApplySyncStart(form);
        ApplyOnlyCompare(form);
    }
}

void showDeleteOptions(FormModel& form, bool visible) {
    form.chkDelEFol.Visible = visible;
    form.chkDelType.Visible = visible;
    form.lblDeleteFiles.Visible = visible;
    if (visible) SetNodeImage(form, Page::existing, image::doesNotApply);
}

// "(Mode Copy files - no options here)"
std::string noOptionText(const FormModel& form) {
    const auto action = form.optAction.selected();
    const std::string caption = action ? form.optAction[static_cast<std::size_t>(*action)].Caption : std::string{};
    return "(" + form.TextCatalogue[catalogue::mode] + " " + caption + " - " +
           form.TextCatalogue[catalogue::noOptions] + ")";
}

}  // namespace

std::string_view ActionImage(int action, bool preview) {
    const ActionImages& images = actionImages.at(static_cast<std::size_t>(action));
    return preview ? images.preview : images.plain;
}

void TitleDestinationNode(FormModel& form) {
    const View* const view = viewOf(form);
    const auto position = nodeOfPage(form, Page::existing);
    if (form.TreeBusy || !view || !view->titlesDestination || !position || form.Navigation.Nodes.empty()) return;
    const bool synchronise = selectedAction(form) == Action::synchronise;
    form.Navigation.Nodes.at(static_cast<std::size_t>(*position)).Title =
        form.TextCatalogue[synchronise ? catalogue::synchronisation : catalogue::destinationNode];
}

void ApplyAction(FormModel& form) {
    const auto selected = form.optAction.selected();
    if (!selected) return;
    const auto action = static_cast<Action>(*selected);
    SetNodeImage(form, Page::mode, ActionImage(*selected, form.chkPreview.isSet()));
    markPagesByAction(form, action);
    form.SelectedAction = *selected;
    if (action == Action::copy) ApplyOnlyCompare(form);
    ApplyFolderStructure(form);
    ApplyDestFileTime(form);
    ApplyAge(form);
    linkOptionsToAction(form, action);
    showDeleteOptions(form, action == Action::remove);
    ApplyExist(form);
    ShowActionPicture(form, form.SelectedAction);
}

void ApplyPreview(FormModel& form) {
    if (form.SelectedAction >= actionCount) return;
    SetNodeImage(form, Page::mode, ActionImage(form.SelectedAction, form.chkPreview.isSet()));
    ShowActionPicture(form, form.SelectedAction);
}

void ReflectOnlyCompare(FormModel& form) {
    if (selectedAction(form) != Action::synchronise) return;
    const bool comparing = form.chkOnlyCompare.isSet();
    form.optSyncExist[SyncExisting::keep].Enabled = !comparing;
    form.optSyncExist[SyncExisting::keep].Caption =
        form.TextCatalogue[comparing ? catalogue::keepWhileComparing : catalogue::keepExisting];
    form.chkSyncDelete.Visible = !comparing;
}

void ApplyOnlyCompare(FormModel& form) {
    if (selectedAction(form) != Action::synchronise) return;
    ReflectOnlyCompare(form);
    form.optSyncExist.select(form.chkOnlyCompare.isSet() ? 1 : 0);
    ApplySyncExist(form, 0);
}

std::string_view CompressionMark(const FormModel& form) {
    const auto action = form.optAction.selected();
    const bool applies = action == static_cast<int>(Action::compress) || action == static_cast<int>(Action::extract);
    return applies ? image::applies : image::doesNotApply;
}

void MarkCompressionPage(FormModel& form) {
    if (form.optAction.selected()) SetNodeImage(form, Page::compression, CompressionMark(form));
}

void ShowActionPicture(FormModel& form, int action) {
    int picture = action + 1;
    std::string text = form.optAction[static_cast<std::size_t>(action)].Caption;
    if (form.chkPreview.isSet()) {
        picture += actionCount;
        text += " - " + form.chkPreview.Caption;
    }
    if (picture >= 1 && picture <= 2 * actionCount) form.ActionPicture = picture;
    form.Image1.ToolTipText = form.TextCatalogue[catalogue::mode] + ": " + text;
}

void ShowCompressionFrames(FormModel& form) {
    const Action action = selectedAction(form);
    form.fraZip.Visible = action == Action::compress;
    form.fraUnZip.Visible = action == Action::extract;
    form.lblNoOptionMsg[0].Visible = !form.fraZip.Visible && !form.fraUnZip.Visible;
    if (form.lblNoOptionMsg[0].Visible) form.lblNoOptionMsg[0].Caption = noOptionText(form);
    ApplyZipAll(form);
    ShowZipDelComp(form);
    ShowZipDelDeComp(form);
}

void ShowDestinationFrames(FormModel& form) {
    const Action action = selectedAction(form);
    form.fraZielverzeichnis.Visible = action != Action::remove && action != Action::extract;
    form.fraExistingUnzip.Visible = action == Action::extract && !isHiddenByView(form, form.fraExistingUnzip);
    form.lblNoOptionMsg[1].Visible = !form.fraZielverzeichnis.Visible && !form.fraExistingUnzip.Visible;
    if (form.lblNoOptionMsg[1].Visible) form.lblNoOptionMsg[1].Caption = noOptionText(form);
    ApplyExistingFilesPage(form);
}

}  // namespace kestedit
