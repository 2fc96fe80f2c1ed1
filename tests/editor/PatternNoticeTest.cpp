// What stands beside a search pattern that is no regular expression.
#include <tuple>

#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

using PatternNotice = test::EditorTest;

TEST_F(PatternNotice, SaysWhatIsMissingAndWhere) {
    const std::tuple<std::string, const char*, const char*> cases[] = {
        {"a.*(b|ä)+", "", ""},
        {"(?z)", "Der reguläre Ausdruck hat einen Fehler an Stelle 3, wo \"(?z\" endet.",
         "The regular expression has a mistake at character 3, where \"(?z\" ends."},
        {"0123456789ÄÖ{2}{3,1}", "Der reguläre Ausdruck hat einen Fehler an Stelle 20, wo \"...89ÄÖ{2}{3,1}\" endet.",
         "The regular expression has a mistake at character 20, where \"...89ÄÖ{2}{3,1}\" ends."},
        {"(ä", "Im regulären Ausdruck fehlt am Ende (Stelle 2) eine Klammer \")\".",
         "The regular expression lacks a \")\" at its end (character 2)."},
        {"ä)", "Im regulären Ausdruck schliesst die Klammer \")\" an Stelle 2 keine andere.",
         "In the regular expression the \")\" at character 2 has no \"(\" before it."},
        {"[a-", "Im regulären Ausdruck fehlt am Ende (Stelle 3) eine Klammer \"]\".",
         "The regular expression lacks a \"]\" at its end (character 3)."},
        {"*.txt", "Im regulären Ausdruck gibt es an Stelle 1, wo \"*\" endet, nichts zu wiederholen.",
         "The regular expression has nothing to repeat at character 1, where \"*\" ends."},
        {"a\\", "Im regulären Ausdruck fehlt das Zeichen hinter dem \"\\\" am Ende (Stelle 2).",
         "The regular expression lacks the character behind the \"\\\" at its end (character 2)."},
        {std::string(100'000, 'a'), "Der reguläre Ausdruck wird an Stelle 10000 zu lang oder wiederholt zu viel.",
         "The regular expression gets too long, or repeats too much, at character 10000."},
        {std::string(5'000, '(') + std::string(5'000, ')'),
         "Der reguläre Ausdruck hat an Stelle 251 zu viele Klammern ineinander.",
         "The regular expression has too many parentheses inside one another at character 251."},
    };
    for (const char* language : {"german", "english"}) {
        values.Language = std::string{KESTEDIT_LANG_DIR} + "/" + language + ".lng";
        create();
        check("chkSubFolder");
        choose("optFileMatch", 1);
        choose("optFolderMatch", 2);
        for (const char* box : {"chkRegExFile", "chkRegExFolder"})
            check(box);
        for (const auto& [pattern, german, english] : cases) {
            const std::string notice = language == std::string{"german"} ? german : english;
            for (const char* field : {"dxFileName", "dxFolderMatch"}) {
                type(field, pattern);
                EXPECT_EQ(at(field).Notice, notice) << field << " " << pattern;
            }
        }
        check("chkRegExFile", 0);
        EXPECT_EQ(at("dxFileName").Notice, "") << "wildcards make no mistake";
    }
}

TEST_F(PatternNotice, ALoadedPatternMayBeOfAnyLength) {
    for (const std::string& pattern : {std::string(100'000, 'a'), std::string(16'000, '(')}) {
        putJob("Night", "[Job]\nName=Night\nDoFileMatch=1\nUseFileRegEx=1\nFileName=" + pattern + "\n");
        edit("Night");
        EXPECT_EQ(at("dxFileName").text(), pattern);
        EXPECT_NE(at("dxFileName").Notice, "");
        click("cmdSave");
        EXPECT_NE(jobBytes("Night").find("FileName=" + pattern), std::string::npos);
    }
}

}  // namespace
}  // namespace kestedit
