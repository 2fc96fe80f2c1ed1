// What a translator can get wrong in a language file, for the files that the product ships.
#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "i18n/modMessages.h"
#include "platform/Text.h"
#include "tests/i18n/LanguageFixture.h"

namespace kestedit {
namespace {

class LanguageFile : public LanguageTest, public testing::WithParamInterface<const char*> {
  protected:
    LanguageFile() { load(shippedLanguage(GetParam())); }
};

INSTANTIATE_TEST_SUITE_P(Shipped, LanguageFile, testing::Values("german", "english"),
                         [](const auto& file) { return std::string{file.param}; });

TEST_P(LanguageFile, LeavesNoCaptionEmptyButThoseOfTheRules) {
    // Unit words, the findings of the path and schedule checks, and the first choice for existing files when
    // synchronising.
    const std::set<std::string> setByRules{"lblDays",       "lblHours",        "lblMinutes",        "lblChkPathMsg",
                                           "lblChkTimeMsg", "lblFileAgeHours", "lblFileAgeMinutes", "optSyncExist(0)"};
    std::set<std::string> empty;
    for (const EditorControl* control : form.controls()) {
        if (hasCaption(*control) && control->Caption.empty()) empty.insert(control->Name());
    }
    EXPECT_EQ(empty, setByRules);
}

TEST_P(LanguageFile, LeavesNoCatalogueOrListEntryEmpty) {
    for (std::size_t i = 0; i < catalogueSize; ++i)
        EXPECT_NE(trimBlanks(form.TextCatalogue[i]), "") << "entry " << i;
    for (const std::string& text : form.ReplaceIfTexts)
        EXPECT_NE(text, "");
    for (const EditorControl* control : form.controls()) {
        for (const std::string& entry : control->Items)
            EXPECT_NE(entry, "") << control->Name();
        const std::set<std::string> entries{control->Items.begin(), control->Items.end()};
        EXPECT_EQ(entries.size(), control->Items.size()) << control->Name() << " has equal entries";
    }
    std::size_t localized = 0;
    for (const std::string& text : form.Localizer)
        localized += text.empty() ? 0 : 1;
    EXPECT_EQ(localized, 9U);
}

/// The letter behind a single "&".
std::optional<char32_t> mnemonic(std::string_view caption) {
    while (!caption.empty()) {
        if (takeCharacter(caption).codePoint != U'&' || caption.empty()) continue;
        const char32_t letter = takeCharacter(caption).codePoint;
        if (letter != U'&') return lowerCase(letter);
    }
    return std::nullopt;
}

/// The page that a control stands on; null for what stands beside every page.
const EditorControl* pageOf(const EditorControl& control) {
    const EditorControl* page = control.Container;
    while (page && page->Container)
        page = page->Container;
    return page;
}

TEST_P(LanguageFile, HasEachMnemonicOnceOnAPage) {
    std::map<const EditorControl*, std::vector<const EditorControl*>> pages;
    for (const EditorControl* control : form.controls()) {
        if (mnemonic(control->Caption)) pages[pageOf(*control)].push_back(control);
    }
    const auto& commands = pages[nullptr];
    ASSERT_EQ(commands.size(), 4U) << "every button beside the pages has one";
    for (auto& [page, controls] : pages) {
        if (page) controls.insert(controls.end(), commands.begin(), commands.end());
        std::map<char32_t, std::string> taken;
        for (const EditorControl* control : controls) {
            const auto [other, isNew] = taken.emplace(*mnemonic(control->Caption), control->Name());
            EXPECT_TRUE(isNew) << control->Name() << " \"" << control->Caption << "\" and " << other->second;
        }
    }
}

TEST_P(LanguageFile, HasNoMnemonicWhereATextGoesIntoALongerOne) {
    for (const std::string& text : form.TextCatalogue)
        EXPECT_FALSE(mnemonic(text)) << text;
    for (const EditorControl& action : form.optAction)
        EXPECT_FALSE(mnemonic(action.Caption)) << action.Caption;
    for (const char* name : {"chkPreview", "lblSource", "lblDest"})
        EXPECT_FALSE(mnemonic(form.at(name).Caption)) << name;
}

struct RawText {
    std::string name;   // "frmEdit/t25"
    std::string value;  // in the file's own bytes
};

std::vector<RawText> rawTexts(const std::filesystem::path& file) {
    std::ifstream in{file, std::ios::binary};
    std::vector<RawText> texts;
    std::string section;
    for (std::string line; std::getline(in, line);) {
        EXPECT_TRUE(line.ends_with('\r')) << line;
        line.pop_back();
        if (line.starts_with('[')) section = line.substr(1, line.find(']') - 1);
        if (line.empty() || line.starts_with('[') || line.starts_with(';')) continue;
        const auto split = line.find('=');
        texts.push_back({section + '/' + line.substr(0, split), line.substr(split + 1)});
    }
    return texts;
}

TEST_P(LanguageFile, HasEveryTextOnceAndWhole) {
    std::set<std::string> names;
    for (const auto& [name, value] : rawTexts(shippedLanguage(GetParam()))) {
        EXPECT_TRUE(names.insert(name).second) << name << " stands twice; the second is never read";
        EXPECT_LT(value.size(), static_cast<std::size_t>(textSize)) << name << " is cut";
    }
    EXPECT_GT(names.size(), 193U);
}

TEST(LanguageFiles, HaveTheSameKeys) {
    const auto names = [](const char* language) {
        std::set<std::string> found;
        for (const RawText& text : rawTexts(shippedLanguage(language)))
            found.insert(text.name);
        return found;
    };
    std::vector<std::string> onlyInOne;
    std::ranges::set_symmetric_difference(names("german"), names("english"), std::back_inserter(onlyInOne));
    EXPECT_EQ(onlyInOne, std::vector<std::string>{});
}

class GermanFile : public LanguageTest {};

TEST_F(GermanFile, SaysWhatTheBuiltInTextsSay) {
    load(shippedLanguage("german"));
    FormModel builtIn;
    FillBuiltInTexts(builtIn.TextCatalogue, builtIn.ReplaceIfTexts);
    // Two entries get a blank from the file's way in; one shares its key with the title of the destination page.
    builtIn.TextCatalogue[4] += ' ';
    builtIn.TextCatalogue[5] += ' ';
    builtIn.TextCatalogue[13] = "Zielverzeichnis";
    for (std::size_t i = 0; i < builtInTexts; ++i)
        EXPECT_EQ(form.TextCatalogue[i], builtIn.TextCatalogue[i]) << i;
    EXPECT_EQ(form.ReplaceIfTexts, builtIn.ReplaceIfTexts);
}

}  // namespace
}  // namespace kestedit
