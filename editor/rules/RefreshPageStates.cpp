#include "editor/rules/RefreshPageStates.h"

#include <array>

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

/// A rule of a page and the position of its node in each view; `none` where the view does not run it. The rules of a
/// position run in the order of their rows.
struct PageRule {
    Rule rule;
    int view4;
    int view15;
    int view23;
};
constexpr int none = -1;

// clang-format off
constexpr std::array wholePass{
    PassRule{UpdateIntervalUnitLabels, true,  false},
    PassRule{ApplyRunTime,             true,  false},
    PassRule{ApplyIntervall,           false, false},
    PassRule{ApplyInactive,            false, false},
    PassRule{ApplyFreeSpace,           false, false},
    PassRule{ShowExecDo,               false, false},
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

// In view 15 the positions 3 to 6 show other pages than those that the rules belong to, deliberately; the rules do no
// harm there. Test: RefreshPageStates.View15RunsRulesByPosition.
constexpr std::array pageRules{
    PageRule{ApplyJobName,              0,    0,    0},
    PageRule{ShowCompressionFrames,     none, 0,    none},
    PageRule{ApplyEditPaths,            2,    2,    0},
    PageRule{ApplyDestinationPath,      2,    2,    0},
    PageRule{RefreshPathTexts,          2,    2,    0},
    PageRule{UpdateIntervalUnitLabels,  3,    3,    none},
    PageRule{ApplyRunTime,              3,    3,    none},
    PageRule{RefreshRunConditionsPage,  4,    4,    none},
    PageRule{UpdateFileNameCaption,     5,    5,    2},
    PageRule{ApplyFileMatch,            6,    6,    3},
    PageRule{UpdateAgeUnitLabels,       9,    7,    6},
    PageRule{ApplyAge,                  9,    7,    6},
    PageRule{ApplyDestFileTimePage,     9,    7,    6},
    PageRule{ApplySourceAttributes,    10,    8,    7},
    PageRule{ApplyDestAttributes,      10,    8,    7},
    PageRule{FillCompressionLevels,    11,    9,    none},
    PageRule{ShowCompressionFrames,    11,    9,    none},
    PageRule{ShowDestinationFrames,    12,   10,    8},
    PageRule{MarkDestinationPage,      12,   10,    8},
};

// Everything that a choice can change, a row for each page or topic. The action's own rule is not among them: it would
// choose anew what the job has chosen.
constexpr Rule choices[] = {
    ApplyJobName, ReflectOnlyCompare, ApplyEditPaths, ApplyDestinationPath, RefreshPathTexts,
    UpdateIntervalUnitLabels, ApplyIntervall, ApplyMonitorPath,
    ApplyInactive, ApplyFreeSpace, ShowExecDo,
    ApplySubFolder, UpdateFolderNameCaption, ApplyFileMatch, UpdateFileNameCaption,
    ApplyExt, ApplySize,
    UpdateAgeUnitLabels, ApplyAge, ApplyDestFileTime, ApplyDestFileTimePage,
    ApplySourceAttributes, ApplyDestAttributes,
    FillCompressionLevels, ShowCompressionFrames,
    ApplyExist, ApplyRenameText, ApplyRenameScheme, ShowDestinationFrames, ApplySyncStart,
};
// clang-format on

int positionIn(const PageRule& row, int viewLevel) {
    switch (viewLevel) {
        case 4:
            return row.view4;
        case 15:
            return row.view15;
        case 23:
            return row.view23;
        default:
            return none;
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
    for (const PageRule& row : pageRules) {
        if (page != none && positionIn(row, viewLevel) == page) row.rule(form);
    }
}

void SetNodeIFace(FormModel& form, int position, int viewLevel, std::string_view text) {
    RefreshPageStates(form, text, viewLevel, position);
    HeadPageAsNode(form, position);
    // View 9 has no rule pass; its last page follows the action all the same.
    if (viewLevel != 9) return;
    ShowDestinationFrames(form);
    if (nodeOfPage(form, Page::existing) == position) MarkDestinationPage(form);
}

void ApplyLoadedChoices(FormModel& form) {
    for (const Rule rule : choices)
        rule(form);
    ShowActionPicture(form, form.SelectedAction);
}

}  // namespace kestedit
