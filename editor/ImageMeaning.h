// The signs of the navigation list in words.
#pragma once

#include <string>
#include <string_view>

#include "form/FormModel.h"
#include "persistence/modIniHandler.h"
#include "platform/Export.h"

namespace kestedit {

/// What a node's image says ("The job is inactive"), for those who do not see it. Empty without an image.
[[nodiscard]] KESTEDIT_EXPORT std::string imageMeaning(const FormModel& form, const modIniHandler& texts,
                                                       std::string_view image);

}  // namespace kestedit
