#include <cstdlib>
#include <gtest/gtest.h>
#include <optional>
#include <stdexcept>
#include <string>

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
