// Run conditions and the program that is started after the run.
#pragma once

#include <string_view>

#include "form/FormModel.h"

namespace kestedit {

/// Change rule of chkExecDo: without a program there is no waiting for it; then ShowExecDo.
void ApplyExecDo(FormModel& form);
/// The whole group of the program, hidden or disabled. A job that was loaded keeps what it holds.
void ShowExecDo(FormModel& form);
/// Change rule of chkExecWait.
void ApplyExecWait(FormModel& form);
/// Change rule of chkFreeSpace.
void ApplyFreeSpace(FormModel& form);
/// Change rule of chkInactive: marks the execution page.
void ApplyInactive(FormModel& form);
/// Marks the path page from chkInactive.
void MarkInactivePathPage(FormModel& form);
/// The execution page's entry in the rule pass of one page.
void RefreshRunConditionsPage(FormModel& form);

/// Images of the execution page and of the path page.
[[nodiscard]] std::string_view InactiveMark(const FormModel& form);
[[nodiscard]] std::string_view PathMark(const FormModel& form);

}  // namespace kestedit
