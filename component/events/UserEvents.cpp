#include "component/events/UserEvents.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "component/events/EventFaults.h"
#include "component/events/PrintedText.h"
#include "editor/dlgNewFolder.h"
#include "editor/frmEdit.h"

namespace kestedit {

namespace {

using Windows = OpenWindows;

// The forms of the given arguments; readArguments has seen to it that each stands where its verb wants it.
const std::string& textOf(const Argument& given) {
    return std::get<std::string>(given);
}

std::int64_t numberOf(const Argument& given) {
    return std::get<std::int64_t>(given);
}

int positionOf(const Argument& given) {
    return static_cast<int>(numberOf(given));
}

EditorControl& controlOf(const Windows& windows, const Arguments& given) {
    return windows.control(textOf(given[0]));
}

bool takesNumbers(const EditorControl& control) {
    return control.Kind == ControlKind::number || control.Kind == ControlKind::spin;
}

std::int64_t digitsOf(const std::string& typed) {
    const auto number = arguments::readNumber(typed);
    if (!number) throw WrongWord(quotedText(typed) + " is not " + std::string(arguments::number.wanted));
    return numberOf(*number);
}

void typeNumber(const Windows& windows, EditorControl& control, std::optional<std::int64_t> number) {
    windows.form.onNumberTyped(control, number);
    windows.form.onEditingFinished(control);
}

void replaceText(const Windows& windows, EditorControl& control, const std::string& typed) {
    if (windows.dialog) return windows.dialog->onTextTyped(control, typed);
    if (takesNumbers(control))
        return typeNumber(windows, control, typed.empty() ? std::nullopt : std::optional(digitsOf(typed)));
    windows.form.onTextTyped(control, typed);
    windows.form.onEditingFinished(control);
}

void empty(const Windows& windows, EditorControl& control) {
    switch (control.Kind) {
        case ControlKind::date:
            return windows.form.onDateChosen(control, std::nullopt);
        case ControlKind::time:
            return windows.form.onTimeChosen(control, std::nullopt);
        case ControlKind::pick:
            return windows.form.onItemPicked(control, "");
        default:
            return replaceText(windows, control, "");
    }
}

void press(const Windows& windows, EditorControl& button) {
    if (windows.dialog) return windows.dialog->onCommand(button);
    windows.form.onCommand(button);
}

void closeWindow(const Windows& windows) {
    if (windows.dialog) return windows.dialog->onCloseBox();
    windows.form.onCloseBox();
}

// Key codes of the navigation list.
constexpr int upKey = 38;
constexpr int downKey = 40;

using namespace arguments;
using Target = UserEvent::Target;

// Verb, the words behind it, what the help says, the window it is for, and what happens.
// clang-format off
constexpr auto events = std::to_array<UserEvent>({
    {{"type",     {&control, &text},      "replaces the field's text"}, Target::front,
     [](const Windows& w, const Arguments& a) { replaceText(w, controlOf(w, a), textOf(a[1])); }},
    {{"check",    {&control, &state},     "sets a check box: clear, set, grey"}, Target::form,
     [](const Windows& w, const Arguments& a) { w.form.onCheckClicked(controlOf(w, a), positionOf(a[1])); }},
    {{"choose",   {&group, &member},      "selects a member of an option group"}, Target::form,
     [](const Windows& w, const Arguments& a) { w.form.onOptionChosen(w.member(textOf(a[0]), positionOf(a[1]))); }},
    {{"pick",     {&control, &text},      "selects an entry of a pick list"}, Target::form,
     [](const Windows& w, const Arguments& a) { w.form.onItemPicked(controlOf(w, a), textOf(a[1])); }},
    {{"pick-entry", {&control, &index},   "selects an entry of a pick list by its position"}, Target::form,
     [](const Windows& w, const Arguments& a) { w.form.onItemPicked(controlOf(w, a), positionOf(a[1])); }},
    {{"set-date", {&control, &date},      "chooses a date"}, Target::form,
     [](const Windows& w, const Arguments& a) { w.form.onDateChosen(controlOf(w, a), std::get<Date>(a[1])); }},
    {{"set-time", {&control, &time},      "chooses a time of day"}, Target::form,
     [](const Windows& w, const Arguments& a) { w.form.onTimeChosen(controlOf(w, a), std::get<TimeOfDay>(a[1])); }},
    {{"number",   {&control, &number},    "types a number"}, Target::form,
     [](const Windows& w, const Arguments& a) { typeNumber(w, controlOf(w, a), numberOf(a[1])); }},
    {{"spin",     {&control, &direction}, "clicks a spin button once"}, Target::form,
     [](const Windows& w, const Arguments& a) { w.form.onSpin(controlOf(w, a), std::get<bool>(a[1])); }},
    {{"clear",    {&control},             "empties an editor"}, Target::front,
     [](const Windows& w, const Arguments& a) { empty(w, controlOf(w, a)); }},
    {{"button",   {&control, &index},     "clicks an editor's inner button: 0 browses, 1 creates a folder"}, Target::form,
     [](const Windows& w, const Arguments& a) { w.form.onInnerButton(controlOf(w, a), positionOf(a[1])); }},
    {{"click",    {&control},             "clicks a button such as cmdSave"}, Target::front,
     [](const Windows& w, const Arguments& a) { press(w, controlOf(w, a)); }},
    {{"node",     {&index},               "clicks a navigation node"}, Target::form,
     [](const Windows& w, const Arguments& a) { w.form.onNodeClicked(positionOf(a[0])); }},
    {{"key",      {&direction},           "presses an arrow key in the navigation list"}, Target::form,
     [](const Windows& w, const Arguments& a) { w.form.onNodeKey(std::get<bool>(a[0]) ? upKey : downKey); }},
    {{"timer",    {},                     "lets the one-shot timer fire"}, Target::form,
     [](const Windows& w, const Arguments&) { w.form.onTimer(); }},
    {{"close",    {},                     "clicks the window's close box"}, Target::front,
     [](const Windows& w, const Arguments&) { closeWindow(w); }},
});
// clang-format on

}  // namespace

std::span<const UserEvent> userEvents() {
    return events;
}

const UserEvent* findUserEvent(std::string_view verb) {
    const auto found = std::ranges::find(events, verb, [](const UserEvent& event) { return event.verb.name; });
    return found == events.end() ? nullptr : &*found;
}

void perform(const UserEvent& event, const OpenWindows& windows, const Arguments& given) {
    if (event.target == Target::form && windows.dialog) throw EventRefused("dlgNewFolder is in front of the form");
    event.act(windows, given);
}

}  // namespace kestedit
