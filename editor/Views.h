// The view levels: one record for each, with all that sets it apart from the complete editor.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "form/FormModel.h"
#include "i18n/Catalogue.h"

namespace kestedit {

/// The rules that run when a node's page is shown; RefreshPageStates says which they are.
enum class PageRules : std::uint8_t {
    none,
    name,
    nameAndCompression,
    nameAndPaths,
    paths,
    interval,
    runConditions,
    fileNameCaption,
    fileMatch,
    date,
    attributes,
    compression,
    destination
};

/// The rules that run once when the form opens.
enum class RulePass : std::uint8_t { none, complete, withoutSchedule, small };

/// Of a node under whose number nothing asks for a page.
inline constexpr int unnumberedPage = -1;

/// A node of one view.
struct ViewNode {
    int page;  ///< the view's own number of the page
    catalogue::Entry title;
    EditorControl FormModel::*frame;  ///< what the node shows
    PageRules rules;
};

struct View {
    std::string_view level;
    int number;
    std::span<const ViewNode> nodes;
    RulePass pass;
    /// Options and frames that the view takes away.
    std::span<EditorControl* (*const)(FormModel& form)> hidden;
    bool marksAllPages;       ///< otherwise the action and the pages that select files alone
    bool titlesDestination;   ///< the destination's node is titled by the action
    bool marksReducedOnNew;   ///< a new job marks Page::reduced, without effect
    bool showsNameWithPaths;  ///< name and label of a job stand on the page of the paths
};

/// The form's view; null for a level that is none of "4", "9", "15" and "23".
[[nodiscard]] const View* viewOf(const FormModel& form);
[[nodiscard]] const View* viewOf(std::string_view level);

/// The nodes of a view level by position; empty for one that is not defined.
[[nodiscard]] std::span<const ViewNode> viewNodes(std::string_view viewLevel);

/// The frames of the pages in page order, which is also the order in which they are shown and hidden.
[[nodiscard]] std::span<EditorControl FormModel::*const> pageFrames();
[[nodiscard]] Page pageOfFrame(EditorControl FormModel::*frame);

/// Whether the view marks the page's node at all.
[[nodiscard]] bool isMarked(const FormModel& form, Page page);

/// Whether the view takes this control away whatever the job does.
[[nodiscard]] bool isHiddenByView(FormModel& form, const EditorControl& control);

/// Position of the node that shows `page` in the form's view.
[[nodiscard]] std::optional<int> nodeOfPage(const FormModel& form, Page page);

/// Position of the node on whose page a control stands, or nothing when the view does not show it.
[[nodiscard]] std::optional<int> nodeOfControl(const FormModel& form, const EditorControl& control);

}  // namespace kestedit
