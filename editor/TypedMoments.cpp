#include "editor/TypedMoments.h"

#include <string_view>

#include "i18n/Texts.h"
#include "platform/Text.h"

namespace kestedit {

namespace {

/// Nothing for a text that is no date and no time; a blank one is an empty field.
std::optional<Value> valueIn(const EditorControl& control, std::string_view text, const Platform& platform,
                             Typing typing) {
    if (trimBlanks(text).empty()) return Value{};
    if (control.Kind == ControlKind::date) {
        const auto date = platform.dates.parseTyped(text, typing);
        return date ? std::optional<Value>{*date} : std::nullopt;
    }
    const auto time = platform.times.parseTyped(text, typing);
    return time ? std::optional<Value>{*time} : std::nullopt;
}

std::string valueText(const EditorControl& control, const Platform& platform) {
    if (const auto date = control.date()) return platform.dates.text(*date);
    if (const auto time = control.time()) return platform.times.text(*time);
    return control.text();
}

std::string sampleOf(const EditorControl& control, const Platform& platform) {
    constexpr Date sampleDate{std::chrono::year{2026}, std::chrono::December, std::chrono::day{31}};
    constexpr TimeOfDay sampleTime = std::chrono::hours{14} + std::chrono::minutes{5};
    return control.Kind == ControlKind::date ? platform.dates.text(sampleDate) : platform.times.text(sampleTime);
}

}  // namespace

bool holdsMoment(const EditorControl& control) {
    return control.Kind == ControlKind::date || control.Kind == ControlKind::time;
}

std::string MomentText(const EditorControl& control, const Platform& platform) {
    return control.Typed ? control.Typed->text : valueText(control, platform);
}

void TypeMoment(EditorControl& control, std::string_view text, const Platform& platform) {
    if (!control.Typed) control.Typed = TypedMoment{{}, control.EditValue};
    control.Typed->text = text;
    control.Typed->heldSave = false;
    control.EditValue = valueIn(control, text, platform, Typing::underWay).value_or(control.Typed->before);
}

void EndTyping(EditorControl& control, const Platform& platform) {
    if (!control.Typed) return;
    control.Typed->left = true;
    control.EditValue = control.Typed->before;
    // What stood there before is the same again, be it a stored text that is no time.
    if (valueText(control, platform) == control.Typed->text) return control.Typed.reset();
    const auto value = valueIn(control, control.Typed->text, platform, Typing::finished);
    if (!value) return;
    control.EditValue = *value;
    control.Typed.reset();
}

bool saysNothing(const EditorControl& control, const Platform& platform) {
    return control.Typed && control.Typed->left && !valueIn(control, control.Typed->text, platform, Typing::finished);
}

std::string MomentNotice(const EditorControl& control, const modIniHandler& texts, const Platform& platform) {
    const bool isDate = control.Kind == ControlKind::date;
    const std::string sample = sampleOf(control, platform);
    if (saysNothing(control, platform)) {
        const std::string typed = quotable(control.Typed->text);
        if (control.isEmpty()) return textOf(texts, isDate ? TextId::noDate : TextId::noTime, {typed, sample});
        return textOf(texts, isDate ? TextId::noDateKept : TextId::noTimeKept,
                      {typed, sample, quotable(valueText(control, platform))});
    }
    if (control.Typed || control.text().empty()) return {};
    return textOf(texts, TextId::storedNoTime, {quotable(control.text()), sample});
}

}  // namespace kestedit
