// The image that each page's node shows for the present choices: what a freshly opened job is marked with.
#pragma once

#include <string_view>

#include "form/FormModel.h"

namespace kestedit {

/// The same image that the rules of the page set when a choice changes; none for a node that the view never marks.
[[nodiscard]] std::string_view PageMark(const FormModel& form, Page page);

}  // namespace kestedit
