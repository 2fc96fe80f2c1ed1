// DateFormat's reading of what a person types, and its steps.
#include <algorithm>
#include <array>

#include "platform/DateFormat.h"
#include "platform/TypedNumbers.h"

namespace kestedit {

namespace {

using Numbers = std::array<TypedNumber, 3>;

constexpr int lastYear = 9999;
constexpr int firstYearOfTwoDigits = 1970;

/// "24122026" or "241226" cut into the fields of `order`.
std::optional<Numbers> split(TypedNumber all, std::string_view order) {
    if (all.digits != 8 && all.digits != 6) return std::nullopt;
    Numbers numbers;
    for (std::size_t i = order.size(); i-- > 0;) {
        const bool longYear = order[i] == 'y' && all.digits == 8;
        numbers[i].digits = longYear ? 4 : 2;
        const int size = longYear ? 10'000 : 100;
        numbers[i].value = all.value % size;
        all.value /= size;
    }
    return numbers;
}

std::optional<int> yearOf(TypedNumber typed) {
    if (typed.digits == 4) return typed.value;
    if (typed.digits != 2) return std::nullopt;
    constexpr int century = 100;
    const int year = firstYearOfTwoDigits / century * century + typed.value;
    return year < firstYearOfTwoDigits ? year + century : year;
}

std::optional<Date> dateOf(const Numbers& numbers, std::string_view order) {
    // Every order has all three letters; the compiler cannot see it.
    const auto at = [&](char letter) { return numbers[std::min(order.find(letter), numbers.size() - 1)]; };
    const TypedNumber day = at('d');
    const TypedNumber month = at('M');
    const auto year = yearOf(at('y'));
    if (!year || *year < 1 || day.digits > 2 || month.digits > 2) return std::nullopt;
    const Date date{std::chrono::year{*year}, std::chrono::month{static_cast<unsigned>(month.value)},
                    std::chrono::day{static_cast<unsigned>(day.value)}};
    return date.ok() ? std::optional{date} : std::nullopt;
}

/// Whether one more key would be one too many.
bool isWhole(const Numbers& numbers, std::string_view order) {
    return numbers[order.find('y')].digits == 4 && numbers.back().digits >= 2;
}

Date moved(Date date, char part, int steps) {
    if (part == 'd') return addDays(date, steps);
    if (part == 'M') {
        date += std::chrono::months{steps};
    } else {
        date += std::chrono::years{steps};
    }
    return date.ok() ? date : Date{date.year() / date.month() / std::chrono::last};
}

}  // namespace

std::optional<Date> DateFormat::parseTyped(std::string_view text, Typing typing) const {
    const auto typed = typedNumbers(text, U"./-,年月日년월일");
    std::string_view order = order_;
    std::optional<Numbers> numbers;
    if (typed.size() == 1) {
        numbers = split(typed.front(), order);
    } else if (typed.size() == 3) {
        numbers = Numbers{typed[0], typed[1], typed[2]};
        if (typed.front().digits == 4 && order.front() != 'y') order = "yMd";
    }
    if (!numbers) return typing == Typing::finished ? parse(text) : std::nullopt;  // a pattern with words in it
    if (typing == Typing::underWay && !isWhole(*numbers, order)) return std::nullopt;
    return dateOf(*numbers, order);
}

DateFormat::Stepped DateFormat::step(Date date, std::size_t caret, int steps) const {
    const auto placeOf = [this](Date shown, char letter) {
        // What stands in front of a field is the text of the pattern in front of it.
        const std::string_view pattern = pattern_;
        const std::size_t begin = pattern.find(letter);
        const std::size_t end = pattern.find_last_of(letter) + 1;
        return std::pair{textOf(pattern.substr(0, begin), shown).size(),
                         textOf(pattern.substr(begin, end - begin), shown).size()};
    };
    char part = order_.front();
    for (const char letter : order_) {
        if (placeOf(date, letter).first <= caret) part = letter;
    }
    const Date reached = moved(date, part, steps);
    const int year = static_cast<int>(reached.year());
    if (year >= 1 && year <= lastYear) date = reached;
    const auto [begin, length] = placeOf(date, part);
    return {date, begin, length};
}

}  // namespace kestedit
