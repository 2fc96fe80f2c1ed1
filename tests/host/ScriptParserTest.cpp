#include <gtest/gtest.h>

#include "host/ScriptEvents.h"
#include "host/ScriptParser.h"
#include "host/ScriptText.h"

namespace kestedit {

namespace {

using namespace std::string_literals;
using Words = std::vector<std::string>;

TEST(ScriptParser, SplitsLinesIntoWords) {
    const auto lines = parseScript(
        "\xEF\xBB\xBF# a byte order mark and a comment\r\n"
        "\ttype  dxName \"a b\" # more\r\n"
        "\n"
        "folder C:\\new#1\t\"\"");
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].words, (Words{"type", "dxName", "a b"}));
    EXPECT_EQ(lines[1].words, (Words{"folder", "C:\\new#1", ""}));
    EXPECT_EQ(lines[1].number, 4);
}

TEST(ScriptParser, ReadsBackWhatIsPrinted) {
    for (const std::string& text : {""s, "a \"b\" \\n"s, "1\r\n2\t3"s, "# Größe 字 \x01"s, "\0nul"s, "\\"s}) {
        const auto lines = parseScript("type dxName " + quotedText(text));
        ASSERT_EQ(lines.size(), 1U);
        EXPECT_EQ(lines[0].words, (Words{"type", "dxName", text})) << quotedText(text);
    }
    EXPECT_EQ(quotedText("caf\xE9"), "\"caf\xEF\xBF\xBD\"");  // what is printed is UTF-8, whatever a path holds
}

TEST(ScriptParser, TellsTheFirstLineThatFailsAndWhy) {
    const auto failureOf = [](const std::string& script) -> std::string {
        for (const ScriptStep& step : compileScript(parseScript(script)))
            if (!step.event) return std::to_string(step.line) + ": " + step.fault;
        return "";
    };
    const std::pair<const char*, const char*> cases[] = {
        {"timer\ntype dxName \"a\n", "2: a closing quote is missing"},
        {"type dxName \"a\\", "1: a closing quote is missing"},
        {"type dxName \"a\\x\"", "1: a backslash in quotes takes \", \\, r, n or t behind it"},
        {"type dxName \"a\"b", "1: a blank is missing behind a closing quote"},
        {"type dxName a\"b", "1: a quote inside a word: put the whole word in quotes and write \\\""},
        {"# \xE4\n", "1: the line is not UTF-8"},
        {"type dxName a b", "1: write type CONTROL TEXT"},
        {"check chkPreview 3", "1: check: \"3\" is not 0, 1 or 2"},
        {"choose optAction -1", "1: choose: \"-1\" is not an index from 0"},
        {"number dxDays 9223372036854775808", "1: number: \"9223372036854775808\" is not a whole number"},
        {"answer maybe", "1: answer: \"maybe\" is not ok, yes, no, cancel, retry or continue"},
        {"print .State", "1: print: \".State\" is not a name, a dot and a property"},
        {"set-date dxDate 2026-2-9", "1: set-date: \"2026-2-9\" is not a date such as 2026-11-21"},
        {"set-time dxDateTime 14:05", "1: set-time: \"14:05\" is not a time of day such as 14:05:00"},
        {"number dxDays -5\nset-date dxDate 2028-02-29\nset-time dxDateTime 23:59:59", ""},
    };
    for (const auto& [script, failure] : cases)
        EXPECT_EQ(failureOf(script), failure);
}

}  // namespace

}  // namespace kestedit
