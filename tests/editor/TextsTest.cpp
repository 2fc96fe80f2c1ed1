// Texts that the editor reads while it runs, in the languages that the product ships.
#include "editor/Findings.h"
#include "editor/NodeImages.h"
#include "editor/PatternHint.h"
#include "editor/WindowTexts.h"
#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

struct RunTimeTexts : test::EditorTest {
    /// All of them, as the file says them; without one, the German texts that are built in.
    std::vector<std::string> textsOf(const std::string& file) {
        values.Language = file;
        create();
        const modIniHandler& texts = form().texts();
        std::vector<std::string> all{UnstorableText(texts, "€")};
        for (int finding = 0; finding <= static_cast<int>(PathFinding::monitoredNoAnswer); ++finding)
            all.push_back(FindingText(texts, static_cast<PathFinding>(finding), form()));
        for (const auto finding : {ScheduleFinding::datePassed, ScheduleFinding::intervalZero})
            all.push_back(FindingText(texts, finding));
        for (int text = 0; text <= static_cast<int>(WindowText::helpMissing); ++text)
            all.push_back(windowText(texts, static_cast<WindowText>(text)));
        for (const std::string_view image : {image::active, image::inactive, image::applies, image::doesNotApply})
            all.push_back(imageMeaning(form(), texts, image));
        choose("optFileMatch", 1);
        check("chkRegExFile");
        type("dxFileName", "(");
        all.push_back(patternProblem(form(), form().dxFileName, texts).value_or(""));
        return all;
    }
};

// A text that a file lacks comes out in German, which no other test of the English file would notice.
TEST_F(RunTimeTexts, StandInEveryShippedFile) {
    const auto builtIn = textsOf("");
    const auto german = textsOf(KESTEDIT_LANG_DIR "/german.lng");
    const auto english = textsOf(KESTEDIT_LANG_DIR "/english.lng");
    EXPECT_EQ(german, builtIn);
    ASSERT_EQ(english.size(), german.size());
    for (std::size_t i = 0; i < german.size(); ++i) {
        EXPECT_NE(english[i], german[i]);
        EXPECT_NE(english[i], "");
    }
}

}  // namespace
}  // namespace kestedit
