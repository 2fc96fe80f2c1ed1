// Marks in the navigation list: which page a number stands for, and the image that its node shows.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "editor/FormModel.h"

namespace kestedit {

/// The pages by their numbers in the complete editor. Rules name pages by these, whatever the view.
enum class Page : int {
    comment,
    mode,
    path,
    monitoring,
    execute,
    folders,
    files,
    extensions,
    filesize,
    date,
    attributes,
    compression,
    existing,
    reduced = 22  ///< a page that no view has; a new job of view 4 or 15 marks it all the same, without effect
};

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
