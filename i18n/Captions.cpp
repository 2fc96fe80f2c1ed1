#include "i18n/Captions.h"

#include <array>
#include <string_view>

#include "form/ControlNames.h"
#include "i18n/Texts.h"

namespace kestedit {

namespace {

struct CaptionRow {
    std::string_view control;
    std::string_view key;
    std::string_view german;
    std::string_view english;
};

// clang-format off
constexpr auto captions = std::to_array<CaptionRow>({
    {"lblFileAgeType",     "t121", "Welcher Zeitstempel zählt", "Which time stamp counts"},
    {"lblFileDateType",    "t122", "Die Dateien sind",          "The files are"},
    {"lblSyncStartWay(0)", "t123", "(einseitig)",               "(one way)"},
    {"lblSyncStartWay(1)", "t124", "(gegenseitig)",             "(both ways)"},
});
// clang-format on

static_assert(namesControls(captions, &CaptionRow::control), "a caption names no control");
static_assert(namesNoneTwice(captions, &CaptionRow::control), "a control has two captions");

}  // namespace

void LoadCaptions(FormModel& form, const modIniHandler& texts) {
    const bool captioned = !form.lblName.Caption.empty() || !form.optAction[Action::copy].Caption.empty();
    for (const CaptionRow& row : captions) {
        form.at(row.control).Caption =
            captioned ? textOf(texts, {"Window", row.key, row.german, row.english}) : std::string{};
    }
}

}  // namespace kestedit
