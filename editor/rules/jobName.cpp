#include "editor/rules/jobName.h"

namespace kestedit {

void ApplyJobName(FormModel& form) {
    form.dxName.ToolTipText = form.dxName.text();
}

}  // namespace kestedit
