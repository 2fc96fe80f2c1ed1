#include "host/ScriptEvents.h"

#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>
#include <utility>

#include "component/events/EventFaults.h"
#include "component/events/PrintedText.h"
#include "host/ScriptDriver.h"

namespace kestedit {

namespace {

constexpr std::array<std::pair<std::string_view, Answer>, 6> answers{{{"ok", Answer::ok},
                                                                      {"yes", Answer::yes},
                                                                      {"no", Answer::no},
                                                                      {"cancel", Answer::cancel},
                                                                      {"retry", Answer::retry},
                                                                      {"continue", Answer::proceed}}};

const auto* answerNamed(std::string_view word) {
    const auto found = std::ranges::find(answers, word, &std::pair<std::string_view, Answer>::first);
    return found == answers.end() ? nullptr : &*found;
}

std::optional<Argument> readAnswer(const std::string& word) {
    return answerNamed(word) ? std::optional<Argument>(word) : std::nullopt;
}

const std::string& textOf(const Argument& given) {
    return std::get<std::string>(given);
}

// clang-format off
constexpr ArgumentKind answerKind {"WORD", "ok, yes, no, cancel, retry or continue", readAnswer};
constexpr ArgumentKind pathKind   {"PATH", "a path",                                 arguments::readText};

using arguments::property;
using Driver = ScriptDriver;

// Verb, the words behind it, what the help says, whether it answers, and what happens.
constexpr auto ownVerbs = std::to_array<ScriptVerb>({
    {{"answer",         {&answerKind}, "answers the next message box: ok yes no cancel retry continue"}, true,
     [](Driver& d, const Arguments& a) { d.prompts().queueAnswer(answerNamed(textOf(a[0]))->second); }},
    {{"folder",         {&pathKind},   "answers the next chooser with a folder"}, true,
     [](Driver& d, const Arguments& a) { d.prompts().queueFolder(textOf(a[0])); }},
    {{"file",           {&pathKind},   "answers the next chooser with a file"}, true,
     [](Driver& d, const Arguments& a) { d.prompts().queueFile(textOf(a[0])); }},
    {{"cancel-chooser", {},            "cancels the next chooser"}, true,
     [](Driver& d, const Arguments&) { d.prompts().queueCancel(); }},
    {{"print",          {&property},   "prints one property"}, false,
     [](Driver& d, const Arguments& a) { d.printer().print(textOf(a[0])); }},
    {{"nodes",          {},            "prints the navigation list"}, false,
     [](Driver& d, const Arguments&) { d.printer().printNodes(); }},
    {{"frames",         {},            "prints the visible page frames"}, false,
     [](Driver& d, const Arguments&) { d.printer().printFrames(); }},
    {{"tabs",           {},            "prints the tab sequence"}, false,
     [](Driver& d, const Arguments&) { d.printer().printTabs(); }},
    {{"dump",           {},            "prints every property of every control"}, false,
     [](Driver& d, const Arguments&) { d.printer().printAll(); }},
});
// clang-format on

ScriptStep compileWords(int line, std::span<const std::string> words) {
    const std::string& verb = words.front();
    const auto rest = words.subspan(1);
    if (const UserEvent* const event = findUserEvent(verb))
        return {.line = line, .event = event, .arguments = readArguments(event->verb, rest)};
    const auto own = std::ranges::find(ownVerbs, verb, [](const ScriptVerb& row) { return row.verb.name; });
    if (own == ownVerbs.end()) throw UnknownName("unknown event " + quotedText(verb));
    return {.line = line, .own = &*own, .arguments = readArguments(own->verb, rest)};
}

ScriptStep compileLine(const ScriptLine& line) {
    if (!line.fault.empty()) return {.line = line.number, .fault = line.fault};
    try {
        return compileWords(line.number, line.words);
    } catch (const std::invalid_argument& fault) {
        return {.line = line.number, .fault = fault.what()};
    }
}

}  // namespace

std::vector<Verb> scriptVerbs() {
    std::vector<Verb> verbs;
    for (const UserEvent& event : userEvents())
        verbs.push_back(event.verb);
    for (const ScriptVerb& own : ownVerbs)
        verbs.push_back(own.verb);
    return verbs;
}

std::vector<ScriptStep> compileScript(std::span<const ScriptLine> lines) {
    std::vector<ScriptStep> steps;
    for (const ScriptLine& line : lines)
        steps.push_back(compileLine(line));
    return steps;
}

}  // namespace kestedit
