#include "editor/rules/RefreshPageStates.h"

#include <array>
#include <string>

#include "editor/Views.h"
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

/// A rule of the complete pass, and the other passes that run it too.
struct PassRule {
    Rule rule;
    bool withoutSchedule;
    bool small;
};

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

/// A rule of a page; those of one set run in the order of their rows.
struct PageRule {
    PageRules set;
    Rule rule;
};

constexpr std::array pageRules{
    PageRule{PageRules::name,               ApplyJobName},
    PageRule{PageRules::nameAndCompression, ApplyJobName},
    PageRule{PageRules::nameAndCompression, ShowCompressionFrames},
    PageRule{PageRules::nameAndPaths, ApplyJobName},
    PageRule{PageRules::nameAndPaths, ApplyEditPaths},
    PageRule{PageRules::nameAndPaths, ApplyDestinationPath},
    PageRule{PageRules::nameAndPaths, RefreshPathTexts},
    PageRule{PageRules::paths,              ApplyEditPaths},
    PageRule{PageRules::paths,              ApplyDestinationPath},
    PageRule{PageRules::paths,              RefreshPathTexts},
    PageRule{PageRules::interval,           UpdateIntervalUnitLabels},
    PageRule{PageRules::interval,           ApplyRunTime},
    PageRule{PageRules::runConditions,      RefreshRunConditionsPage},
    PageRule{PageRules::fileNameCaption,    UpdateFileNameCaption},
    PageRule{PageRules::fileMatch,          ApplyFileMatch},
    PageRule{PageRules::date,               UpdateAgeUnitLabels},
    PageRule{PageRules::date,               ApplyAge},
    PageRule{PageRules::date,               ApplyDestFileTimePage},
    PageRule{PageRules::attributes,         ApplySourceAttributes},
    PageRule{PageRules::attributes,         ApplyDestAttributes},
    PageRule{PageRules::compression,        FillCompressionLevels},
    PageRule{PageRules::compression,        ShowCompressionFrames},
    PageRule{PageRules::destination,        ShowDestinationFrames},
    PageRule{PageRules::destination,        MarkDestinationPage},
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

bool runsIn(const PassRule& row, RulePass pass) {
    return pass == RulePass::complete || (pass == RulePass::withoutSchedule && row.withoutSchedule) ||
           (pass == RulePass::small && row.small);
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
    const View* const view = viewOf(std::to_string(viewLevel));
    if (!view) return;
    if (what == "all") {
        for (const PassRule& row : wholePass)
            if (runsIn(row, view->pass)) row.rule(form);
        return;
    }
    if (page < 0 || page >= static_cast<int>(view->nodes.size())) return;
    const PageRules rules = view->nodes[static_cast<std::size_t>(page)].rules;
    for (const PageRule& row : pageRules)
        if (row.set == rules) row.rule(form);
}

void SetNodeIFace(FormModel& form, int position, int viewLevel, std::string_view text) {
    RefreshPageStates(form, text, viewLevel, position);
    HeadPageAsNode(form, position);
}

void ApplyLoadedChoices(FormModel& form) {
    for (const Rule rule : choices)
        rule(form);
    ShowActionPicture(form, form.SelectedAction);
}

}  // namespace kestedit
