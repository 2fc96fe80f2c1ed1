#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "platform/DateFormat.h"
#include "platform/TimeFormat.h"

namespace kestedit::test {
namespace {

using namespace std::chrono_literals;

const TimeFormat german;
const TimeFormat american = TimeFormat::ofLocaleFormat("%I:%M:%S %p", "AM", "PM");

std::string stored(std::optional<TimeOfDay> time) {
    return time ? timeText(*time) : "none";
}

TEST(TimeFormat, takesTheFormOfTheLocaleAndShowsSecondsOnlyWhenThereAreSome) {
    for (const auto& [format, am, afternoon, morning] :
         {std::tuple{"%H:%M:%S", "", "14:05", "08:30:15"},
          {"%T", "AM", "14:05", "08:30:15"},
          {"%k:%M:%S", "", "14:05", "8:30:15"},
          {"%H.%M.%S", "", "14.05", "08.30.15"},
          {"%H\u6642%M\u5206%S\u79D2", "\u5348\u524D", "14:05", "08:30:15"},
          {"%I:%M:%S %p %Z", "am", "2:05 pm", "8:30:15 am"},
          {"%l:%M:%S", "am", "14:05", "08:30:15"},
          {"%p %I:%M:%S", "\u0635", "pm 2:05", "\u0635 8:30:15"},
          {"%I:%M:%S %p", "\xC7", "14:05", "08:30:15"}}) {
        const TimeFormat times = TimeFormat::ofLocaleFormat(format, am, "pm");
        EXPECT_EQ(times.text(14h + 5min), afternoon) << format;
        EXPECT_EQ(times.text(8h + 30min + 15s), morning) << format;
        EXPECT_EQ(times.parseTyped(times.text(14h + 5min)), 14h + 5min) << format;
    }
    EXPECT_EQ(american.text(0h), "12:00 AM");
    EXPECT_EQ(american.text(12h), "12:00 PM");
}

TEST(TimeFormat, readsWhatPeopleType) {
    const std::pair<const char*, std::vector<const char*>> rows[] = {
        {"08:30:00", {"8:30", "08:30", "830", "0830", "8.30", "8 30", "8h30", "083000", "83000", "8:30:00", " 8,30 "}},
        {"23:30:15", {"23:30:15", "233015", "11:30:15 pm", "113015 PM", "23.30.15", "11:30:15p", "11:30:15 P.M."}},
        {"00:00:00", {"0:00", "00:00", "000", "0000", "12 am", "12:00AM"}},
        {"12:00:00", {"12:00", "12 pm", "1200", "12:00 p"}},
        {"14:05:00", {"14:05", "2:05 PM", "PM 2:05", "14:05 pm", "205p", "2:05\u202FPM", "14:05:"}},
        {"none", {"",           "x",
                  "8",          "14",
                  "8:3",        "8:30:5",
                  "24:00",      "12:60",
                  "12:00:60",   "14 am",
                  "0 pm",       "13:00 am",
                  "am",         "8:30 x",
                  "-8:30",      "8::30",
                  "1:2:3",      "8:300",
                  "2460",       "1234567",
                  "8:30:00:00", "99999999999999999999"}},
    };
    for (const auto& [time, texts] : rows) {
        for (const char* text : texts) {
            EXPECT_EQ(stored(german.parseTyped(text)), time) << text;
            EXPECT_EQ(stored(american.parseTyped(text)), time) << text;
        }
    }
    const TimeFormat greek = TimeFormat::ofLocaleFormat("%I:%M:%S %p", "\u03C0\u03BC", "\u03BC\u03BC");
    EXPECT_EQ(stored(greek.parseTyped("2:05 \u039C\u039C")), "14:05:00") << "in either case";
}

TEST(TimeFormat, takesNoHalfTypedTextForATime) {
    const auto readings = [](const TimeFormat& times, const std::string& typed) {
        std::string all;
        for (std::size_t size = 1; size <= typed.size(); ++size) {
            const std::string now = stored(times.parseTyped(typed.substr(0, size), Typing::underWay));
            if (now != "none") all += now + " ";
        }
        return all;
    };
    EXPECT_EQ(readings(german, "8:30"), "08:30:00 ");
    EXPECT_EQ(readings(german, "0830"), "08:30:00 ");
    EXPECT_EQ(readings(german, "11:30:15"), "11:30:00 11:30:00 11:30:15 ");
    EXPECT_EQ(readings(american, "11:30:15 PM"), "23:30:15 23:30:15 ");
}

TEST(TimeFormat, stepsThePartWhereTheCaretStands) {
    const std::tuple<TimeFormat, TimeOfDay, std::size_t, int, const char*, std::size_t, std::size_t> rows[] = {
        {german, 23h + 5min, 0, 1, "00:05", 0, 2},     {german, 0h, 2, -1, "23:00", 0, 2},
        {german, 14h + 59min, 3, 1, "15:00", 3, 2},    {german, 8h + 15s, 8, 10, "08:00:25", 6, 2},
        {german, 8h + 15s, 6, -15, "08:00", 5, 0},     {american, 14h + 5min, 7, 1, "2:05 AM", 5, 2},
        {american, 9h + 5min, 1, 1, "10:05 AM", 0, 2},
    };
    for (const auto& [times, from, caret, steps, text, begin, length] : rows) {
        const auto stepped = times.step(from, caret, steps);
        EXPECT_EQ(times.text(stepped.time), text);
        EXPECT_EQ(stepped.begin, begin) << text;
        EXPECT_EQ(stepped.length, length) << text;
    }
}

}  // namespace
}  // namespace kestedit::test
