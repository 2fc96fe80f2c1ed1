#include "editor/rules/synchronise.h"

#include "editor/rules/existing.h"

namespace kestedit {

void ApplySyncExist(FormModel& form, int /*item*/) {
    // The condition and the time stamps that it compares are shared with the existing-files options of other actions,
    // so one rule decides on them, from both groups.
    ApplyExist(form);
}

void ApplySyncStart(FormModel& form) {
    const bool bothWays = form.optSyncStart[SyncStart::bothWays].isSet();
    form.chkSyncDelete.Enabled = !bothWays;  // always this one: its Visible follows chkOnlyCompare
}

}  // namespace kestedit
