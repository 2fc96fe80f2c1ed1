#include "editor/ChangeRules.h"

#include <algorithm>
#include <array>

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
#include "form/ControlNames.h"

namespace kestedit {

namespace {

/// A control or group, and the rule of its change; `member` is the index of the member that changed.
struct ChangeRule {
    std::string_view control;
    void (*run)(FormModel& form, int member);
    bool whenOpened = false;  ///< the rule also follows from what a job holds that was just loaded, or from a new one
};

template <void (*... Rules)(FormModel&)>
void run(FormModel& form, int /*member*/) {
    (Rules(form), ...);
}

void ChangeUnZipExisting(FormModel& form, int member) {
    ApplyUnZipExisting(form, member);
    MarkDestinationPage(form);
}

// clang-format off
constexpr std::array changeRuleRows{
    // the name
    ChangeRule{"dxName",              run<ApplyJobName>},
    // the action
    ChangeRule{"optAction",           run<ApplyAction, ApplyDestinationPath, LeaveMissingDestination, ApplyMonitorPath, ApplySourceAttributes,
                                          ApplyDestAttributes, ShowCompressionFrames, ShowDestinationFrames>},
    ChangeRule{"chkPreview",          run<ApplyPreview>},
    ChangeRule{"chkOnlyCompare",      run<ApplyOnlyCompare>},
    // paths
    ChangeRule{"chkEditPaths",        run<ApplyEditPaths>},
    ChangeRule{"dxSource",            run<RefreshPathTexts>},
    ChangeRule{"dxDest",              run<RefreshPathTexts>},
    ChangeRule{"dxMonitorPath",       run<RefreshPathTexts>},
    // schedule
    ChangeRule{"optIntervall",        run<ApplyIntervall>},
    ChangeRule{"optIntTime",          run<ApplyIntTime>},
    ChangeRule{"optMonitorPath",      run<ApplyMonitorPath>},
    ChangeRule{"dxDays",              run<UpdateIntervalUnitLabels>},
    ChangeRule{"dxHours",             run<UpdateIntervalUnitLabels>},
    ChangeRule{"dxMinutes",           run<UpdateIntervalUnitLabels>},
    // run conditions and post-run program
    ChangeRule{"chkInactive",         run<ApplyInactive, MarkInactivePathPage>},
    ChangeRule{"chkFreeSpace",        run<ApplyFreeSpace>},
    ChangeRule{"chkExecDo",           run<ApplyExecDo>},
    ChangeRule{"chkExecWait",         run<ApplyExecWait>},
    // selection
    ChangeRule{"chkSubFolder",        run<ApplySubFolder>},
    ChangeRule{"optFolderMatch",      run<ApplyFolderMatch>},
    ChangeRule{"dxFolderMatch",       run<ApplyFolderMatch>},
    ChangeRule{"chkRegExFolder",      run<ApplyRegExFolder>},
    ChangeRule{"chkNoHiddenFolder",   run<ApplyFolderMatch>},
    ChangeRule{"chkNoSystemFolder",   run<ApplyFolderMatch>},
    ChangeRule{"chkNoReadOnlyFolder", run<ApplyFolderMatch>},
    ChangeRule{"chkDelEFol",          run<ApplyFolderMatch>},
    ChangeRule{"optFileMatch",        run<ApplyFileMatch>},
    ChangeRule{"dxFileName",          run<ApplyFileMatch>},
    ChangeRule{"chkRegExFile",        run<ApplyRegExFile>},
    ChangeRule{"optExt",              run<ApplyExt>},
    ChangeRule{"dxExt",               run<ApplyExt>},
    ChangeRule{"optSize",             run<ApplySize>},
    ChangeRule{"dxSize",              run<ApplySize>},
    // date and age
    ChangeRule{"optAge",              run<ApplyAge>},
    ChangeRule{"dxAge",               run<UpdateAgeUnitLabels>},
    ChangeRule{"dxAgeHours",          run<UpdateAgeUnitLabels>},
    ChangeRule{"dxAgeMinutes",        run<UpdateAgeUnitLabels>},
    ChangeRule{"chkDestFileTime",     run<ApplyDestFileTime>},
    // attributes
    ChangeRule{"optAttrSetSource",    run<ApplySourceAttributes>},
    ChangeRule{"optAttrSetDest",      run<ApplyDestAttributes>},
    ChangeRule{"chkAttrArchive",      run<MarkAttributesPage>},
    ChangeRule{"chkAttrReadOnly",     run<MarkAttributesPage>},
    ChangeRule{"chkAttrSystem",       run<MarkAttributesPage>},
    ChangeRule{"chkAttrHidden",       run<MarkAttributesPage>},
    ChangeRule{"chkAttrNormal",       run<MarkAttributesPage>},
    ChangeRule{"chkAttrComp",         run<MarkAttributesPage>},
    // compression and extraction
    ChangeRule{"chkZipAll",           run<ApplyZipAll>},
    ChangeRule{"chkZipDelComp",       run<ApplyZipDelComp>},
    ChangeRule{"chkZipDelDeComp",     run<ApplyZipDelDeComp>},
    ChangeRule{"dxZipGrade",          run<PickCompressionLevel>},
    ChangeRule{"optUnZip",            ChangeUnZipExisting},
    // destination
    ChangeRule{"chkFStruct",          run<ApplyFolderStructure, MarkDestinationPage>},
    ChangeRule{"optExist",            run<ApplyExist, MarkDestinationPage>},
    ChangeRule{"dxRenamer",           run<ApplyRenameText, MarkDestinationPage>},
    ChangeRule{"dxPickRenamer",       run<ApplyRenameScheme, MarkDestinationPage>},
    ChangeRule{"optRenameSelect",     run<MarkDestinationPage>},
    ChangeRule{"chkDelSourceRename",  run<MarkDestinationPage>},
    ChangeRule{"dxPickExistSelecter", run<ApplyExist, MarkDestinationPage>},
    ChangeRule{"optExtFileTime",      run<MarkDestinationPage>},
    ChangeRule{"chkDelTypeSource",    run<MarkDestinationPage>},
    ChangeRule{"chkDelEFolSource",    run<MarkDestinationPage>},
    ChangeRule{"optSyncExist",        run<ApplyExist, MarkDestinationPage>},
    ChangeRule{"optSyncStart",        run<ApplySyncStart, MarkDestinationPage>},
    ChangeRule{"chkSyncDelete",       run<MarkDestinationPage>},
};
// clang-format on

static_assert(namesControlBases(changeRuleRows, &ChangeRule::control), "a rule names no control");
static_assert(namesNoneTwice(changeRuleRows, &ChangeRule::control), "a control has two rules");

}  // namespace

void RunRulesOfOpening(FormModel& form) {
    for (const ChangeRule& rule : changeRuleRows)
        if (rule.whenOpened) rule.run(form, 0);
}

void RunChangeRule(FormModel& form, const EditorControl& control) {
    const auto* const rule = std::ranges::find(changeRuleRows, control.Base, &ChangeRule::control);
    if (rule != changeRuleRows.end()) rule->run(form, control.Member);
}

}  // namespace kestedit
