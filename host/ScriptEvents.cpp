#include "host/ScriptEvents.h"

#include <algorithm>
#include <optional>

#include "host/PropertyPrinter.h"
#include "host/ScriptDriver.h"
#include "host/ScriptText.h"

namespace kestedit {

namespace {

using Role = ScriptEvent::Role;

// The forms of the given arguments; compileScript has seen to it that each stands where its verb wants it.
const std::string& textOf(const Argument& given) {
    return std::get<std::string>(given);
}

int numberOf(const Argument& given) {
    return static_cast<int>(std::get<std::int64_t>(given));
}

void replaceText(ScriptDriver& driver, EditorControl& control, const std::string& typed) {
    if (dlgNewFolder* dialog = driver.dialog()) return dialog->onTextTyped(control, typed);
    driver.form().onTextTyped(control, typed);
    driver.form().onEditingFinished(control);
}

void typeNumber(ScriptDriver& driver, EditorControl& control, std::optional<std::int64_t> number) {
    driver.form().onNumberTyped(control, number);
    driver.form().onEditingFinished(control);
}

void empty(ScriptDriver& driver, EditorControl& control) {
    switch (control.Kind) {
        case ControlKind::date:
            return driver.form().onDateChosen(control, std::nullopt);
        case ControlKind::time:
            return driver.form().onTimeChosen(control, std::nullopt);
        case ControlKind::number:
        case ControlKind::spin:
            return typeNumber(driver, control, std::nullopt);
        case ControlKind::pick:
            return driver.form().onItemPicked(control, "");
        default:
            return replaceText(driver, control, "");
    }
}

void press(ScriptDriver& driver, EditorControl& button) {
    if (dlgNewFolder* dialog = driver.dialog()) return dialog->onCommand(button);
    driver.form().onCommand(button);
}

void closeWindow(ScriptDriver& driver) {
    if (dlgNewFolder* dialog = driver.dialog()) return dialog->onCloseBox();
    driver.form().onCloseBox();
}

// Key codes of the navigation list.
constexpr int upKey = 38;
constexpr int downKey = 40;

using namespace arguments;
using Driver = ScriptDriver;

std::int64_t typedNumber(const Argument& given) {
    return std::get<std::int64_t>(given);
}

// Verb, the words behind it, its role, what happens, and what the help says.
// clang-format off
constexpr auto events = std::to_array<ScriptEvent>({
    {"type",           {&control, &text}, Role::windowEvent,
     [](Driver& d, const Arguments& a) { replaceText(d, d.control(textOf(a[0])), textOf(a[1])); },
     "replaces the field's text"},
    {"check",          {&control, &state}, Role::formEvent,
     [](Driver& d, const Arguments& a) { d.form().onCheckClicked(d.control(textOf(a[0])), numberOf(a[1])); },
     "sets a check box: clear, set, grey"},
    {"choose",         {&group, &member}, Role::formEvent,
     [](Driver& d, const Arguments& a) { d.form().onOptionChosen(d.member(textOf(a[0]), numberOf(a[1]))); },
     "selects a member of an option group"},
    {"pick",           {&control, &text}, Role::formEvent,
     [](Driver& d, const Arguments& a) { d.form().onItemPicked(d.control(textOf(a[0])), textOf(a[1])); },
     "selects an entry of a pick list"},
    {"set-date",       {&control, &date}, Role::formEvent,
     [](Driver& d, const Arguments& a) { d.form().onDateChosen(d.control(textOf(a[0])), std::get<Date>(a[1])); },
     "chooses a date"},
    {"set-time",       {&control, &time}, Role::formEvent,
     [](Driver& d, const Arguments& a) { d.form().onTimeChosen(d.control(textOf(a[0])), std::get<TimeOfDay>(a[1])); },
     "chooses a time of day"},
    {"number",         {&control, &number}, Role::formEvent,
     [](Driver& d, const Arguments& a) { typeNumber(d, d.control(textOf(a[0])), typedNumber(a[1])); },
     "types a number"},
    {"spin",           {&control, &direction}, Role::formEvent,
     [](Driver& d, const Arguments& a) { d.form().onSpin(d.control(textOf(a[0])), std::get<bool>(a[1])); },
     "clicks a spin button once"},
    {"clear",          {&control}, Role::windowEvent,
     [](Driver& d, const Arguments& a) { empty(d, d.control(textOf(a[0]))); },
     "empties an editor"},
    {"button",         {&control, &index}, Role::formEvent,
     [](Driver& d, const Arguments& a) { d.form().onInnerButton(d.control(textOf(a[0])), numberOf(a[1])); },
     "clicks an editor's inner button: 0 browses, 1 creates a folder"},
    {"click",          {&control}, Role::windowEvent,
     [](Driver& d, const Arguments& a) { press(d, d.control(textOf(a[0]))); },
     "clicks a button such as cmdSave"},
    {"node",           {&index}, Role::formEvent,
     [](Driver& d, const Arguments& a) { d.form().onNodeClicked(numberOf(a[0])); },
     "clicks a navigation node"},
    {"key",            {&direction}, Role::formEvent,
     [](Driver& d, const Arguments& a) { d.form().onNodeKey(std::get<bool>(a[0]) ? upKey : downKey); },
     "presses an arrow key in the navigation list"},
    {"timer",          {}, Role::formEvent,
     [](Driver& d, const Arguments&) { d.form().onTimer(); },
     "lets the one-shot timer fire"},
    {"close",          {}, Role::windowEvent,
     [](Driver& d, const Arguments&) { closeWindow(d); },
     "clicks the window's close box"},
    {"answer",         {&answer}, Role::answer,
     [](Driver& d, const Arguments& a) { d.prompts().queueAnswer(std::get<Answer>(a[0])); },
     "answers the next message box: ok yes no cancel retry continue"},
    {"folder",         {&path}, Role::answer,
     [](Driver& d, const Arguments& a) { d.prompts().queueFolder(textOf(a[0])); },
     "answers the next chooser with a folder"},
    {"file",           {&path}, Role::answer,
     [](Driver& d, const Arguments& a) { d.prompts().queueFile(textOf(a[0])); },
     "answers the next chooser with a file"},
    {"cancel-chooser", {}, Role::answer,
     [](Driver& d, const Arguments&) { d.prompts().queueCancel(); },
     "cancels the next chooser"},
    {"print",          {&property}, Role::query,
     [](Driver& d, const Arguments& a) { d.printer().print(textOf(a[0])); },
     "prints one property"},
    {"nodes",          {}, Role::query,
     [](Driver& d, const Arguments&) { d.printer().printNodes(); },
     "prints the navigation list"},
    {"frames",         {}, Role::query,
     [](Driver& d, const Arguments&) { d.printer().printFrames(); },
     "prints the visible page frames"},
    {"tabs",           {}, Role::query,
     [](Driver& d, const Arguments&) { d.printer().printTabs(); },
     "prints the tab sequence"},
    {"dump",           {}, Role::query,
     [](Driver& d, const Arguments&) { d.printer().printAll(); },
     "prints every property of every control"},
});
// clang-format on

const ScriptEvent& eventOf(const std::string& verb) {
    const auto found = std::ranges::find(events, verb, &ScriptEvent::verb);
    if (found == events.end()) throw std::invalid_argument("unknown event " + quotedText(verb));
    return *found;
}

Arguments readArguments(const ScriptEvent& event, std::span<const std::string> words) {
    const auto wanted = static_cast<std::size_t>(std::ranges::count_if(event.takes, [](auto* kind) { return kind; }));
    if (words.size() != wanted) throw std::invalid_argument("write " + usage(event));
    Arguments given;
    for (std::size_t i = 0; i < wanted; ++i) {
        const auto argument = event.takes[i]->read(words[i]);
        if (!argument) {
            throw std::invalid_argument(std::string(event.verb) + ": " + quotedText(words[i]) + " is not " +
                                        std::string(event.takes[i]->wanted));
        }
        given.push_back(*argument);
    }
    return given;
}

ScriptStep compileLine(const ScriptLine& line) {
    if (!line.fault.empty()) return {line.number, nullptr, {}, line.fault};
    try {
        const ScriptEvent& event = eventOf(line.words.front());
        return {line.number, &event, readArguments(event, std::span(line.words).subspan(1)), {}};
    } catch (const std::invalid_argument& fault) {
        return {line.number, nullptr, {}, fault.what()};
    }
}

}  // namespace

std::span<const ScriptEvent> scriptEvents() {
    return events;
}

std::string usage(const ScriptEvent& event) {
    std::string words{event.verb};
    for (const ArgumentKind* kind : event.takes) {
        if (kind) words.append(" ").append(kind->placeholder);
    }
    return words;
}

std::vector<ScriptStep> compileScript(std::span<const ScriptLine> lines) {
    std::vector<ScriptStep> steps;
    for (const ScriptLine& line : lines)
        steps.push_back(compileLine(line));
    return steps;
}

}  // namespace kestedit
