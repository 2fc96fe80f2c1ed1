#include "i18n/PickLists.h"

#include <utility>

#include "i18n/Catalogue.h"

namespace kestedit {

void ReplaceItems(EditorControl& list, std::vector<std::string> entries) {
    list.Items = std::move(entries);
    list.pick(list.ItemIndex);
}

void FillPickLists(FormModel& form) {
    const auto& texts = form.TextCatalogue;
    ReplaceItems(form.dxPickRenamer,
                 {texts.at(catalogue::firstRenameScheme), texts.at(catalogue::firstRenameScheme + 1),
                  texts.at(catalogue::firstRenameScheme + 2)});
    ReplaceItems(form.dxPickExistSelecter, {form.ReplaceIfTexts.begin(), form.ReplaceIfTexts.end()});
}

}  // namespace kestedit
