#include "platform/DateFormat.h"

#include <array>
#include <cstddef>
#include <cstdio>
#include <langinfo.h>
#include <locale.h>
#include <stdexcept>
#include <utility>

#include "platform/CodePage.h"

namespace kestedit {

namespace {

/// One run of the same field letter, or one literal character.
struct Field {
    char letter;  // 'd', 'M' or 'y'; any other character stands for itself
    std::size_t width;
};

bool isFieldLetter(char letter) {
    return letter == 'd' || letter == 'M' || letter == 'y';
}

Field takeField(std::string_view& pattern) {
    const char letter = pattern.front();
    std::size_t width = 1;
    if (isFieldLetter(letter)) {
        const std::size_t end = pattern.find_first_not_of(letter);
        width = end == std::string_view::npos ? pattern.size() : end;
    }
    pattern.remove_prefix(width);
    return {letter, width};
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// Removes and returns the number at the head of `text`: at least `least`, at most `most` digits.
std::optional<int> takeNumber(std::string_view& text, std::size_t least, std::size_t most) {
    std::size_t length = 0;
    int number = 0;
    while (length < most && length < text.size() && isDigit(text[length])) {
        number = number * 10 + (text[length] - '0');
        ++length;
    }
    if (length < least) return std::nullopt;
    text.remove_prefix(length);
    return number;
}

void appendNumber(std::string& text, int number, std::size_t width) {
    const std::string digits = std::to_string(number);
    if (digits.size() < width) text.append(width - digits.size(), '0');
    text += digits;
}

/// The pattern of a strftime format, or nothing when it holds more than day, month, year and separators.
std::optional<std::string> patternOf(std::string_view format) {
    // The era and alternative-digit forms are written with plain digits here, so their modifiers fall away.
    constexpr std::array<std::pair<char, std::string_view>, 8> conversions{{{'d', "dd"},
                                                                            {'e', "d"},
                                                                            {'m', "MM"},
                                                                            {'y', "yyyy"},
                                                                            {'Y', "yyyy"},
                                                                            {'D', "MM/dd/yyyy"},
                                                                            {'F', "yyyy-MM-dd"},
                                                                            {'%', "%"}}};
    std::string pattern;
    for (std::size_t i = 0; i < format.size(); ++i) {
        if (format[i] != '%') {
            pattern += format[i];
            continue;
        }
        bool unpadded = false;
        for (++i; i < format.size() && std::string_view{"EO-"}.find(format[i]) != std::string_view::npos; ++i) {
            unpadded = unpadded || format[i] == '-';
        }
        bool known = false;
        for (const auto& [letter, text] : conversions) {
            if (i >= format.size() || format[i] != letter) continue;
            pattern += unpadded && text.size() == 2 ? text.substr(1) : text;
            known = true;
        }
        if (!known) return std::nullopt;
    }
    return pattern;
}

}  // namespace

DateFormat::DateFormat(std::string pattern) : pattern_(std::move(pattern)) {
    std::string seen;
    std::size_t widthBefore = 0;  // of the field right before, 0 behind a separator
    for (std::string_view rest = pattern_; !rest.empty();) {
        const auto [letter, width] = takeField(rest);
        const bool isField = isFieldLetter(letter);
        const bool wrongWidth = letter == 'y' ? width != 4 : isField && width > 2;
        const bool twice = isField && seen.find(letter) != std::string::npos;
        // Without a separator only fixed widths can be told apart.
        const bool ambiguous = isField && widthBefore > 0 && (widthBefore == 1 || width == 1);
        if (wrongWidth || twice || ambiguous || isDigit(letter)) {
            throw std::invalid_argument("date format \"" + pattern_ + "\": use d or dd, M or MM, and yyyy, each once");
        }
        if (isField) seen += letter;
        widthBefore = isField ? width : 0;
    }
    if (seen.size() != 3) {
        throw std::invalid_argument("date format \"" + pattern_ + "\": day, month or year is missing");
    }
    order_ = std::move(seen);
}

DateFormat DateFormat::ofUserLocale() {
    const locale_t locale = newlocale(LC_TIME_MASK, "", locale_t{});
    if (locale == locale_t{}) return ofLocaleFormat("%F");
    const std::string format = nl_langinfo_l(D_FMT, locale);
    freelocale(locale);
    return ofLocaleFormat(format);
}

DateFormat DateFormat::ofLocaleFormat(std::string_view format) {
    const std::string isoPattern = "yyyy-MM-dd";
    if (!CodePage(CodePage::western).encode(format)) return DateFormat(isoPattern);
    try {
        return DateFormat(patternOf(format).value_or(isoPattern));
    } catch (const std::invalid_argument&) {
        return DateFormat(isoPattern);  // a locale whose date has no day, month and year in digits
    }
}

std::string DateFormat::textOf(std::string_view pattern, Date date) {
    std::string text;
    for (std::string_view rest = pattern; !rest.empty();) {
        const auto [letter, width] = takeField(rest);
        switch (letter) {
            case 'd':
                appendNumber(text, static_cast<int>(static_cast<unsigned>(date.day())), width);
                break;
            case 'M':
                appendNumber(text, static_cast<int>(static_cast<unsigned>(date.month())), width);
                break;
            case 'y':
                appendNumber(text, static_cast<int>(date.year()), width);
                break;
            default:
                text += letter;
        }
    }
    return text;
}

std::optional<Date> DateFormat::parse(std::string_view text) const {
    int day = 0;
    int month = 0;
    int year = 0;
    bool behindField = false;
    for (std::string_view rest = pattern_; !rest.empty();) {
        const auto [letter, width] = takeField(rest);
        if (!isFieldLetter(letter)) {
            if (text.empty() || text.front() != letter) return std::nullopt;
            text.remove_prefix(1);
            behindField = false;
            continue;
        }
        // "1.3.2026" is the same day as "01.03.2026" to whoever typed it; only fields that touch need every digit.
        const bool touches = behindField || (!rest.empty() && isFieldLetter(rest.front()));
        const std::size_t most = letter == 'y' ? 4 : 2;
        const std::optional<int> number = takeNumber(text, letter == 'y' || touches ? most : 1, most);
        behindField = true;
        if (!number) return std::nullopt;
        (letter == 'd' ? day : letter == 'M' ? month : year) = *number;
    }
    const Date date{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                    std::chrono::day{static_cast<unsigned>(day)}};
    if (!text.empty() || !date.ok()) return std::nullopt;
    return date;
}

std::string timeText(TimeOfDay time) {
    const std::chrono::hh_mm_ss parts{time};
    std::string text;
    appendNumber(text, static_cast<int>(parts.hours().count()), 2);
    text += ':';
    appendNumber(text, static_cast<int>(parts.minutes().count()), 2);
    text += ':';
    appendNumber(text, static_cast<int>(parts.seconds().count()), 2);
    return text;
}

std::optional<TimeOfDay> parseTime(std::string_view text) {
    if (text.size() != 5 && text.size() != 8) return std::nullopt;
    constexpr std::array limits{24, 60, 60};
    std::chrono::seconds time{0};
    const std::size_t count = text.size() == 5 ? 2 : 3;
    for (std::size_t i = 0; i < 3; ++i) {
        time *= 60;
        if (i >= count) continue;
        if (i > 0) {
            if (text.front() != ':') return std::nullopt;
            text.remove_prefix(1);
        }
        const std::optional<int> number = takeNumber(text, 2, 2);
        if (!number || *number >= limits[i]) return std::nullopt;
        time += std::chrono::seconds{*number};
    }
    return time;
}

}  // namespace kestedit
