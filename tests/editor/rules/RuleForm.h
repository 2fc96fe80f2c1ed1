// A form of the complete editor whose rules are tried one by one.
#pragma once

#include <string>
#include <string_view>

#include "editor/FormModel.h"
#include "editor/NodeImages.h"
#include "editor/modCompNodes.h"
#include "editor/rules/action.h"

namespace kestedit::test {

/// What a new job shows, nodes included: member 0 of every group, and each list with entries of its own.
struct RuleForm : FormModel {
    explicit RuleForm(bool disableInsteadOfHide = false) {
        for (EditorControl* control : controls()) {
            if (control->Kind == ControlKind::option && control->Member == 0) control->State = 1;
            for (std::size_t i = 0; i < control->Items.size(); ++i)
                control->Items[i] = "entry " + std::to_string(i);
        }
        ViewLevel = "4";
        DisableInsteadOfHide = disableInsteadOfHide;
        BuildNavigationTree(*this);
        Ready = true;
    }

    void choose(std::string_view base, int member) {
        for (EditorControl* one : group(base))
            one->State = one->Member == member ? 1 : 0;
    }
    void act(Action action) {
        choose("optAction", static_cast<int>(action));
        SelectedAction = static_cast<int>(action);
    }

    [[nodiscard]] std::string mark(Page page) const {
        return Navigation.Nodes.at(static_cast<std::size_t>(nodeOfPage(*this, page).value())).Image;
    }
};

}  // namespace kestedit::test
