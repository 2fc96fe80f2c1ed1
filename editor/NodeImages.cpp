#include "editor/NodeImages.h"

#include "editor/Views.h"

namespace kestedit {

void SetNodeImage(FormModel& form, Page page, std::string_view image) {
    if (!form.Ready || form.TreeBusy) return;
    if (!isMarked(form, page)) return;
    if (const auto position = nodeOfPage(form, page)) {
        form.Navigation.Nodes.at(static_cast<std::size_t>(*position)).Image = image;
    }
}

}  // namespace kestedit
