#include "component/events/IsoTime.h"

#include "platform/DateFormat.h"

namespace kestedit {

namespace {

constexpr std::string_view datePattern = "yyyy-MM-dd";
constexpr std::size_t timeLength = 8;

const DateFormat& isoFormat() {
    static const DateFormat format{std::string(datePattern)};
    return format;
}

}  // namespace

std::string isoText(Date date) {
    return isoFormat().text(date);
}

std::optional<Date> parseIsoDate(std::string_view text) {
    // The format by itself takes "2026-1-5" too; that many characters leave room for the full form only.
    if (text.size() != datePattern.size()) return std::nullopt;
    return isoFormat().parse(text);
}

std::optional<TimeOfDay> parseIsoTime(std::string_view text) {
    if (text.size() != timeLength) return std::nullopt;  // "14:05" is a time elsewhere
    return parseTime(text);
}

std::optional<LocalTime> parseIsoMoment(std::string_view text) {
    const auto separator = text.find('T');
    if (separator == std::string_view::npos) return std::nullopt;
    const auto date = parseIsoDate(text.substr(0, separator));
    const auto time = parseIsoTime(text.substr(separator + 1));
    if (!date || !time) return std::nullopt;
    return LocalTime{*date, *time};
}

}  // namespace kestedit
