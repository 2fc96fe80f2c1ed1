// The navigation list: its nodes for each view level, and the page that a node shows.
#pragma once

#include <span>
#include <string_view>

#include "editor/NodeImages.h"
#include "form/FormModel.h"

namespace kestedit {

/// A node of one view.
struct ViewNode {
    int page;                         ///< the view's own number of the page
    std::size_t title;                ///< entry of TextCatalogue
    EditorControl FormModel::*frame;  ///< what the node shows
};

/// The nodes of a view level by position; empty for a level that is none of "4", "9", "15" and "23".
[[nodiscard]] std::span<const ViewNode> viewNodes(std::string_view viewLevel);

/// The view level as a number; 0 for one that is not defined.
[[nodiscard]] int viewNumber(const FormModel& form);

/// Frame that shows a page of the complete editor.
[[nodiscard]] EditorControl FormModel::*frameOfPage(Page page);

/// Adds the nodes of the form's view, each with its title and the mark that follows from the form's present choices,
/// and hides what the view leaves out. Runs once, while the form is loading.
void BuildNavigationTree(FormModel& form);

/// Hides the choices whose pages the view does not have.
void ApplyViewRestrictions(FormModel& form);

/// Shows the frame of the focused node and no other; for a position outside the view no frame at all.
void ShowNodePage(FormModel& form);

/// Position of the node on whose page a control stands, or nothing when the view does not show it.
[[nodiscard]] std::optional<int> nodeOfControl(const FormModel& form, const EditorControl& control);

}  // namespace kestedit
