// The verbs of the script language, and the steps of one script.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/ScriptArguments.h"
#include "host/ScriptParser.h"

namespace kestedit {

class ScriptDriver;

struct ScriptEvent {
    enum class Role {
        answer,      ///< queues the answer to a question that a later event raises
        query,       ///< prints, and changes nothing
        formEvent,   ///< the user acts on the form; none of the editor's own dialogs is in front of it
        windowEvent  ///< the user acts on whatever is in front
    };

    std::string_view verb;
    std::array<const ArgumentKind*, 2> takes;  ///< null behind the last
    Role role;
    void (*run)(ScriptDriver& driver, const Arguments& given);
    std::string_view meaning;  ///< for the help text
};

/// In the order in which the help shows them.
[[nodiscard]] std::span<const ScriptEvent> scriptEvents();

/// "set-date CONTROL YYYY-MM-DD"
[[nodiscard]] std::string usage(const ScriptEvent& event);

/// One line, ready to run.
struct ScriptStep {
    int line;
    const ScriptEvent* event;  ///< null when the line has a fault
    Arguments arguments;
    std::string fault;  ///< why it fails when its turn comes; empty otherwise
};

/// A line with an unknown verb, or with arguments that its verb does not take, becomes a step that fails.
[[nodiscard]] std::vector<ScriptStep> compileScript(std::span<const ScriptLine> lines);

}  // namespace kestedit
