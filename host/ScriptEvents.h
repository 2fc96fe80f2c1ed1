// The verbs of the script language, and the steps of one script.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "component/events/UserEvents.h"
#include "host/ScriptParser.h"

namespace kestedit {

class ScriptDriver;

/// What a script can do besides handing over the user's events.
struct ScriptVerb {
    Verb verb;
    bool answers = false;  ///< queues the answer to a question that a later event raises
    void (*run)(ScriptDriver& driver, const Arguments& given) = nullptr;
};

/// All verbs of the language, in the order in which the help shows them.
[[nodiscard]] std::vector<Verb> scriptVerbs();

/// One line, ready to run: an event of the user, a verb of the script's own, or a fault.
struct ScriptStep {
    int line = 0;
    const UserEvent* event = nullptr;
    const ScriptVerb* own = nullptr;
    Arguments arguments = {};
    std::string fault = {};  ///< why it fails when its turn comes, with neither event nor verb; empty otherwise
};

/// A line with an unknown verb, or with arguments that its verb does not take, becomes a step that fails.
[[nodiscard]] std::vector<ScriptStep> compileScript(std::span<const ScriptLine> lines);

}  // namespace kestedit
