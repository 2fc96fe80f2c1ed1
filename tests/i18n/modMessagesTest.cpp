#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "editor/FormModel.h"
#include "i18n/PickLists.h"
#include "i18n/modMessages.h"

namespace kestedit {
namespace {

TEST(BuiltInTexts, FillThePickListsAndEndBeforeThePathPage) {
    FormModel form;
    form.TextCatalogue[builtInTexts] = "kept";
    FillBuiltInTexts(form.TextCatalogue, form.ReplaceIfTexts);
    FillPickLists(form);
    EXPECT_EQ(form.TextCatalogue[builtInTexts], "kept");
    EXPECT_EQ(form.TextCatalogue[14], "Quelldatei umbenennen ") << "the blank at its end belongs to it";
    EXPECT_EQ(form.dxPickRenamer.Items,
              (std::vector<std::string>{"Aufsteigende Zahl", "Datum und Uhrzeit", "Globale Benutzer ID"}));
    EXPECT_EQ(form.dxPickExistSelecter.Items.size(), replaceIfCount);
    EXPECT_EQ(form.dxPickExistSelecter.text(), "die Quelldatei neuer ist als die existierende Datei");
}

}  // namespace
}  // namespace kestedit
