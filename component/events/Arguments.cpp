#include "component/events/Arguments.h"

#include <limits>

#include "component/events/IsoTime.h"
#include "component/events/WholeNumber.h"

namespace kestedit::arguments {

namespace {

std::optional<Argument> numberBetween(const std::string& word, std::int64_t least, std::int64_t most) {
    if (const auto number = parseWholeNumber(word, least, most)) return *number;
    return std::nullopt;
}

}  // namespace

std::optional<Argument> readText(const std::string& word) {
    return word;
}

std::optional<Argument> readProperty(const std::string& word) {
    const auto dot = word.find('.');
    if (dot == std::string::npos || dot == 0 || dot + 1 == word.size()) return std::nullopt;
    return word;
}

std::optional<Argument> readState(const std::string& word) {
    return numberBetween(word, 0, 2);
}

std::optional<Argument> readIndex(const std::string& word) {
    return numberBetween(word, 0, std::numeric_limits<int>::max());
}

std::optional<Argument> readNumber(const std::string& word) {
    return numberBetween(word, std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max());
}

std::optional<Argument> readDirection(const std::string& word) {
    if (word != "up" && word != "down") return std::nullopt;
    return word == "up";
}

std::optional<Argument> readDate(const std::string& word) {
    if (const auto day = parseIsoDate(word)) return *day;
    return std::nullopt;
}

std::optional<Argument> readTime(const std::string& word) {
    if (const auto moment = parseIsoTime(word)) return *moment;
    return std::nullopt;
}

}  // namespace kestedit::arguments
