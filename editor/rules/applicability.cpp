#include "editor/rules/applicability.h"

#include "i18n/Catalogue.h"

namespace kestedit {

std::string NoOptionText(const FormModel& form) {
    const auto action = form.optAction.selected();
    const std::string caption = action ? form.optAction[static_cast<std::size_t>(*action)].Caption : std::string{};
    return "(" + form.TextCatalogue[catalogue::mode] + " " + caption + " - " +
           form.TextCatalogue[catalogue::noOptions] + ")";
}

}  // namespace kestedit
