#include "i18n/PickLists.h"

#include <utility>

namespace kestedit {

void ReplaceItems(EditorControl& list, std::vector<std::string> entries) {
    const auto selected = static_cast<std::size_t>(list.itemIndex().value_or(0));
    list.Items = std::move(entries);
    list.EditValue = selected < list.Items.size() ? list.Items[selected] : std::string{};
}

void FillPickLists(FormModel& form) {
    const auto& texts = form.TextCatalogue;
    ReplaceItems(form.dxPickRenamer, {texts.at(10), texts.at(11), texts.at(12)});
    ReplaceItems(form.dxPickExistSelecter, {form.ReplaceIfTexts.begin(), form.ReplaceIfTexts.end()});
}

}  // namespace kestedit
