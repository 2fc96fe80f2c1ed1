// Which rule runs when the user has changed a control.
#pragma once

#include <span>
#include <string_view>

#include "form/FormModel.h"

namespace kestedit {

/// A control or group, and the rule of its change; `member` is the index of the member that changed.
struct ChangeRule {
    std::string_view control;
    void (*run)(FormModel& form, int member);
};

/// All rules, by page. A control has at most one row.
[[nodiscard]] std::span<const ChangeRule> changeRules();

/// Runs the change rule of `control`, which may be a member of a group; does nothing for a plain field.
void RunChangeRule(FormModel& form, const EditorControl& control);

}  // namespace kestedit
