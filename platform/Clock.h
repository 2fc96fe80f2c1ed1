// The user's clock: today's date and the time of day that the editor works with.
#pragma once

#include "platform/DateTime.h"
#include "platform/Export.h"

namespace kestedit {

class KESTEDIT_EXPORT Clock {
  public:
    virtual ~Clock() = default;

    /// The present moment in the user's time zone, in whole seconds.
    [[nodiscard]] virtual LocalTime now() const = 0;
};

/// The machine's clock.
class KESTEDIT_EXPORT SystemClock final : public Clock {
  public:
    [[nodiscard]] LocalTime now() const override;
};

/// A clock that stands still: runs that must print the same every time use it.
class KESTEDIT_EXPORT FixedClock final : public Clock {
  public:
    explicit FixedClock(LocalTime moment) : moment_(moment) {}
    [[nodiscard]] LocalTime now() const override { return moment_; }

  private:
    LocalTime moment_;
};

}  // namespace kestedit
