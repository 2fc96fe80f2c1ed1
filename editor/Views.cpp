#include "editor/Views.h"

#include <algorithm>
#include <array>

namespace kestedit {

namespace {

using F = FormModel;
using enum catalogue::Entry;

// Page number, title, frame, rules: in the order of the list.
// clang-format off
constexpr std::array completeNodes{
    ViewNode{ 0, nameAndNotes,    &F::fraComment,     PageRules::name},
    ViewNode{ 1, mode,            &F::fraMode,        PageRules::none},
    ViewNode{ 2, paths,           &F::fraPath,        PageRules::paths},
    ViewNode{ 3, monitoring,      &F::fraMonitoring,  PageRules::interval},
    ViewNode{ 4, execution,       &F::fraExecute,     PageRules::runConditions},
    ViewNode{ 5, findFolders,     &F::fraFolders,     PageRules::fileNameCaption},
    ViewNode{ 6, findFiles,       &F::fraFiles,       PageRules::fileMatch},
    ViewNode{ 7, extensions,      &F::fraExtensions,  PageRules::none},
    ViewNode{ 8, fileSize,        &F::fraFilesize,    PageRules::none},
    ViewNode{ 9, fileDate,        &F::fraDate,        PageRules::date},
    ViewNode{10, attributes,      &F::fraAttributes,  PageRules::attributes},
    ViewNode{11, compression,     &F::fraCompression, PageRules::compression},
    ViewNode{12, destinationPage, &F::fraExisting,    PageRules::destination},
};

// No compression. The pages run no rules but the last, which follows the action all the same.
constexpr std::array nodesWithoutCompression{
    ViewNode{ 0, nameAndNotes,    &F::fraComment,     PageRules::none},
    ViewNode{ 1, mode,            &F::fraMode,        PageRules::none},
    ViewNode{ 2, paths,           &F::fraPath,        PageRules::none},
    ViewNode{ 3, monitoring,      &F::fraMonitoring,  PageRules::none},
    ViewNode{ 4, execution,       &F::fraExecute,     PageRules::none},
    ViewNode{ 5, findFolders,     &F::fraFolders,     PageRules::none},
    ViewNode{ 6, findFiles,       &F::fraFiles,       PageRules::none},
    ViewNode{ 7, extensions,      &F::fraExtensions,  PageRules::none},
    ViewNode{ 8, fileSize,        &F::fraFilesize,    PageRules::none},
    ViewNode{ 9, fileDate,        &F::fraDate,        PageRules::none},
    ViewNode{10, attributes,      &F::fraAttributes,  PageRules::none},
    ViewNode{12, destinationPage, &F::fraExisting,    PageRules::destination},
};

// No schedule and no run conditions. Positions 3 to 6 run the rules of those positions in the complete editor,
// deliberately; they do no harm there. Test: RefreshPageStates.View15RunsRulesByPosition.
constexpr std::array nodesWithoutSchedule{
    ViewNode{ 0, nameAndNotes,    &F::fraComment,     PageRules::nameAndCompression},
    ViewNode{ 1, mode,            &F::fraMode,        PageRules::none},
    ViewNode{ 2, paths,           &F::fraPath,        PageRules::paths},
    ViewNode{ 5, findFolders,     &F::fraFolders,     PageRules::interval},
    ViewNode{ 6, findFiles,       &F::fraFiles,       PageRules::runConditions},
    ViewNode{ 7, extensions,      &F::fraExtensions,  PageRules::fileNameCaption},
    ViewNode{ 8, fileSize,        &F::fraFilesize,    PageRules::fileMatch},
    ViewNode{ 9, fileDate,        &F::fraDate,        PageRules::date},
    ViewNode{10, attributes,      &F::fraAttributes,  PageRules::attributes},
    ViewNode{11, compression,     &F::fraCompression, PageRules::compression},
    ViewNode{12, destinationPage, &F::fraExisting,    PageRules::destination},
};

// This view numbers its pages by itself, and deliberately shows the paths under the name's title and the comments last,
// under a page number that nothing asks for. Story: tests/golden/pages.golden.
constexpr std::array smallNodes{
    ViewNode{ 0, nameAndNotes,    &F::fraPath,        PageRules::nameAndPaths},
    ViewNode{ 1, mode,            &F::fraMode,        PageRules::none},
    ViewNode{ 4, findFolders,     &F::fraFolders,     PageRules::fileNameCaption},
    ViewNode{ 5, findFiles,       &F::fraFiles,       PageRules::fileMatch},
    ViewNode{ 6, extensions,      &F::fraExtensions,  PageRules::none},
    ViewNode{ 7, fileSize,        &F::fraFilesize,    PageRules::none},
    ViewNode{ 8, fileDate,        &F::fraDate,        PageRules::date},
    ViewNode{ 9, attributes,      &F::fraAttributes,  PageRules::attributes},
    ViewNode{11, destinationPage, &F::fraExisting,    PageRules::destination},
    ViewNode{unnumberedPage, comments, &F::fraComment, PageRules::none},
};

using Hidden = EditorControl* (*)(FormModel& form);

constexpr std::array<Hidden, 4> archivesAndMonitoring{
    [](F& form) { return &form.optAction[Action::compress]; },
    [](F& form) { return &form.optAction[Action::extract]; },
    [](F& form) { return &form.optIntervall[Schedule::monitoring]; },
    [](F& form) { return &form.fraExistingUnzip; },
};
constexpr std::array<Hidden, 3> archivesAndSynchronising{
    [](F& form) { return &form.optAction[Action::compress]; },
    [](F& form) { return &form.optAction[Action::extract]; },
    [](F& form) { return &form.optAction[Action::synchronise]; },
};

constexpr std::array views{
    View{.level = "4", .number = 4, .nodes = completeNodes, .pass = RulePass::complete, .hidden = {},
         .marksAllPages = true, .titlesDestination = true, .marksReducedOnNew = true, .showsNameWithPaths = false},
    View{.level = "9", .number = 9, .nodes = nodesWithoutCompression, .pass = RulePass::none, .hidden = archivesAndMonitoring,
         .marksAllPages = true, .titlesDestination = false, .marksReducedOnNew = false, .showsNameWithPaths = false},
    View{.level = "15", .number = 15, .nodes = nodesWithoutSchedule, .pass = RulePass::withoutSchedule, .hidden = {},
         .marksAllPages = true, .titlesDestination = true, .marksReducedOnNew = true, .showsNameWithPaths = false},
    View{.level = "23", .number = 23, .nodes = smallNodes, .pass = RulePass::small, .hidden = archivesAndSynchronising,
         .marksAllPages = false, .titlesDestination = false, .marksReducedOnNew = false, .showsNameWithPaths = true},
};

constexpr std::array<EditorControl F::*, 13> frames{
    &F::fraComment, &F::fraMode,     &F::fraPath,       &F::fraMonitoring, &F::fraExecute,
    &F::fraFolders, &F::fraFiles,    &F::fraExtensions, &F::fraFilesize,   &F::fraDate,
    &F::fraAttributes, &F::fraCompression, &F::fraExisting,
};
// clang-format on

}  // namespace

const View* viewOf(std::string_view level) {
    const auto* const found = std::ranges::find(views, level, &View::level);
    return found == views.end() ? nullptr : found;
}

const View* viewOf(const FormModel& form) {
    return viewOf(form.ViewLevel);
}

std::span<const ViewNode> viewNodes(std::string_view viewLevel) {
    const View* const view = viewOf(viewLevel);
    return view ? view->nodes : std::span<const ViewNode>{};
}

std::span<EditorControl FormModel::*const> pageFrames() {
    return frames;
}

Page pageOfFrame(EditorControl FormModel::*frame) {
    return static_cast<Page>(std::ranges::find(frames, frame) - frames.begin());
}

bool isMarked(const FormModel& form, Page page) {
    const View* const view = viewOf(form);
    const bool selects = page >= Page::folders && page <= Page::attributes;
    return !view || view->marksAllPages || page == Page::mode || selects;
}

bool isHiddenByView(FormModel& form, const EditorControl& control) {
    const View* const view = viewOf(form);
    return view && std::ranges::any_of(view->hidden, [&](const auto hidden) { return hidden(form) == &control; });
}

std::optional<int> nodeOfPage(const FormModel& form, Page page) {
    const auto number = static_cast<std::size_t>(page);
    return number < frames.size() ? nodeOfControl(form, form.*frames.at(number)) : std::nullopt;
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
