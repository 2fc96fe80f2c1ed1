#include <cstdlib>
#include <gtest/gtest.h>
#include <optional>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "platform/DateFormat.h"

namespace kestedit::test {
namespace {

using namespace std::chrono;

constexpr Date march{year{2026}, month{3}, day{1}};

TEST(DateFormat, writesAndReadsItsPattern) {
    for (const auto& [pattern, text] : {std::pair{"dd.MM.yyyy", "01.03.2026"},
                                        {"M/d/yyyy", "3/1/2026"},
                                        {"yyyyMMdd", "20260301"},
                                        {"d. M. yyyy", "1. 3. 2026"}}) {
        EXPECT_EQ(DateFormat(pattern).text(march), text);
        EXPECT_EQ(DateFormat(pattern).parse(text), march);
    }
}

TEST(DateFormat, readsStrictly) {
    const DateFormat german("dd.MM.yyyy");
    EXPECT_EQ(german.parse("1.3.2026"), march) << "a leading zero may be missing";
    EXPECT_EQ(german.parse("29.02.2028"), (Date{year{2028}, month{2}, day{29}}));
    for (const char* text : {"", "29.02.2026", "03/01/2026", "2026.03.01", "01.13.2026", "01.03.26", "01.03.2026 ",
                             " 01.03.2026", "01.03.20260", "001.3.2026", "00.03.2026", "-1.03.2026"}) {
        EXPECT_EQ(german.parse(text), std::nullopt) << text;
    }
    EXPECT_EQ(DateFormat("yyyyMMdd").parse("2026031"), std::nullopt);
}

TEST(DateFormat, refusesPatternsThatAreNoDate) {
    for (const char* pattern : {"", "dd.MM", "dd.MM.yy", "dd.MM.yyyy dd", "ddd.MM.yyyy", "dMMyyyy", "dd1MM.yyyy"})
        EXPECT_THROW(DateFormat{pattern}, std::invalid_argument) << pattern;
}

TEST(DateFormat, aLocaleWhoseDateAJobCannotHoldStoresIsoDates) {
    for (const auto& [format, pattern] : {std::pair{"%d.%m.%Y", "dd.MM.yyyy"},
                                          {"%-m/%-d/%y", "M/d/yyyy"},
                                          {"%e.%m.%Y", "d.MM.yyyy"},
                                          {"%d\u00B7%m\u00B7%Y", "dd\u00B7MM\u00B7yyyy"},  // 1252 has this dot
                                          {"%Y年%m月%d日", "yyyy-MM-dd"},
                                          {"%Y년 %m월 %d일", "yyyy-MM-dd"},
                                          {"%Y\xC7\xAF%m\xBF\xF9%d", "yyyy-MM-dd"},  // the same in another encoding
                                          {"པསྱི་ལོ%yཟལ%mཚེས%d", "yyyy-MM-dd"},
                                          {"%a %d %b %Y", "yyyy-MM-dd"}})
        EXPECT_EQ(DateFormat::ofLocaleFormat(format).pattern(), pattern) << format;
}

TEST(DateFormat, readsWhatPeopleType) {
    const Date christmas{year{2026}, month{12}, day{24}};
    const std::tuple<const char*, std::vector<const char*>, Date> rows[] = {
        {"dd.MM.yyyy",
         {"24.12.2026", "24/12/2026", "24-12-26", "24 12 2026", " 24. 12. 2026 ", "24,12,26", "24122026", "241226",
          "2026-12-24", "2026/12/24", "24.12.2026.", "٢٤/١٢/٢٠٢٦"},
         christmas},
        {"MM/dd/yyyy", {"12/24/2026", "12.24.26", "12242026", "122426", "2026-12-24"}, christmas},
        {"yyyy-MM-dd", {"2026-12-24", "26/12/24", "20261224", "261224", "2026年12月24日"}, christmas},
        {"d le M yyyy", {"24 le 12 2026", "24.12.2026"}, christmas},
        {"dd.MM.yyyy", {"1.3.2026", "01.03.26", "1-3-26", "010326", "01032026"}, march},
        {"M/d/yyyy", {"3/1/2026", "03/01/26", "030126"}, march},
        {"dd.MM.yyyy", {"1.1.70"}, Date{year{1970}, month{1}, day{1}}},
        {"dd.MM.yyyy", {"31.12.69"}, Date{year{2069}, month{12}, day{31}}},
    };
    for (const auto& [pattern, texts, date] : rows)
        for (const char* text : texts)
            EXPECT_EQ(DateFormat(pattern).parseTyped(text), date) << text;
}

TEST(DateFormat, makesNoDateOfAnythingElse) {
    const DateFormat german("dd.MM.yyyy");
    for (const char* text : {"",
                             "x",
                             "24",
                             "24.12",
                             "24.12.",
                             "24.12.202",
                             "24.12.20267",
                             "31.2.2026",
                             "12/24/2026",
                             "24.13.26",
                             "0.1.2026",
                             "1.1.0000",
                             "2412202",
                             "24122",
                             "124122026",
                             "24.12.2026 x",
                             "-24.12.2026",
                             "24..12.2026",
                             "24.12.2026.1",
                             "111.1.2026",
                             "99999999999999999999",
                             "24:12:2026"})
        EXPECT_EQ(german.parseTyped(text), std::nullopt) << text;
    EXPECT_EQ(DateFormat("yyyy-MM-dd").parseTyped("24.12.2026"), std::nullopt) << "or is the month the first?";
}

TEST(DateFormat, takesNoHalfTypedTextForADate) {
    for (const auto& [pattern, typed] : {std::pair{"dd.MM.yyyy", "24.12.2026"},
                                         {"dd.MM.yyyy", "1/2/2026"},
                                         {"MM/dd/yyyy", "12242026"},
                                         {"yyyy-MM-dd", "2026-12-24"},
                                         {"dd.MM.yyyy", "2026-12-24"},
                                         {"yyyy/M/d", "20261224"}}) {
        const std::string whole = typed;
        for (std::size_t size = 0; size <= whole.size(); ++size)
            EXPECT_EQ(DateFormat(pattern).parseTyped(whole.substr(0, size), Typing::underWay).has_value(),
                      size == whole.size())
                << whole.substr(0, size);
    }
    EXPECT_EQ(DateFormat("yyyy-MM-dd").parseTyped("2026-1-1", Typing::underWay), std::nullopt);
}

TEST(DateFormat, stepsThePartWhereTheCaretStands) {
    const Date leap{year{2028}, month{2}, day{29}};
    const std::tuple<const char*, std::size_t, int, const char*, std::size_t, std::size_t> rows[] = {
        {"dd.MM.yyyy", 0, 1, "01.03.2028", 0, 2}, {"dd.MM.yyyy", 2, -29, "31.01.2028", 0, 2},
        {"dd.MM.yyyy", 3, 1, "29.03.2028", 3, 2}, {"dd.MM.yyyy", 5, 14, "29.04.2029", 3, 2},
        {"dd.MM.yyyy", 9, 1, "28.02.2029", 6, 4}, {"M/d/yyyy", 1, 8, "10/29/2028", 0, 2},
        {"M/d/yyyy", 2, 1, "3/1/2028", 2, 1},     {"yyyy-MM-dd", 0, 9999, "2028-02-29", 0, 4},
    };
    for (const auto& [pattern, caret, steps, text, begin, length] : rows) {
        const auto stepped = DateFormat(pattern).step(leap, caret, steps);
        EXPECT_EQ(DateFormat(pattern).text(stepped.date), text);
        EXPECT_EQ(stepped.begin, begin) << text;
        EXPECT_EQ(stepped.length, length) << text;
    }
}

TEST(DateFormat, theUsersLocaleGivesAPatternWithFourDigitsOfTheYear) {
    setenv("LC_ALL", "C", 1);
    EXPECT_EQ(DateFormat::ofUserLocale().pattern(), "MM/dd/yyyy");
    setenv("LC_ALL", "xx_none", 1);
    EXPECT_EQ(DateFormat::ofUserLocale().pattern(), "yyyy-MM-dd");
}

TEST(Time, readsTimesOfDayStrictly) {
    EXPECT_EQ(parseTime("14:05:09"), hours{14} + minutes{5} + seconds{9});
    EXPECT_EQ(parseTime("23:59"), hours{23} + minutes{59});
    for (const char* text : {"", "24:00", "12:60", "12:00:60", "1:05", "14:5", "14-05", "14:05:", "14:05:0x", " 4:05"})
        EXPECT_EQ(parseTime(text), std::nullopt) << text;
}

}  // namespace
}  // namespace kestedit::test
