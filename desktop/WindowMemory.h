// How the user left the window, kept in the user's own settings and never in a job.
#pragma once

#include <QSize>
#include <optional>
#include <string>
#include <string_view>

#include "platform/UserSettings.h"

namespace kestedit {

class WindowMemory {
  public:
    /// `settings` must outlive the memory. The page is remembered by view level, because views number their pages
    /// apart.
    WindowMemory(UserSettings& settings, std::string_view viewLevel);

    [[nodiscard]] std::optional<QSize> size() const;
    [[nodiscard]] std::optional<int> listWidth() const;
    [[nodiscard]] std::optional<int> page() const;

    /// Losing this is no failure that a user needs to hear of.
    void keep(QSize size, int listWidth, int page);

  private:
    [[nodiscard]] std::optional<int> number(std::string_view key) const;

    UserSettings& settings_;
    const std::string pageKey_;
};

}  // namespace kestedit
