#include "editor/rules/dateAge.h"

#include <algorithm>

#include "editor/NodeImages.h"
#include "editor/rules/action.h"
#include "editor/rules/applicability.h"
#include "editor/rules/pageMarks.h"

namespace kestedit {

namespace {

enum AgeChoice : int { anyAge, olderThan, newerThan, fromTo, oneDate };

int ageChoice(const FormModel& form) {
    return form.optAge.selected().value_or(anyAge);
}

/// A file written to the destination gets its time stamps there; one that goes into or comes out of an archive takes
/// the archive's.
bool setsTimeStamps(const FormModel& form) {
    const Action action = selectedAction(form);
    return action == Action::copy || action == Action::move || action == Action::synchronise;
}

void markDatePage(FormModel& form) {
    SetNodeImage(form, Page::date, ChoiceMark(NarrowsDate(form)));
}

}  // namespace

void ApplyAge(FormModel& form) {
    const int choice = ageChoice(form);
    SetAllApply(form, choice != anyAge, form.optFileAgeType);
    SetAllApply(form, choice == olderThan || choice == newerThan, form.dxAge, form.lblFileAgeDays, form.dxAgeHours,
                form.lblFileAgeHours, form.dxAgeMinutes, form.lblFileAgeMinutes);
    SetAllApply(form, choice == fromTo, form.lblDatefrom, form.dxDateFrom, form.lblDateTo, form.dxDateTo);
    SetAllApply(form, choice == oneDate, form.optFileDate, form.lblFileDate, form.dxFileDate);
    markDatePage(form);
}

void ApplyDestFileTime(FormModel& form) {
    SetAllApply(form, setsTimeStamps(form), form.chkDestFileTime);
    ApplyDestFileTimePage(form);
    markDatePage(form);
}

void ApplyDestFileTimePage(FormModel& form) {
    SetApplies(form, form.lblDestTime, setsTimeStamps(form));
}

bool NarrowsDate(const FormModel& form) {
    return ageChoice(form) != anyAge ||
           (setsTimeStamps(form) && std::ranges::any_of(form.chkDestFileTime, &EditorControl::isSet));
}

}  // namespace kestedit
