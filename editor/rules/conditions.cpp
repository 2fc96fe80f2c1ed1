#include "editor/rules/conditions.h"

#include "editor/NodeImages.h"
#include "editor/rules/applicability.h"

namespace kestedit {

void ApplyExecDo(FormModel& form) {
    if (!form.chkExecDo.isSet()) form.chkExecWait.State = 0;
    ShowExecDo(form);
}

void ShowExecDo(FormModel& form) {
    const bool on = form.chkExecDo.isSet();
    SetAllApply(form, on, form.optExecute, form.lblExecPath, form.lblExecParam, form.dxExecParam, form.dxExecPath,
                form.chkExecWait, form.dxExecMaxSec, form.lblExecMaxSec);
    ApplyExecWait(form);
}

void ApplyExecWait(FormModel& form) {
    form.dxExecMaxSec.Enabled = form.chkExecDo.isSet() && form.chkExecWait.isSet();
}

void ApplyFreeSpace(FormModel& form) {
    form.dxFreeSpace.Enabled = form.chkFreeSpace.isSet();
}

std::string_view InactiveMark(const FormModel& form) {
    return form.chkInactive.isSet() ? image::inactive : image::active;
}

std::string_view PathMark(const FormModel& form) {
    return form.chkInactive.isSet() ? image::none : image::active;
}

void ApplyInactive(FormModel& form) {
    SetNodeImage(form, Page::execute, InactiveMark(form));
}

void MarkInactivePathPage(FormModel& form) {
    SetNodeImage(form, Page::path, PathMark(form));
}

void RefreshRunConditionsPage(FormModel& form) {
    ApplyInactive(form);
}

}  // namespace kestedit
