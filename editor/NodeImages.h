// Marks in the navigation list: the image that a page's node shows.
#pragma once

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

/// "8" for a page that narrows or changes what the job does, none for one at its neutral choice.
[[nodiscard]] inline std::string_view ChoiceMark(bool narrows) {
    return narrows ? image::applies : image::none;
}

/// Sets column 1 of the page's node. Does nothing while the form is loading or the list is being rebuilt, and for a
/// page that the view does not have or does not mark.
void SetNodeImage(FormModel& form, Page page, std::string_view image);

}  // namespace kestedit
