#include "editor/NodeImages.h"

#include "editor/modCompNodes.h"

namespace kestedit {

std::optional<int> nodeOfPage(const FormModel& form, Page page) {
    const auto frame = frameOfPage(page);
    return frame ? nodeOfControl(form, form.*frame) : std::nullopt;
}

bool isMarked(const FormModel& form, Page page) {
    if (form.ViewLevel != "23") return true;
    return page == Page::mode || (page >= Page::folders && page <= Page::attributes);
}

void SetNodeImage(FormModel& form, Page page, std::string_view image) {
    if (!form.Ready || form.TreeBusy) return;
    if (!isMarked(form, page)) return;
    if (const auto position = nodeOfPage(form, page)) {
        form.Navigation.Nodes.at(static_cast<std::size_t>(*position)).Image = image;
    }
}

}  // namespace kestedit
