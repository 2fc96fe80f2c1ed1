// What is wrong with a search pattern, in the user's words.
#pragma once

#include <string>

#include "editor/Notice.h"

namespace kestedit {

/// Says what keeps `pattern` from being a regular expression, and where; nothing when it is one.
[[nodiscard]] Noticed regularExpressionNotice(const std::string& pattern);

}  // namespace kestedit
