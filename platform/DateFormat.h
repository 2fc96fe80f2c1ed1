// Dates and times of day as the texts that stand in a job file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/DateTime.h"
#include "platform/Export.h"

namespace kestedit {

/// The short date form of one user: a pattern of `d`, `dd`, `M`, `MM`, `yyyy` and separators, such as "dd.MM.yyyy".
///
/// A job runner reads these texts under the same locale, so the year always has four digits and reading is strict: a
/// text in another order or with an impossible day is no date.
class KESTEDIT_EXPORT DateFormat {
  public:
    /// Throws std::invalid_argument when day, month or year is missing from `pattern` or stands there twice.
    explicit DateFormat(std::string pattern);

    /// The pattern of the user's locale (LC_TIME), its year widened to four digits.
    [[nodiscard]] static DateFormat ofUserLocale();
    /// The same of a strftime format. yyyy-MM-dd when that has more than day, month and year in digits, or a character
    /// outside code page 1252: a job file could not hold it, and no date may depend on the page of its file.
    [[nodiscard]] static DateFormat ofLocaleFormat(std::string_view format);

    [[nodiscard]] const std::string& pattern() const { return pattern_; }
    [[nodiscard]] std::string text(Date date) const;
    [[nodiscard]] std::optional<Date> parse(std::string_view text) const;

  private:
    std::string pattern_;
};

/// "14:05:00".
[[nodiscard]] KESTEDIT_EXPORT std::string timeText(TimeOfDay time);

/// Reads "14:05:00" and "14:05"; anything else is no time.
[[nodiscard]] KESTEDIT_EXPORT std::optional<TimeOfDay> parseTime(std::string_view text);

}  // namespace kestedit
