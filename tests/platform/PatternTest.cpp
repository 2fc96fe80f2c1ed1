// What search patterns find, what is no pattern, and that neither a pattern nor a name goes beyond their limits.
#include <gtest/gtest.h>
#include <string>
#include <tuple>

#include "platform/Pattern.h"

namespace kestedit {

using Match = Pattern::Match;
using Reason = PatternMistake::Reason;

void PrintTo(Match match, std::ostream* out) {
    *out << (match == Match::taken ? "taken" : match == Match::notTaken ? "not taken" : "limit exceeded");
}

namespace {

using namespace std::string_literals;

std::string repeated(std::size_t count, std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < count; ++i)
        result += text;
    return result;
}

TEST(PatternTest, RegularExpressionsAreFoundAnywhereInNamesOfAnyBytes) {
    const std::tuple<std::string, std::string, bool> cases[] = {
        {"b+", "abbc", true},
        {"^b+$", "abbc", false},
        {"", "", true},
        {"^Gr..e$", "Größe", true},
        {R"(^\w+$)", "Größe", true},
        {"größe", "GRÖßE", false},
        {"(?i)größe", "GRÖßE", true},
        {"^a.b$", "a\nb", true},
        {"a$", "a\n", false},
        {R"(^.\.txt$)", "\xE9.txt", true},
        {"^a.c$", "a\0c"s, true},
        {"a\0c"s, "abc", false},
    };
    for (const auto& [pattern, name, found] : cases)
        EXPECT_EQ(Pattern::regularExpression(pattern).matches(name), found ? Match::taken : Match::notTaken)
            << pattern << " in " << name;
    EXPECT_EQ(Pattern::regularExpression("größe", Pattern::Letters::ofAnyCase).matches("x GRÖSSE GRÖßE"), Match::taken);
}

TEST(PatternTest, WildcardsMatchWholeNames) {
    const std::string longName = repeated(50, "abc");
    const std::tuple<std::string, std::string, bool> cases[] = {
        {"*", "", true},
        {"", "", true},
        {"", "a", false},
        {"?", "", false},
        {"?", "ö", true},
        {"??", "\xE9\xE8", true},
        {"*.txt", "a.txt", true},
        {"*.txt", "a.txt2", false},
        {"a*", "ba", false},
        {"a?c*", "abc", true},
        {"**a**", "xax", true},
        {"*a?", "aab", true},
        {"A*", "ab", false},
        {"*\n*", "a\nb", true},
        {"a.c", "abc", false},
        {"[a]*", "a", false},
        {longName, longName, true},
        {longName + "*?", longName, false},
        {repeated(40, "?b*"), repeated(40, "abc"), true},
        {repeated(41, "?b*"), repeated(40, "abc"), false},
    };
    for (const auto& [pattern, name, whole] : cases)
        EXPECT_EQ(Pattern::wildcards(pattern).matches(name), whole ? Match::taken : Match::notTaken)
            << pattern << " and " << name;
    EXPECT_EQ(Pattern::wildcards("*Ä?", Pattern::Letters::ofAnyCase).matches("xäB"), Match::taken);
}

TEST(PatternTest, AMistakeSaysWhatAndWhere) {
    const std::tuple<std::string, Reason, std::size_t> cases[] = {
        {"ä(b", Reason::parenthesisMissing, 3},
        {"ä(?#b", Reason::parenthesisMissing, 5},
        {"ä)b", Reason::parenthesisSurplus, 2},
        {"äb[c", Reason::bracketMissing, 4},
        {"*ä", Reason::nothingToRepeat, 1},
        {"äö**", Reason::nothingToRepeat, 4},
        {"ä\\", Reason::endsInBackslash, 2},
        {"ä(?z)", Reason::other, 4},
        {"\\C", Reason::other, 2},
        {std::string(100'000, 'a'), Reason::tooLong, 10'000},
        {std::string(16'000, '('), Reason::tooLong, 10'000},
        {std::string(4'000, '('), Reason::tooDeep, 251},
        {std::string(4'000, '(') + std::string(4'000, ')'), Reason::tooDeep, 251},
    };
    for (const auto& [pattern, reason, position] : cases) {
        try {
            static_cast<void>(Pattern::regularExpression(pattern));
            ADD_FAILURE() << pattern;
        } catch (const PatternMistake& mistake) {
            EXPECT_EQ(mistake.reason(), reason) << mistake.what();
            EXPECT_EQ(mistake.position(), position) << mistake.what();
        }
    }
    EXPECT_STREQ(PatternMistake(Reason::nothingToRepeat, 4).what(), "there is nothing to repeat at character 4");
    EXPECT_THROW(static_cast<void>(Pattern::regularExpression(repeated(200, "(a{1,60}){1,60}"))), PatternMistake);
    EXPECT_THROW(static_cast<void>(Pattern::wildcards(std::string(100'000, '?'))), PatternMistake);
    EXPECT_EQ(Pattern::regularExpression(std::string(10'000, 'a')).matches(std::string(10'000, 'a')), Match::taken);
}

TEST(PatternTest, NoNameTakesLong) {
    const std::string name(5'000, 'a');
    for (const std::string pattern : {"(a+)+$.", "(a|a)*b", "(?R)?a.*.*.*.*b", "^(?:a?)*?(?1)?()$b", "((?:.*)*)*b"})
        EXPECT_NE(Pattern::regularExpression(pattern).matches(name), Match::taken) << pattern;
    EXPECT_EQ(Pattern::regularExpression("(a+)+$.").matches(name), Match::limitExceeded);
    EXPECT_EQ(Pattern::regularExpression("^((a|b)*)*$").matches(name), Match::taken);
    // One try after another would take 2^5000 steps, or two thousand million.
    EXPECT_EQ(Pattern::wildcards(repeated(4'000, "*a") + "b").matches(name), Match::notTaken);
    EXPECT_EQ(Pattern::wildcards("*" + name + "b").matches(std::string(400'000, 'a')), Match::notTaken);
}

}  // namespace

}  // namespace kestedit
