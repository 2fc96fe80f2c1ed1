#include "editor/modCompNodes.h"

#include "editor/Views.h"
#include "editor/rules/RefreshPageStates.h"
#include "editor/rules/pageMarks.h"

namespace kestedit {

namespace {

void moveNameToPaths(FormModel& form) {
    form.lblName.Container = &form.fraPath;
    form.dxName.Container = &form.fraPath;
}

}  // namespace

void BuildNavigationTree(FormModel& form) {
    for (const ViewNode& node : viewNodes(form.ViewLevel)) {
        const int position = static_cast<int>(form.Navigation.Nodes.size());
        form.Navigation.Nodes.push_back(
            {form.TextCatalogue.at(node.title), std::string{PageMark(form, pageOfFrame(node.frame))}});
        if (node.page != unnumberedPage) form.PageNodeIndex[node.page] = position;
    }
    ApplyViewRestrictions(form);
}

void ApplyViewRestrictions(FormModel& form) {
    const View* const view = viewOf(form);
    if (!view) return;
    for (const auto hidden : view->hidden)
        hidden(form)->Visible = false;
    if (view->showsNameWithPaths) moveNameToPaths(form);
}

void ShowNodePage(FormModel& form) {
    const View* const view = viewOf(form);
    if (!view) return;
    const int position = form.Navigation.FocusedNode;
    EditorControl FormModel::*shown = nullptr;
    if (position >= 0 && position < static_cast<int>(view->nodes.size())) {
        shown = view->nodes[static_cast<std::size_t>(position)].frame;
    }
    SetNodeIFace(form, position, view->number, "");
    for (const auto frame : pageFrames())
        (form.*frame).Visible = frame == shown;
}

}  // namespace kestedit
