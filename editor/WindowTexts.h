// Texts that a window needs besides those of its controls: buttons inside of fields, signs, the missing help file.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "editor/FormModel.h"
#include "persistence/modIniHandler.h"
#include "platform/Export.h"

namespace kestedit {

enum class WindowText : std::uint8_t { browse, newFolder, showPassword, hidePassword, noHelp, helpMissing };

/// From section "Window" of the language file; German when it is not there.
[[nodiscard]] KESTEDIT_EXPORT std::string windowText(const modIniHandler& texts, WindowText text);

/// What a node's image says in words ("The job is inactive"), for those who do not see it. Empty without an image.
[[nodiscard]] KESTEDIT_EXPORT std::string imageMeaning(const FormModel& form, const modIniHandler& texts,
                                                       std::string_view image);

}  // namespace kestedit
