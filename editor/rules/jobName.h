// The name of a job.
#pragma once

#include "form/FormModel.h"

namespace kestedit {

/// Change rule of dxName: the name itself as tool tip, as a long one does not fit into its field.
void ApplyJobName(FormModel& form);

}  // namespace kestedit
