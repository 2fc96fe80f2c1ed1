// What a language file brings into the form, and what a translator can get wrong in those that the product ships.
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "form/OptionNames.h"
#include "i18n/LoadLanguage.h"
#include "i18n/Texts.h"
#include "i18n/modMessages.h"
#include "persistence/JobFormat.h"
#include "persistence/modIniHandler.h"
#include "platform/Text.h"
#include "tests/platform/TemporaryFolder.h"

namespace kestedit {
namespace {

std::filesystem::path shippedLanguage(std::string_view name) {
    return std::filesystem::path{KESTEDIT_LANG_DIR} / (std::string{name} + ".lng");
}

/// Loads language files into the form, one after the other.
struct LanguageTest : testing::Test {
    void load(const std::filesystem::path& file) {
        IniStore ini;
        ComponentValues values;
        values.Language = file.string();
        LoadLanguage(form, modIniHandler{ini, values});
    }
    void loadLines(std::string_view lines) { load(folder.file("texts.lng", lines)); }

    FormModel form;
    test::TemporaryFolder folder;
};

TEST_F(LanguageTest, WithoutAFileOnlyTwoButtonsAndTheUnitsHaveTexts) {
    load(shippedLanguage("german"));
    load("/nowhere/missing.lng");
    std::string filled;
    for (const EditorControl* control : form.controls()) {
        filled += control->Caption + control->ToolTipText;
        for (const std::string& entry : control->Items)
            filled += entry;
    }
    for (const std::string& text : form.TextCatalogue)
        filled += trimBlanks(text);
    EXPECT_EQ(filled, "&Abbrechen&SpeichernMinutenStundenTageTagStundeMinute");
}

TEST_F(LanguageTest, OneTextReachesAllItsTargetsAndOnlyTheCatalogueGetsTheBlank) {
    form.TextCatalogue.clear();  // as it is released with the form's texts
    loadLines(
        "[frmEdit]\nt34=Leere Ordner\nt25=Ziel\nt07=wrong\nt7=Move\nt154=later\nt142=earlier\nt139=alone\n"
        "[Weekdays]\nt0=Mon\nt1=Tue\n");
    EXPECT_EQ(form.TextCatalogue[5], "Leere Ordner ");
    for (const char* name : {"chkDelEFol", "chkDelEFolSource", "chkZipDelCompBinFolder"})
        EXPECT_EQ(form.at(name).Caption, "Leere Ordner") << name;
    for (const std::size_t entry : {13U, 48U, 75U})
        EXPECT_EQ(form.TextCatalogue[entry], "Ziel") << entry;
    EXPECT_EQ(form.optAction[1].Caption, "Move") << "keys have no leading zero";
    EXPECT_EQ(form.lblDestZDec.Caption, "later") << "of two keys for one target";
    EXPECT_EQ(form.lblDestZExist.Caption, "") << "the later key is missing";
    EXPECT_EQ(form.dxIntWeekDay.Items, (std::vector<std::string>{"Mon", "Tue", "", "", "", "", ""}));
}

struct LanguageFile : LanguageTest, testing::WithParamInterface<const char*> {
    LanguageFile() { load(shippedLanguage(GetParam())); }
};

INSTANTIATE_TEST_SUITE_P(Shipped, LanguageFile, testing::Values("german", "english"),
                         [](const auto& file) { return std::string{file.param}; });

TEST_P(LanguageFile, LeavesNoTextEmptyButThoseOfTheRulesAndNoMnemonicInsideOfOne) {
    std::string empty;
    for (const EditorControl* control : form.controls()) {
        using enum ControlKind;
        const auto kind = control->Kind;
        const bool hasCaption = kind == label || kind == check || kind == option || kind == command;
        if (hasCaption && control->Caption.empty()) empty += control->Name() + ' ';
        const std::set<std::string> entries{control->Items.begin(), control->Items.end()};
        EXPECT_FALSE(entries.contains("")) << control->Name();
        EXPECT_EQ(entries.size(), control->Items.size()) << control->Name() << " has equal entries";
    }
    // Unit words, the findings of the path and schedule checks, and the first choice for existing files when
    // synchronising.
    EXPECT_EQ(empty,
              "lblChkPathMsg lblDays lblHours lblMinutes lblChkTimeMsg lblFileAgeHours lblFileAgeMinutes "
              "optSyncExist(0) ");
    // These go into longer texts, where no letter is to be pressed.
    for (const std::string& text : form.TextCatalogue)
        EXPECT_TRUE(trimBlanks(text) != "" && text.find('&') == text.npos)
            << "entry " << &text - form.TextCatalogue.data() << ": " << text;
    for (const char* name : {"optAction(0)", "optAction(1)", "optAction(2)", "optAction(3)", "optAction(4)",
                             "optAction(5)", "chkPreview", "lblSource", "lblDest"})
        EXPECT_EQ(form.at(name).Caption.find('&'), std::string::npos) << name;
    EXPECT_EQ(form.Localizer.size() - static_cast<std::size_t>(std::ranges::count(form.Localizer, "")), 9U);
}

/// The names of a file's texts, each of which stands there once and whole.
std::set<std::string> textsIn(const char* language) {
    std::ifstream in{shippedLanguage(language), std::ios::binary};
    std::set<std::string> names;
    std::string section;
    for (std::string line; std::getline(in, line);) {
        EXPECT_TRUE(line.ends_with('\r')) << line;
        if (line.starts_with('[')) section = line;
        const auto split = line.find('=');
        if (line.starts_with(';') || split == std::string::npos) continue;
        const std::string name = section + line.substr(0, split);
        EXPECT_TRUE(names.insert(name).second) << name << " stands twice; the second is never read";
        EXPECT_LT(line.size() - split - 2, static_cast<std::size_t>(textSize)) << name << " is cut";
    }
    EXPECT_GT(names.size(), 193U);
    return names;
}

TEST_P(LanguageFile, HasTheTextsOfTheGermanOneEachOnceAndWhole) {
    EXPECT_EQ(textsIn(GetParam()), textsIn("german"));
}

TEST_F(LanguageTest, TheGermanFileSaysWhatTheBuiltInTextsSay) {
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

/// The texts that the editor asks for while it runs.
struct RunTimeTexts : LanguageTest {
    std::vector<std::string> textsIn(const std::filesystem::path& file) {
        IniStore ini;
        ComponentValues values;
        values.Language = file.string();
        std::vector<std::string> texts;
        for (int id = 0; id < static_cast<int>(TextId::count); ++id)
            texts.push_back(textOf(modIniHandler{ini, values}, static_cast<TextId>(id)));
        return texts;
    }
};

TEST_F(RunTimeTexts, AFileWithoutThemSpeaksGermanOrElseEnglish) {
    const auto german = textsIn(shippedLanguage("german"));
    const auto english = textsIn(shippedLanguage("english"));
    EXPECT_EQ(textsIn("").size(), german.size());
    const auto none = textsIn("");
    const auto french = textsIn(folder.file("texts.lng", "[Weekdays]\nt0=lundi\n"));
    for (std::size_t i = 0; i < german.size(); ++i) {
        // The file has one wording for each key, the built-in texts have two here.
        const auto id = static_cast<TextId>(i);
        const bool ofTwo = id == TextId::nameMissingEdited || id == TextId::overwriteEdited;
        EXPECT_TRUE(ofTwo || german[i] == none[i]) << german[i] << none[i];
        EXPECT_EQ(french[i], id >= TextId::newFolderIn ? english[i] : none[i]);
        EXPECT_TRUE(id == TextId::dateTitle || english[i] != german[i]) << english[i];
    }
}

TEST_F(RunTimeTexts, AValueIsFilledInOnceWhateverItReads) {
    IniStore ini;
    ComponentValues values;
    EXPECT_EQ(textOf(modIniHandler{ini, values}, TextId::folderSilent, {"/a%1b%2"}),
              "Der Ordner /a%1b%2 antwortet nicht.");
}

TEST_F(LanguageTest, EachOptionOfAJobHasANameThatTellsItFromTheOthers) {
    // These belong together, so that the name of one of them is that of all.
    const std::set<std::string_view> shared{
        "dxFreeSpace",   "dxSize",         "optFileAgeType",   "dxAge",      "optFileDate",         "optRenameSelect",
        "dxPickRenamer", "optAttrSetDest", "optAttrSetSource", "optExecute", "dxPickExistSelecter", "dxFileDate"};
    for (const std::string_view language : {"german", "english"}) {
        load(shippedLanguage(language));
        std::map<std::string, std::string_view> known;
        for (const JobRow& row : jobFormat()) {
            if (row.control.empty() || shared.contains(row.control)) continue;
            const std::string name = nameForUsers(form, row.control);
            EXPECT_FALSE(name.empty()) << language << row.control;
            EXPECT_EQ(name.find('&'), name.npos) << name;
            EXPECT_EQ(known.emplace(name, row.control).first->second, row.control) << name;
        }
        for (const std::string_view control : shared)
            EXPECT_FALSE(nameForUsers(form, control).empty()) << control;
    }
}

}  // namespace
}  // namespace kestedit
