#include <array>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

#include "editor/FormModel.h"
#include "i18n/PickLists.h"
#include "i18n/modMessages.h"

namespace kestedit {
namespace {

TEST(BuiltInTexts, AreExactAndEndBeforeThePathPage) {
    FormModel form;
    form.TextCatalogue[63] = form.TextCatalogue[80] = "kept";
    FillBuiltInTexts(form.TextCatalogue, form.ReplaceIfTexts);

    const auto& texts = form.TextCatalogue;
    EXPECT_EQ(texts[0], "Neuer Auftrag");
    EXPECT_EQ(texts[6], texts[13]);
    EXPECT_EQ(texts[14], "Quelldatei umbenennen ") << "the blank at its end belongs to it";
    EXPECT_EQ(texts[44], "Dateigrösse");
    EXPECT_EQ(texts[30], texts[61]);
    EXPECT_EQ(texts[62], "Datum");
    EXPECT_EQ(texts[63], "kept");
    EXPECT_EQ(texts[80], "kept");
    EXPECT_EQ(form.ReplaceIfTexts.front(), "die Quelldatei neuer ist als die existierende Datei");
    EXPECT_EQ(form.ReplaceIfTexts.back(), "die Quelldatei kleiner und älter ist als die existierende Datei");
}

TEST(BuiltInTexts, FillThePickListsToo) {
    FormModel form;
    FillBuiltInTexts(form.TextCatalogue, form.ReplaceIfTexts);
    FillPickLists(form);
    EXPECT_EQ(form.dxPickRenamer.Items,
              (std::vector<std::string>{"Aufsteigende Zahl", "Datum und Uhrzeit", "Globale Benutzer ID"}));
    EXPECT_EQ(form.dxPickExistSelecter.Items.size(), replaceIfCount);
    EXPECT_EQ(form.dxPickExistSelecter.text(), "die Quelldatei neuer ist als die existierende Datei");
}

TEST(BuiltInTexts, NeedRoomForAllOfThemAndElseWriteNothing) {
    std::vector<std::string> catalogue(builtInTexts);
    std::array<std::string, replaceIfCount> replaceIf;
    EXPECT_THROW(FillBuiltInTexts(std::span{catalogue}.first(builtInTexts - 1), replaceIf), std::out_of_range);
    EXPECT_THROW(FillBuiltInTexts(catalogue, std::span{replaceIf}.first(replaceIfCount - 1)), std::out_of_range);
    EXPECT_THROW(FillReplaceIfTexts(std::span{catalogue}.first(59), replaceIf), std::out_of_range);
    EXPECT_EQ(catalogue, std::vector<std::string>(builtInTexts));

    FillBuiltInTexts(catalogue, replaceIf);
    EXPECT_EQ(catalogue.back(), "Datum");
}

TEST(ReplaceItems, LeavesNothingSelectedBehindTheLastEntry) {
    FormModel form;
    EditorControl& list = form.dxMonWatch;
    ReplaceItems(list, {"a", "b", "c"});
    list.EditValue = std::string{"c"};
    ReplaceItems(list, {"x", "y"});
    EXPECT_TRUE(list.isEmpty());
}

}  // namespace
}  // namespace kestedit
