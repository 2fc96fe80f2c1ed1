// Which files a job takes by date or age, and the time stamps that it sets at the destination.
#pragma once

#include "form/FormModel.h"

namespace kestedit {

/// Change rule of optAge: 0 any, 1 older, 2 newer than an age, 3 from one date to another, 4 one date.
void ApplyAge(FormModel& form);
/// Change rule of chkDestFileTime: applies to copy, move and synchronise.
void ApplyDestFileTime(FormModel& form);
/// The date page's companion of ApplyDestFileTime: its label.
void ApplyDestFileTimePage(FormModel& form);

/// Whether the page leaves files out or sets time stamps.
[[nodiscard]] bool NarrowsDate(const FormModel& form);

}  // namespace kestedit
