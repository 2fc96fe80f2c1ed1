#include "platform/TimeFormat.h"

#include <algorithm>
#include <array>
#include <langinfo.h>
#include <locale.h>
#include <utility>
#include <vector>

#include "platform/Text.h"
#include "platform/TypedNumbers.h"

namespace kestedit {

namespace {

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

enum class Half { none, morning, afternoon };

std::string twoDigits(std::int64_t number) {
    const std::string digits = std::to_string(number);
    return std::string(digits.size() < 2 ? 1 : 0, '0').append(digits);
}

std::string lowerCaseOf(std::string_view text) {
    std::string lower;
    while (!text.empty())
        appendCharacter(lower, lowerCase(takeCharacter(text).codePoint));
    return lower;
}

/// Takes `word` off either end of `text`.
bool takeWord(std::string_view& text, const std::string& word) {
    if (word.empty()) return false;
    if (text.ends_with(word)) {
        text.remove_suffix(word.size());
        return true;
    }
    if (!text.starts_with(word)) return false;
    text.remove_prefix(word.size());
    return true;
}

/// Hour, minute and second of what was typed, or nothing.
std::optional<std::array<int, 3>> partsOf(const std::vector<TypedNumber>& typed, bool hourMayBeAlone) {
    if (typed.empty()) return std::nullopt;
    const auto [first, digits] = typed.front();
    if (typed.size() > 1) {
        const bool wrongWidth = digits > 2 || std::any_of(typed.begin() + 1, typed.end(),
                                                          [](const TypedNumber& rest) { return rest.digits != 2; });
        if (wrongWidth) return std::nullopt;
        return std::array{first, typed[1].value, typed.size() > 2 ? typed[2].value : 0};
    }
    if (digits <= 2) return hourMayBeAlone ? std::optional{std::array{first, 0, 0}} : std::nullopt;
    if (digits <= 4) return std::array{first / 100, first % 100, 0};
    if (digits <= 6) return std::array{first / 10'000, first / 100 % 100, first % 100};
    return std::nullopt;
}

/// "12 am" is midnight, "12 pm" noon; "14 pm" says it twice, "14 am" and "0 pm" contradict themselves.
std::optional<int> hourOf(int typed, Half half) {
    if (half == Half::none) return typed;
    if (half == Half::morning) return typed == 12 ? 0 : typed < 12 ? std::optional{typed} : std::nullopt;
    if (typed == 0) return std::nullopt;
    return typed < 12 ? typed + 12 : typed;
}

}  // namespace

struct TimeFormat::Part {
    std::string text;
    seconds step;  // 0: the piece is no part of the time
};

TimeFormat TimeFormat::ofUserLocale() {
    const locale_t locale = newlocale(LC_TIME_MASK, "", locale_t{});
    if (locale == locale_t{}) return {};
    std::string format = nl_langinfo_l(T_FMT, locale);
    if (format.find("%r") != std::string::npos) format = nl_langinfo_l(T_FMT_AMPM, locale);
    TimeFormat times = ofLocaleFormat(format, nl_langinfo_l(AM_STR, locale), nl_langinfo_l(PM_STR, locale));
    freelocale(locale);
    return times;
}

TimeFormat TimeFormat::ofLocaleFormat(std::string_view format, std::string_view am, std::string_view pm) {
    constexpr auto none = std::string_view::npos;
    const auto placeOf = [format](std::string_view letters) {
        for (std::size_t at = format.find('%'); at < format.size(); at = format.find('%', at + 2)) {
            const std::size_t letter = format.find_first_not_of("EO-", at + 1);
            if (letter != none && letters.find(format[letter]) != none) return letter;
        }
        return none;
    };
    TimeFormat times;
    const std::size_t half = placeOf("pP");
    const std::size_t hour = placeOf("IlHkTR");
    if (hour != none && hour + 1 < format.size() && format[hour + 1] == '.') times.separator_ = '.';
    times.padsHours_ = hour == none || format[hour] != 'k';
    if (half == none || placeOf("Il") == none || am.empty() || pm.empty() || !isUtf8(am) || !isUtf8(pm)) return times;
    times.am_ = am;
    times.pm_ = pm;
    times.halfFirst_ = half < hour;
    times.padsHours_ = false;
    return times;
}

std::vector<TimeFormat::Part> TimeFormat::partsOf(TimeOfDay time) const {
    const std::chrono::hh_mm_ss clock{time};
    std::int64_t hour = clock.hours().count();
    const std::string& half = hour < 12 ? am_ : pm_;
    if (hasHalves()) hour = hour % 12 == 0 ? 12 : hour % 12;
    std::vector<Part> parts{{padsHours_ ? twoDigits(hour) : std::to_string(hour), hours{1}},
                            {std::string(1, separator_), seconds{0}},
                            {twoDigits(clock.minutes().count()), minutes{1}}};
    if (clock.seconds() != seconds{0}) {
        parts.push_back(parts[1]);
        parts.push_back({twoDigits(clock.seconds().count()), seconds{1}});
    }
    if (!hasHalves()) return parts;
    parts.insert(halfFirst_ ? parts.begin() : parts.end(), 2, Part{half, hours{12}});
    parts[halfFirst_ ? 1 : parts.size() - 2] = {" ", seconds{0}};
    return parts;
}

std::string TimeFormat::text(TimeOfDay time) const {
    std::string text;
    for (const Part& part : partsOf(time))
        text += part.text;
    return text;
}

std::optional<TimeOfDay> TimeFormat::parseTyped(std::string_view text, Typing typing) const {
    const std::string lower = lowerCaseOf(text);
    std::string_view rest = trimBlanks(lower);
    const std::pair<std::string, Half> words[] = {{lowerCaseOf(am_), Half::morning},
                                                  {lowerCaseOf(pm_), Half::afternoon},
                                                  {"a.m.", Half::morning},
                                                  {"p.m.", Half::afternoon},
                                                  {"am", Half::morning},
                                                  {"pm", Half::afternoon},
                                                  {"a", Half::morning},
                                                  {"p", Half::afternoon}};
    Half half = Half::none;
    for (const auto& [word, meaning] : words) {
        if (half == Half::none && takeWord(rest, word)) half = meaning;
    }
    const auto typed = typedNumbers(rest, U":.,h");
    const auto parts = kestedit::partsOf(typed, half != Half::none);
    if (!parts) return std::nullopt;
    const auto [typedHour, minute, second] = *parts;
    const auto hour = hourOf(typedHour, half);
    if (!hour || *hour > 23 || minute > 59 || second > 59) return std::nullopt;
    const bool halfMayFollow = hasHalves() && half == Half::none;
    const bool digitMayFollow = typed.size() == 1 && typed.front().digits % 2 != 0;
    if (typing == Typing::underWay && (halfMayFollow || digitMayFollow)) return std::nullopt;
    return hours{*hour} + minutes{minute} + seconds{second};
}

TimeFormat::Stepped TimeFormat::step(TimeOfDay time, std::size_t caret, int steps) const {
    seconds step{0};
    std::size_t begin = 0;
    for (const Part& part : partsOf(time)) {
        if (part.step != seconds{0} && (begin <= caret || step == seconds{0})) step = part.step;
        begin += part.text.size();
    }
    const TimeOfDay day = std::chrono::days{1};
    const TimeOfDay reached = ((time + step * steps) % day + day) % day;
    begin = 0;
    for (const Part& part : partsOf(reached)) {
        if (part.step == step) return {reached, begin, part.text.size()};
        begin += part.text.size();
    }
    return {reached, begin, 0};  // the seconds are gone
}

}  // namespace kestedit
