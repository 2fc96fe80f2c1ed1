// What may stand beside a field, before it is put into words.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "i18n/Texts.h"

namespace kestedit {

/// A text and what stands in the places of its "%1", "%2" ...
struct Notice {
    TextId text;
    std::vector<std::string> values = {};
};
using Noticed = std::optional<Notice>;

}  // namespace kestedit
