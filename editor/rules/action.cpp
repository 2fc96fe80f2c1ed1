#include "editor/rules/action.h"

#include <array>
#include <string>

#include "editor/NodeImages.h"
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

}  // namespace

std::string_view ActionImage(int action, bool preview) {
    const ActionImages& images = actionImages.at(static_cast<std::size_t>(action));
    return preview ? images.preview : images.plain;
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

}  // namespace kestedit
