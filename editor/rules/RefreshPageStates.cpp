#include "editor/rules/RefreshPageStates.h"

#include <array>
#include <span>

#include "editor/NodeImages.h"
#include "editor/modSpinButtons.h"
#include "editor/rules/action.h"
#include "editor/rules/attributes.h"
#include "editor/rules/compression.h"
#include "editor/rules/conditions.h"
#include "editor/rules/dateAge.h"
#include "editor/rules/existing.h"
#include "editor/rules/jobName.h"
#include "editor/rules/paths.h"
#include "editor/rules/schedule.h"
#include "editor/rules/selection.h"
#include "editor/rules/synchronise.h"

namespace kestedit {

namespace {

using Rule = void (*)(FormModel&);

/// A rule of the whole pass and the reduced views that run it too. View 4 runs all of them, view 9 none.
struct PassRule {
    Rule rule;
    bool view15;
    bool view23;
};

/// A rule of one page: the rules of a position run in the order of their rows.
struct PageRule {
    int position;
    Rule rule;
};

// clang-format off
constexpr std::array wholePass{
    PassRule{UpdateIntervalUnitLabels, true,  false},
    PassRule{ApplyRunTime,             true,  false},
    PassRule{ApplyIntervall,           false, false},
    PassRule{ApplyInactive,            false, false},
    PassRule{ApplyFreeSpace,           false, false},
    PassRule{ApplyExecDo,              false, false},
    PassRule{ApplyMonitorPath,         true,  false},
    PassRule{ApplySubFolder,           true,  true},
    PassRule{UpdateFolderNameCaption,  true,  true},
    PassRule{ApplyFileMatch,           false, true},
    PassRule{UpdateFileNameCaption,    true,  true},
    PassRule{ApplyExt,                 true,  true},
    PassRule{ApplySize,                true,  true},
    PassRule{UpdateAgeUnitLabels,      true,  true},
    PassRule{ApplyDestFileTime,        true,  true},
    PassRule{ApplySourceAttributes,    true,  true},
    PassRule{ApplyDestAttributes,      true,  true},
    PassRule{FillCompressionLevels,    true,  false},
    PassRule{MarkCompressionPage,      true,  false},
    PassRule{ApplyRenameText,          true,  true},
    PassRule{ApplyRenameScheme,        true,  true},
    PassRule{ApplyFolderStructure,     true,  true},
    PassRule{ApplySyncStart,           true,  true},
};

constexpr std::array completePages{
    PageRule{ 0, ApplyJobName},
    PageRule{ 2, ApplyEditPaths},
    PageRule{ 2, ApplyDestinationPath},
    PageRule{ 2, RefreshPathTexts},
    PageRule{ 3, UpdateIntervalUnitLabels},
    PageRule{ 3, ApplyRunTime},
    PageRule{ 4, RefreshRunConditionsPage},
    PageRule{ 5, UpdateFileNameCaption},
    PageRule{ 6, ApplyFileMatch},
    PageRule{ 9, UpdateAgeUnitLabels},
    PageRule{ 9, ApplyAge},
    PageRule{ 9, ApplyDestFileTimePage},
    PageRule{10, ApplySourceAttributes},
    PageRule{10, ApplyDestAttributes},
    PageRule{11, FillCompressionLevels},
    PageRule{11, ShowCompressionFrames},
    PageRule{12, ShowDestinationFrames},
};

// Positions 3 to 6 show other pages here than their rules belong to, deliberately; the rules do no harm there.
// Test: RefreshPageStates.View15RunsRulesByPosition.
constexpr std::array pagesWithoutSchedule{
    PageRule{ 0, ApplyJobName},
    PageRule{ 0, ShowCompressionFrames},
    PageRule{ 2, ApplyEditPaths},
    PageRule{ 2, ApplyDestinationPath},
    PageRule{ 2, RefreshPathTexts},
    PageRule{ 3, UpdateIntervalUnitLabels},
    PageRule{ 3, ApplyRunTime},
    PageRule{ 4, RefreshRunConditionsPage},
    PageRule{ 5, UpdateFileNameCaption},
    PageRule{ 6, ApplyFileMatch},
    PageRule{ 7, UpdateAgeUnitLabels},
    PageRule{ 7, ApplyAge},
    PageRule{ 7, ApplyDestFileTimePage},
    PageRule{ 8, ApplySourceAttributes},
    PageRule{ 8, ApplyDestAttributes},
    PageRule{ 9, FillCompressionLevels},
    PageRule{ 9, ShowCompressionFrames},
    PageRule{10, ShowDestinationFrames},
};

constexpr std::array smallPages{
    PageRule{0, ApplyJobName},
    PageRule{0, ApplyEditPaths},
    PageRule{0, ApplyDestinationPath},
    PageRule{0, RefreshPathTexts},
    PageRule{2, UpdateFileNameCaption},
    PageRule{3, ApplyFileMatch},
    PageRule{6, UpdateAgeUnitLabels},
    PageRule{6, ApplyAge},
    PageRule{6, ApplyDestFileTimePage},
    PageRule{7, ApplySourceAttributes},
    PageRule{7, ApplyDestAttributes},
    PageRule{8, ShowDestinationFrames},
};

// Everything that a choice can change, a row for each page or topic. The action's own rule is not among them: it would
// choose anew what the job has chosen.
constexpr Rule choices[] = {
    ApplyJobName,
    ApplyJobName, ReflectOnlyCompare, ApplyEditPaths, ApplyDestinationPath, RefreshPathTexts,
    UpdateIntervalUnitLabels, ApplyIntervall, ApplyMonitorPath,
    ApplyInactive, ApplyFreeSpace, ApplyExecDo,
    ApplySubFolder, UpdateFolderNameCaption, ApplyFileMatch, UpdateFileNameCaption,
    ApplyExt, ApplySize,
    UpdateAgeUnitLabels, ApplyAge, ApplyDestFileTime, ApplyDestFileTimePage,
    ApplySourceAttributes, ApplyDestAttributes,
    FillCompressionLevels, ShowCompressionFrames,
    ApplyExist, ApplyRenameText, ApplyRenameScheme, ShowDestinationFrames, ApplySyncStart,
};
// clang-format on

std::span<const PageRule> pageRules(int viewLevel) {
    switch (viewLevel) {
        case 4:
            return completePages;
        case 15:
            return pagesWithoutSchedule;
        case 23:
            return smallPages;
        default:
            return {};
    }
}

bool runsIn(const PassRule& row, int viewLevel) {
    return viewLevel == 4 || (viewLevel == 15 && row.view15) || (viewLevel == 23 && row.view23);
}

// Two pages change with view and action, and their headings with the titles of their nodes: the notes stand alone in
// view 23, and synchronising takes the destination's page.
void HeadPageAsNode(FormModel& form, int position) {
    if (position < 0 || position >= static_cast<int>(form.Navigation.Nodes.size())) return;
    const std::string& title = form.Navigation.Nodes[static_cast<std::size_t>(position)].Title;
    if (nodeOfPage(form, Page::comment) == position) form.lblNamePath.Caption = title;
    if (nodeOfPage(form, Page::existing) == position) form.lblKeepFolders.Caption = title;
}

}  // namespace

void RefreshPageStates(FormModel& form, std::string_view what, int viewLevel, int page) {
    if (what == "all") {
        for (const PassRule& row : wholePass) {
            if (runsIn(row, viewLevel)) row.rule(form);
        }
        return;
    }
    for (const PageRule& row : pageRules(viewLevel)) {
        if (row.position == page) row.rule(form);
    }
}

void SetNodeIFace(FormModel& form, int position, int viewLevel, std::string_view text) {
    RefreshPageStates(form, text, viewLevel, position);
    HeadPageAsNode(form, position);
    // View 9 has no rule pass; its last page follows the action all the same.
    if (viewLevel == 9) ShowDestinationFrames(form);
}

void ApplyLoadedChoices(FormModel& form) {
    for (const Rule rule : choices)
        rule(form);
    ShowActionPicture(form, form.SelectedAction);
}

}  // namespace kestedit
