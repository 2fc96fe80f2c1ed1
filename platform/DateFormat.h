// Dates and times of day as the texts that stand in a job file, and dates as people type them.
#pragma once

#include <cstddef>
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
    [[nodiscard]] std::string text(Date date) const { return textOf(pattern_, date); }
    [[nodiscard]] std::optional<Date> parse(std::string_view text) const;

    /// Reads what a person types: day, month and year in the order of the pattern, or the year first when it has four
    /// digits. Between them stands a blank or one of . / - , with or without blanks, or nothing when all digits are
    /// there (2, 2 and 4 or 2). Days and months may have one digit, years four or two: 70 to 99 are 1970 to 1999, 00 to
    /// 69 are 2000 to 2069.
    [[nodiscard]] std::optional<Date> parseTyped(std::string_view text, Typing typing = Typing::finished) const;

    /// A date, and where in its text the part stands that was stepped.
    struct Stepped {
        Date date;
        std::size_t begin;
        std::size_t length;
    };
    /// `date` with that part moved by `steps` in whose text the caret stands. Days go on over the ends of months; a day
    /// that the month reached does not have becomes its last. Years end at 1 and 9999.
    [[nodiscard]] Stepped step(Date date, std::size_t caret, int steps) const;

  private:
    [[nodiscard]] static std::string textOf(std::string_view pattern, Date date);

    std::string pattern_;
    std::string order_;  // "dMy"
};

/// "14:05:00".
[[nodiscard]] KESTEDIT_EXPORT std::string timeText(TimeOfDay time);

/// Reads "14:05:00" and "14:05"; anything else is no time.
[[nodiscard]] KESTEDIT_EXPORT std::optional<TimeOfDay> parseTime(std::string_view text);

}  // namespace kestedit
