#include <map>
#include <string>
#include <vector>

#include "i18n/LoadLanguage.h"
#include "i18n/PickLists.h"
#include "tests/i18n/LanguageFixture.h"

namespace kestedit {
namespace {

using Entries = std::vector<std::string>;

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
        filled += text + ',';
    EXPECT_EQ(filled, "&Abbrechen&Speichern,,,, , ," + std::string(21, ',') +
                          "Minuten,Stunden,Tage,Tag,Stunde,Minute," + std::string(catalogueSize - 33, ','));
}

TEST_F(LanguageTest, ACatalogueThatWasReleasedIsFilledAnew) {
    form.TextCatalogue.clear();
    loadLines("[frmEdit]\nt0=Neu\nt192=Programme\n");
    ASSERT_EQ(form.TextCatalogue.size(), catalogueSize);
    EXPECT_EQ(form.TextCatalogue[0], "Neu");
    EXPECT_EQ(form.TextCatalogue[84], "Programme");
}

TEST_F(LanguageTest, OneTextReachesAllItsTargetsAndOnlyTheCatalogueGetsTheBlank) {
    loadLines("[frmEdit]\nt34=Leere Ordner\nt25=Ziel\nt07=wrong\nt7=Move\n[Weekdays]\nt0=Mon\nt1=Tue\n");
    EXPECT_EQ(form.TextCatalogue[5], "Leere Ordner ");
    for (const char* name : {"chkDelEFol", "chkDelEFolSource", "chkZipDelCompBinFolder"})
        EXPECT_EQ(form.at(name).Caption, "Leere Ordner") << name;
    for (const std::size_t entry : {13U, 48U, 75U})
        EXPECT_EQ(form.TextCatalogue[entry], "Ziel") << entry;
    EXPECT_EQ(form.optAction[1].Caption, "Move") << "keys have no leading zero";
    EXPECT_EQ(form.dxIntWeekDay.Items, (Entries{"Mon", "Tue", "", "", "", "", ""}));
}

TEST_F(LanguageTest, TheLaterOfTwoKeysStandsEvenWhenItIsMissing) {
    loadLines("[frmEdit]\nt154=later\nt142=earlier\nt139=alone\n");
    EXPECT_EQ(form.lblDestZDec.Caption, "later");
    EXPECT_EQ(form.lblDestZExist.Caption, "");
}

TEST_F(LanguageTest, ASelectedEntryKeepsItsPositionWhenTheLanguageChanges) {
    load(shippedLanguage("german"));
    EXPECT_EQ(form.dxPickRenamer.text(), form.dxPickRenamer.Items[0]) << "nothing was selected before";
    const std::map<std::string, std::size_t> selected{
        {"dxIntWeekDay", 6}, {"dxMonWatch", 3}, {"dxPickRenamer", 2}, {"dxPickExistSelecter", 5}};
    for (const auto& [list, position] : selected)
        form.at(list).EditValue = form.at(list).Items.at(position);
    load(shippedLanguage("english"));
    for (const auto& [list, position] : selected)
        EXPECT_EQ(form.at(list).text(), form.at(list).Items.at(position)) << list;
    EXPECT_EQ(form.dxIntWeekDay.text(), "Sunday");
}

TEST_F(LanguageTest, ANewTextEqualToTheSelectedOldOneDoesNotMoveTheSelection) {
    EditorControl& list = form.dxMonWatch;
    ReplaceItems(list, {"A", "B", "C"});
    list.EditValue = std::string{"C"};
    ReplaceItems(list, {"C", "D", "X"});
    EXPECT_EQ(list.text(), "X");
    ReplaceItems(list, {"x", "y"});
    EXPECT_TRUE(list.isEmpty()) << "nothing stands at the position";
}

}  // namespace
}  // namespace kestedit
