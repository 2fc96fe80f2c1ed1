// The image that each page's node shows for the present choices: what a freshly opened job is marked with.
#pragma once

#include <string_view>

#include "editor/NodeImages.h"
#include "form/FormModel.h"

namespace kestedit {

/// The same image that the rules of the page set when a choice changes; none for a node that the view never marks.
[[nodiscard]] std::string_view PageMark(const FormModel& form, Page page);

/// "8" for a page that narrows or changes what the job does, none for one at its neutral choice.
[[nodiscard]] inline std::string_view ChoiceMark(bool narrows) {
    return narrows ? image::applies : image::none;
}

}  // namespace kestedit
