// The texts of the language file: into captions, tool tips, list entries and the text catalogue.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "form/FormModel.h"
#include "persistence/modIniHandler.h"

namespace kestedit {

/// Where one text of section "frmEdit" goes.
struct TextTarget {
    enum class Kind : std::uint8_t {
        caption,        ///< Caption of a control
        toolTip,        ///< ToolTipText of a control
        item,           ///< entry `index` of a pick list
        catalogue,      ///< TextCatalogue entry `index`
        catalogueBlank  ///< the same, with one blank behind the text
    };
    int key;  ///< 65 stands for "t65"
    Kind kind;
    std::string_view control;  ///< empty for the catalogue
    int index = 0;
};

/// The assignments in key order; where two rows have one target, the later text stands.
[[nodiscard]] std::span<const TextTarget> formTexts();

/// Sets every text of the form from the language file: sections "frmEdit", "All", "dxLocalizer" and "Weekdays". A
/// missing file or key gives an empty text, or the German default of section "All". A selected pick-list entry stays
/// selected when its text changes.
void LoadLanguage(FormModel& form, const modIniHandler& texts);

}  // namespace kestedit
