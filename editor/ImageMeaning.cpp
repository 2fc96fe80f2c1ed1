#include "editor/ImageMeaning.h"

#include <algorithm>
#include <array>

#include "editor/NodeImages.h"
#include "editor/rules/action.h"
#include "i18n/Texts.h"

namespace kestedit {

namespace {

struct Meaning {
    std::string_view image;
    TextId text;
};

constexpr std::array meanings{
    Meaning{image::active, TextId::jobActive},
    Meaning{image::inactive, TextId::jobInactive},
    Meaning{image::applies, TextId::pageApplies},
    Meaning{image::doesNotApply, TextId::pageDoesNotApply},
};

}  // namespace

std::string imageMeaning(const FormModel& form, const modIniHandler& texts, std::string_view image) {
    if (image.empty()) return {};
    for (const EditorControl& action : form.optAction) {
        if (image == ActionImage(action.Member, false)) return action.Caption;
        if (image == ActionImage(action.Member, true)) return action.Caption + " - " + form.chkPreview.Caption;
    }
    const auto* const found = std::ranges::find(meanings, image, &Meaning::image);
    return found == meanings.end() ? std::string{} : textOf(texts, found->text);
}

}  // namespace kestedit
