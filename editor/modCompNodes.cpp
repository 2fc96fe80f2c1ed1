#include "editor/modCompNodes.h"

#include <algorithm>
#include <array>

#include "editor/rules/RefreshPageStates.h"
#include "editor/rules/pageMarks.h"
#include "i18n/Catalogue.h"

namespace kestedit {

namespace {

using F = FormModel;

// Page number, title in the catalogue, frame: in the order of the list.
// clang-format off
constexpr std::array completeView{
    ViewNode{ 0, catalogue::nameAndNotes, &F::fraComment},
    ViewNode{ 1, catalogue::mode, &F::fraMode},
    ViewNode{ 2, catalogue::paths, &F::fraPath},
    ViewNode{ 3, catalogue::monitoring, &F::fraMonitoring},
    ViewNode{ 4, catalogue::execution, &F::fraExecute},
    ViewNode{ 5, catalogue::findFolders, &F::fraFolders},
    ViewNode{ 6, catalogue::findFiles, &F::fraFiles},
    ViewNode{ 7, catalogue::extensions, &F::fraExtensions},
    ViewNode{ 8, catalogue::fileSize, &F::fraFilesize},
    ViewNode{ 9, catalogue::fileDate, &F::fraDate},
    ViewNode{10, catalogue::attributes, &F::fraAttributes},
    ViewNode{11, catalogue::compression, &F::fraCompression},
    ViewNode{12, catalogue::destinationPage, &F::fraExisting},
};

// The complete view less the pages of these numbers.
template <int... LeftOut>
consteval auto completeViewWithout() {
    std::array<ViewNode, completeView.size() - sizeof...(LeftOut)> nodes{};
    std::ranges::copy_if(completeView, nodes.begin(),
                         [](const ViewNode& node) { return ((node.page != LeftOut) && ...); });
    return nodes;
}
constexpr auto viewWithoutCompression = completeViewWithout<11>();
constexpr auto viewWithoutSchedule = completeViewWithout<3, 4>();

// View 23 numbers its pages by itself, and deliberately shows the paths under the name's title and the comments last,
// under a page number that nothing asks for. Test: Navigation.View23PairsNameWithPaths.
constexpr int unnumbered = -1;
constexpr std::array smallView{
    ViewNode{ 0, catalogue::nameAndNotes, &F::fraPath},
    ViewNode{ 1, catalogue::mode, &F::fraMode},
    ViewNode{ 4, catalogue::findFolders, &F::fraFolders},
    ViewNode{ 5, catalogue::findFiles, &F::fraFiles},
    ViewNode{ 6, catalogue::extensions, &F::fraExtensions},
    ViewNode{ 7, catalogue::fileSize, &F::fraFilesize},
    ViewNode{ 8, catalogue::fileDate, &F::fraDate},
    ViewNode{ 9, catalogue::attributes, &F::fraAttributes},
    ViewNode{11, catalogue::destinationPage, &F::fraExisting},
    ViewNode{unnumbered, catalogue::comments, &F::fraComment},
};

struct View {
    std::string_view level;
    int number;
    std::span<const ViewNode> nodes;
};

constexpr std::array views{
    View{"4",   4, completeView},
    View{"9",   9, viewWithoutCompression},
    View{"15", 15, viewWithoutSchedule},
    View{"23", 23, smallView},
};

// The frames in page order, which is also the order in which they are shown and hidden.
constexpr std::array pageFrames{
    &F::fraComment, &F::fraMode,     &F::fraPath,       &F::fraMonitoring, &F::fraExecute,
    &F::fraFolders, &F::fraFiles,    &F::fraExtensions, &F::fraFilesize,   &F::fraDate,
    &F::fraAttributes, &F::fraCompression, &F::fraExisting,
};
// clang-format on

const View* viewOf(std::string_view level) {
    const auto* const found = std::ranges::find(views, level, &View::level);
    return found == views.end() ? nullptr : found;
}

Page pageOfFrame(EditorControl FormModel::*frame) {
    return static_cast<Page>(std::ranges::find(pageFrames, frame) - pageFrames.begin());
}

// The small view titles its first node "name and notes" and shows the paths there, so the name stands on that page.
void moveNameToPaths(FormModel& form) {
    form.lblName.Container = &form.fraPath;
    form.dxName.Container = &form.fraPath;
}

}  // namespace

std::span<const ViewNode> viewNodes(std::string_view viewLevel) {
    const View* const view = viewOf(viewLevel);
    return view ? view->nodes : std::span<const ViewNode>{};
}

int viewNumber(const FormModel& form) {
    const View* const view = viewOf(form.ViewLevel);
    return view ? view->number : 0;
}

EditorControl FormModel::*frameOfPage(Page page) {
    const auto number = static_cast<std::size_t>(page);
    return number < pageFrames.size() ? pageFrames[number] : nullptr;
}

void BuildNavigationTree(FormModel& form) {
    for (const ViewNode& node : viewNodes(form.ViewLevel)) {
        const int position = static_cast<int>(form.Navigation.Nodes.size());
        form.Navigation.Nodes.push_back(
            {form.TextCatalogue.at(node.title), std::string{PageMark(form, pageOfFrame(node.frame))}});
        if (node.page != unnumbered) form.PageNodeIndex[node.page] = position;
    }
    ApplyViewRestrictions(form);
}

void ApplyViewRestrictions(FormModel& form) {
    if (form.ViewLevel == "9") {
        form.optAction[Action::compress].Visible = false;
        form.optAction[Action::extract].Visible = false;
        form.optIntervall[Schedule::monitoring].Visible = false;
        form.fraExistingUnzip.Visible = false;
    } else if (form.ViewLevel == "23") {
        for (const Action member : {Action::compress, Action::extract, Action::synchronise})
            form.optAction[member].Visible = false;
        moveNameToPaths(form);
    }
}

void ShowNodePage(FormModel& form) {
    const View* const view = viewOf(form.ViewLevel);
    if (!view) return;
    const int position = form.Navigation.FocusedNode;
    EditorControl FormModel::*shown = nullptr;
    if (position >= 0 && position < static_cast<int>(view->nodes.size())) {
        shown = view->nodes[static_cast<std::size_t>(position)].frame;
    }
    SetNodeIFace(form, position, view->number, "");
    for (const auto frame : pageFrames)
        (form.*frame).Visible = frame == shown;
}

std::optional<int> nodeOfControl(const FormModel& form, const EditorControl& control) {
    const EditorControl* frame = &control;
    while (frame->Container)
        frame = frame->Container;
    const auto nodes = viewNodes(form.ViewLevel);
    for (std::size_t position = 0; position < nodes.size(); ++position) {
        if (&(form.*nodes[position].frame) == frame) return static_cast<int>(position);
    }
    return std::nullopt;
}

}  // namespace kestedit
