#include "editor/WindowTexts.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "editor/NodeImages.h"
#include "editor/rules/action.h"

namespace kestedit {

namespace {

constexpr std::string_view windowSection = "Window";

struct Text {
    std::string_view key;
    std::string_view german;
};

// In the order of WindowText.
constexpr std::array windowTexts{
    Text{"t0", "Durchsuchen"},
    Text{"t1", "Neuen Ordner anlegen"},
    Text{"t2", "Passwort zeigen"},
    Text{"t3", "Passwort verbergen"},
    Text{"t4", "Für dieses Programm ist keine Hilfe vorhanden."},
    Text{"t5", "Die Hilfedatei wurde nicht gefunden:"},
};

struct Meaning {
    std::string_view image;
    Text text;
};

constexpr std::array meanings{
    Meaning{image::active, {"t6", "Der Auftrag ist aktiv"}},
    Meaning{image::inactive, {"t7", "Der Auftrag ist inaktiv"}},
    Meaning{image::applies, {"t8", "Diese Seite ändert, was der Auftrag tut"}},
    Meaning{image::doesNotApply, {"t9", "Diese Seite gilt für diesen Modus nicht"}},
};

std::string read(const modIniHandler& texts, const Text& text) {
    return texts.ReadLanguageText(windowSection, text.key, text.german, textSize);
}

}  // namespace

std::string windowText(const modIniHandler& texts, WindowText text) {
    return read(texts, windowTexts.at(static_cast<std::size_t>(text)));
}

std::string imageMeaning(const FormModel& form, const modIniHandler& texts, std::string_view image) {
    if (image.empty()) return {};
    for (const EditorControl& action : form.optAction) {
        if (image == ActionImage(action.Member, false)) return action.Caption;
        if (image == ActionImage(action.Member, true)) return action.Caption + " - " + form.chkPreview.Caption;
    }
    const auto* const found = std::ranges::find(meanings, image, &Meaning::image);
    return found == meanings.end() ? std::string{} : read(texts, found->text);
}

}  // namespace kestedit
