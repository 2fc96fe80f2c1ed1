#include <map>
#include <string>
#include <vector>

#include "i18n/LoadLanguage.h"
#include "tests/i18n/LanguageFixture.h"

namespace kestedit {
namespace {

using Entries = std::vector<std::string>;

TEST_F(LanguageTest, WithoutAFileOnlyTwoButtonsAndTheUnitsHaveTexts) {
    load(shippedLanguage("german"));
    load("/nowhere/missing.lng");

    for (const EditorControl* control : form.controls()) {
        if (control->Name() == "cmdCancel" || control->Name() == "cmdSave") continue;
        EXPECT_EQ(control->Caption, "") << control->Name();
        EXPECT_EQ(control->ToolTipText, "") << control->Name();
        for (const std::string& entry : control->Items)
            EXPECT_EQ(entry, "") << control->Name();
    }
    EXPECT_EQ(form.cmdCancel.Caption, "&Abbrechen");
    EXPECT_EQ(form.cmdSave.Caption, "&Speichern");

    const std::map<std::size_t, std::string> filled{{4, " "},     {5, " "},    {27, "Minuten"}, {28, "Stunden"},
                                                    {29, "Tage"}, {30, "Tag"}, {31, "Stunde"},  {32, "Minute"}};
    for (std::size_t i = 0; i < catalogueSize; ++i) {
        const auto text = filled.find(i);
        EXPECT_EQ(form.TextCatalogue.at(i), text == filled.end() ? "" : text->second) << "entry " << i;
    }
}

TEST_F(LanguageTest, ACatalogueThatWasReleasedIsFilledAnew) {
    form.TextCatalogue.clear();
    loadLines("[frmEdit]\nt0=Neu\nt192=Programme\n");
    ASSERT_EQ(form.TextCatalogue.size(), catalogueSize);
    EXPECT_EQ(form.TextCatalogue[0], "Neu");
    EXPECT_EQ(form.TextCatalogue[84], "Programme");
}

TEST_F(LanguageTest, OneTextReachesAllItsTargetsAndOnlyTheCatalogueGetsTheBlank) {
    loadLines("[frmEdit]\nt34=Leere Ordner\nt25=Ziel\n");
    EXPECT_EQ(form.TextCatalogue[5], "Leere Ordner ");
    for (const char* name : {"chkDelEFol", "chkDelEFolSource", "chkZipDelCompBinFolder"}) {
        EXPECT_EQ(form.at(name).Caption, "Leere Ordner") << name;
    }
    for (const std::size_t entry : {13U, 48U, 75U})
        EXPECT_EQ(form.TextCatalogue[entry], "Ziel") << entry;
}

TEST_F(LanguageTest, TheLaterOfTwoKeysStandsEvenWhenItIsMissing) {
    loadLines("[frmEdit]\nt154=later\nt142=earlier\nt139=alone\n");
    EXPECT_EQ(form.lblDestZDec.Caption, "later");
    EXPECT_EQ(form.lblDestZExist.Caption, "");
}

TEST_F(LanguageTest, KeysHaveNoLeadingZero) {
    loadLines("[frmEdit]\nt07=wrong\nt7=Move\n");
    EXPECT_EQ(form.optAction[1].Caption, "Move");
}

TEST_F(LanguageTest, DaysThatTheFileLacksAreEmpty) {
    load(shippedLanguage("german"));
    loadLines("[Weekdays]\nt0=Mon\nt1=Tue\n");
    EXPECT_EQ(form.dxIntWeekDay.Items, (Entries{"Mon", "Tue", "", "", "", "", ""}));
}

TEST_F(LanguageTest, ASelectedEntryKeepsItsPositionWhenTheLanguageChanges) {
    load(shippedLanguage("german"));
    EXPECT_EQ(form.dxPickRenamer.text(), form.dxPickRenamer.Items[0]) << "nothing was selected before";
    const std::map<std::string, std::size_t> selected{
        {"dxIntWeekDay", 6}, {"dxMonWatch", 3}, {"dxPickRenamer", 2}, {"dxPickExistSelecter", 5}};
    for (const auto& [list, position] : selected)
        form.at(list).EditValue = form.at(list).Items.at(position);

    load(shippedLanguage("english"));
    for (const auto& [list, position] : selected) {
        EXPECT_EQ(form.at(list).text(), form.at(list).Items.at(position)) << list;
    }
    EXPECT_EQ(form.dxIntWeekDay.text(), "Sunday");
    EXPECT_EQ(form.dxPickExistSelecter.text(), "the source file is smaller than the existing file");
}

TEST_F(LanguageTest, ANewTextEqualToTheSelectedOldOneDoesNotMoveTheSelection) {
    loadLines("[frmEdit]\nt129=A\nt130=B\nt131=C\nt132=D\nt133=E\n");
    form.dxMonWatch.EditValue = std::string{"C"};
    loadLines("[frmEdit]\nt129=C\nt130=D\nt131=X\nt132=Y\nt133=Z\n");
    EXPECT_EQ(form.dxMonWatch.text(), "X");
}

}  // namespace
}  // namespace kestedit
