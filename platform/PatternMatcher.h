// What the two kinds of patterns have in common.
#pragma once

#include <memory>
#include <string_view>

#include "platform/Pattern.h"

namespace kestedit {

class Pattern::Matcher {
  public:
    Matcher() = default;
    virtual ~Matcher() = default;
    Matcher(const Matcher&) = delete;
    Matcher& operator=(const Matcher&) = delete;

    [[nodiscard]] virtual Match matches(std::string_view name) const = 0;
};

/// Throws PatternMistake. Neither is asked for texts beyond Pattern::longest.
[[nodiscard]] std::shared_ptr<const Pattern::Matcher> regularExpression(std::string_view text,
                                                                        Pattern::Letters letters);
[[nodiscard]] std::shared_ptr<const Pattern::Matcher> wildcards(std::string_view text, Pattern::Letters letters);

}  // namespace kestedit
