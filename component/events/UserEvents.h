// The user's events by their verbs: one table for scripts and for hosts in C.
#pragma once

#include <span>
#include <string_view>

#include "component/events/OpenWindows.h"
#include "component/events/Verb.h"

namespace kestedit {

struct UserEvent {
    enum class Target {
        form,  ///< none of the editor's own dialogs is in front of it
        front  ///< whatever is in front
    };

    Verb verb;
    Target target = Target::form;
    void (*act)(const OpenWindows& windows, const Arguments& given) = nullptr;
};

/// In the order in which help and documents show them.
[[nodiscard]] std::span<const UserEvent> userEvents();

/// Null for a verb that is none of them.
[[nodiscard]] const UserEvent* findUserEvent(std::string_view verb);

/// Hands the event to the handlers of the window that it is for. `given` comes from readArguments. Throws UnknownName
/// for a control that does not exist, WrongWord for a text that its control cannot read, EventRefused for what no user
/// could do, and what the handlers throw.
void perform(const UserEvent& event, const OpenWindows& windows, const Arguments& given);

}  // namespace kestedit
