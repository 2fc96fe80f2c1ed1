// Times of day as one user reads and types them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DateTime.h"
#include "platform/Export.h"

namespace kestedit {

/// The form of one user's times: "14:05", "14.05", "2:05 PM". Job files have a form of their own (timeText).
class KESTEDIT_EXPORT TimeFormat {
  public:
    /// "14:05".
    TimeFormat() = default;

    /// The form of the user's locale (LC_TIME).
    [[nodiscard]] static TimeFormat ofUserLocale();
    /// The same of a strftime format and the locale's words for the halves of the day. What it has beside hours,
    /// minutes, seconds and these words is left out.
    [[nodiscard]] static TimeFormat ofLocaleFormat(std::string_view format, std::string_view am, std::string_view pm);

    /// Seconds are shown only when there are some.
    [[nodiscard]] std::string text(TimeOfDay time) const;

    /// Reads what a person types: hours with one or two digits, minutes and, if any, seconds with two. Between them
    /// stands a blank or one of : . , or h, or nothing. The user's words for the halves of the day, or am and pm, stand
    /// behind or in front; with one of them the hour may stand alone. Without one it is an hour of 24.
    [[nodiscard]] std::optional<TimeOfDay> parseTyped(std::string_view text, Typing typing = Typing::finished) const;

    /// A time, and where in its text the part stands that was stepped.
    struct Stepped {
        TimeOfDay time;
        std::size_t begin;
        std::size_t length;
    };
    /// `time` with that part moved by `steps` in whose text the caret stands. It goes on over midnight.
    [[nodiscard]] Stepped step(TimeOfDay time, std::size_t caret, int steps) const;

  private:
    /// A piece of a time's text: what one step of it is worth, and where it stands.
    struct Part;
    [[nodiscard]] std::vector<Part> partsOf(TimeOfDay time) const;
    [[nodiscard]] bool hasHalves() const { return !am_.empty(); }

    char separator_ = ':';
    bool padsHours_ = true;
    bool halfFirst_ = false;
    std::string am_;  // empty: 24 hours
    std::string pm_;
};

}  // namespace kestedit
