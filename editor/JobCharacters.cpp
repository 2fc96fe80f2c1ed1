#include "editor/JobCharacters.h"

#include <algorithm>
#include <vector>

#include "editor/CharacterNames.h"
#include "editor/frmEdit.h"
#include "i18n/Texts.h"
#include "platform/Ascii.h"
#include "platform/Text.h"

namespace kestedit {

namespace {

/// A file of such texts is recognised as UTF-8.
bool fitsUtf8(std::string_view text) {
    const std::optional<std::string> bytes = CodePage(CodePage::utf8).encode(text);
    return bytes && isUtf8(*bytes);
}

bool breaksLine(std::string_view text) {
    return text.find_first_of("\r\n") != std::string_view::npos;
}

/// What a save writes of a control's texts. An entry of a list is stored by its position.
std::string storedTexts(const EditorControl& control) {
    return (control.Kind == ControlKind::pick ? "" : control.text()) + control.Unread.value_or("");
}

}  // namespace

JobCharacters::JobCharacters(FormModel& form, Platform& platform, const modIniHandler& texts, JobStore& jobs)
    : form_(form), platform_(platform), texts_(texts), jobs_(jobs) {
    form_.StoredAsUtf8 = page().number() == CodePage::utf8;
}

void JobCharacters::loaded(const JobRecord& job) {
    if (job.isUtf8()) return becomeUtf8();
    unconvertibleLine_ = job.lineOfNoCharacters();
}

bool JobCharacters::holds(std::string_view text) const {
    const bool asTold = !jobs_.writesAsUtf8() || page().number() == CodePage::utf8;
    return asTold ? page().encode(text).has_value() : fitsUtf8(text);
}

void JobCharacters::require(const EditorControl& field, std::string_view text, Entry entry) {
    const auto refuses = [&](std::string_view part) {
        return !holds(part) || (entry != Entry::typed && breaksLine(part));
    };
    if (!refuses(text)) return;
    const std::string reason = field.Kind == ControlKind::password
                                   ? textOf(texts_, TextId::unstorablePassword)
                                   : textOf(texts_, TextId::unstorable, {CharacterNames(text, refuses)});
    const bool utf8Helps = !jobs_.writesAsUtf8() && fitsUtf8(text) && (entry == Entry::typed || !breaksLine(text));
    if (!utf8Helps) throw EventRefused(reason);
    if (declined_ == &field && entry != Entry::chosenPath) {
        throw EventRefused(reason + ' ' + textOf(texts_, TextId::askedWhenLeft));
    }
    if (unconvertibleLine_) throw EventRefused(reason + ' ' + unconvertibleText());
    if (agree(reason)) return;
    if (entry != Entry::chosenPath) declined_ = &field;
    throw EventRefused(reason);
}

bool JobCharacters::agreeToSave() {
    std::string open;  // what may be told
    bool password = false;
    for (const EditorControl* control : form_.controls()) {
        const std::string stored = storedTexts(*control);
        const bool secret = control->Kind == ControlKind::password;
        password = password || (secret && !isAscii(stored));
        if (!secret) open += stored;
    }
    const std::string names = CharacterNames(open, [](std::string_view character) { return !isAscii(character); });
    const bool onlySecret = names.empty() && password;
    const std::string reason = onlySecret ? textOf(texts_, TextId::unstorablePassword)
                                          : textOf(texts_, TextId::readAsOthers, {names.empty() ? "…" : names});
    if (!unconvertibleLine_) return agree(reason);
    (void)platform_.prompts.showMessage({textOf(texts_, TextId::saveTitle), reason + "\r\n\r\n" + unconvertibleText(),
                                         Buttons::ok, MessageIcon::error});
    return false;
}

std::string JobCharacters::unconvertibleText() const {
    return textOf(texts_, TextId::unconvertible, {std::to_string(*unconvertibleLine_)});
}

bool JobCharacters::agree(const std::string& reason) {
    using enum TextId;
    const std::string question =
        reason + "\r\n\r\n" + textOf(texts_, storeAsUtf8) + "\r\n" + textOf(texts_, olderRunners);
    const Answer answer =
        platform_.prompts.showMessage({textOf(texts_, saveTitle), question, Buttons::yesNo, MessageIcon::question});
    if (answer != Answer::yes) return false;
    becomeUtf8();
    return true;
}

void JobCharacters::becomeUtf8() {
    jobs_.writeAsUtf8();
    form_.StoredAsUtf8 = true;
}

}  // namespace kestedit
