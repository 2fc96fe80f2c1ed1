#include "editor/rules/dateAge.h"

#include <algorithm>

#include "editor/NodeImages.h"
#include "editor/rules/applicability.h"

namespace kestedit {

namespace {

AgeLimit ageLimit(const FormModel& form) {
    return static_cast<AgeLimit>(form.optAge.selected().value_or(0));
}

/// A file written to the destination gets its time stamps there; one that goes into or comes out of an archive takes
/// the archive's.
bool setsTimeStamps(const FormModel& form) {
    const Action action = form.action();
    return action == Action::copy || action == Action::move || action == Action::synchronise;
}

void markDatePage(FormModel& form) {
    SetNodeImage(form, Page::date, ChoiceMark(NarrowsDate(form)));
}

}  // namespace

void ApplyAge(FormModel& form) {
    const AgeLimit choice = ageLimit(form);
    SetAllApply(form, choice != AgeLimit::any, form.lblFileAgeType, form.optFileAgeType);
    SetAllApply(form, choice == AgeLimit::older || choice == AgeLimit::newer, form.dxAge, form.lblFileAgeDays,
                form.dxAgeHours, form.lblFileAgeHours, form.dxAgeMinutes, form.lblFileAgeMinutes);
    SetAllApply(form, choice == AgeLimit::fromTo, form.lblDatefrom, form.dxDateFrom, form.lblDateTo, form.dxDateTo);
    SetAllApply(form, choice == AgeLimit::oneDate, form.lblFileDateType, form.optFileDate, form.lblFileDate,
                form.dxFileDate);
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
    return ageLimit(form) != AgeLimit::any ||
           (setsTimeStamps(form) && std::ranges::any_of(form.chkDestFileTime, &EditorControl::isSet));
}

}  // namespace kestedit
