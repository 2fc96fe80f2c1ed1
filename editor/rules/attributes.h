// File attributes: which exclude a file, and which the job sets at the source and at the destination.
#pragma once

#include "form/FormModel.h"

namespace kestedit {

/// Change rule of optAttrSetSource: member 2 of the attribute groups.
void ApplySourceAttributes(FormModel& form);
/// Change rule of optAttrSetDest: member 1 of the attribute groups.
void ApplyDestAttributes(FormModel& form);
/// Change rule of the attribute boxes themselves: the page's mark.
void MarkAttributesPage(FormModel& form);

/// Whether the page leaves files out or changes attributes.
[[nodiscard]] bool ChangesAttributes(const FormModel& form);

}  // namespace kestedit
