#include "editor/rules/synchronise.h"

#include "editor/rules/existing.h"
#include "i18n/Catalogue.h"

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

void ReflectOnlyCompare(FormModel& form) {
    if (form.action() != Action::synchronise) return;
    const bool comparing = form.chkOnlyCompare.isSet();
    form.optSyncExist[SyncExisting::keep].Enabled = !comparing;
    form.optSyncExist[SyncExisting::keep].Caption =
        form.TextCatalogue[comparing ? catalogue::keepWhileComparing : catalogue::keepExisting];
    form.chkSyncDelete.Visible = !comparing;
}

void ApplyOnlyCompare(FormModel& form) {
    if (form.action() != Action::synchronise) return;
    ReflectOnlyCompare(form);
    form.optSyncExist.select(form.chkOnlyCompare.isSet() ? 1 : 0);
    ApplySyncExist(form, 0);
}

}  // namespace kestedit
