// Dates and times as people type them: what a field shows, what its text says, and what is told about one that says
// nothing.
#pragma once

#include <optional>
#include <string>

#include "form/FormModel.h"
#include "persistence/modIniHandler.h"
#include "platform/Platform.h"

namespace kestedit {

/// Whether the control holds a date or a time of day.
[[nodiscard]] bool holdsMoment(const EditorControl& control);

/// What the field shows: the text that is typed into it, or the value in the user's own form.
[[nodiscard]] std::string MomentText(const EditorControl& control, const Platform& platform);

/// The field's text is now `text`. The control gets the value that it says, and keeps the one from before the typing as
/// long as it says none.
void TypeMoment(EditorControl& control, std::string_view text, const Platform& platform);

/// The user has left the field or confirmed it. A text that says nothing stays in it, and the value from before.
void EndTyping(EditorControl& control, const Platform& platform);

/// What is to be told about a text that says none, typed or stored; mostly nothing.
[[nodiscard]] std::string MomentNotice(const EditorControl& control, const modIniHandler& texts,
                                       const Platform& platform);

/// Whether the field was left with a text that says nothing.
[[nodiscard]] bool saysNothing(const EditorControl& control, const Platform& platform);

}  // namespace kestedit
