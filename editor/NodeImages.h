// Marks in the navigation list: the image that a page's node shows.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "form/FormModel.h"

namespace kestedit {

namespace image {
inline constexpr std::string_view none;
inline constexpr std::string_view active = "0";
inline constexpr std::string_view inactive = "1";
inline constexpr std::string_view applies = "8";
inline constexpr std::string_view doesNotApply = "10";
}  // namespace image

/// Whether the view marks the page's node at all: view 23 marks the action and the selection of files, nothing else.
[[nodiscard]] bool isMarked(const FormModel& form, Page page);

/// Sets column 1 of the page's node. Does nothing while the form is loading or the list is being rebuilt, and for a
/// page that the view does not have or does not mark.
void SetNodeImage(FormModel& form, Page page, std::string_view image);

/// Position of the node that shows `page` in the form's view.
[[nodiscard]] std::optional<int> nodeOfPage(const FormModel& form, Page page);

}  // namespace kestedit
