// What a field of one line shows, changed the way a user would change it.
#pragma once

#include <QLineEdit>
#include <QString>

namespace kestedit {

/// Brings `line` to `wanted` after the user's last change was not taken over as it was: that change is taken back and
/// what is kept of it is typed anew, so that undo goes on as in any field and never meets the characters that were
/// dropped. The caret stands behind the kept ones of the characters that it stood behind.
void replaceUserChange(QLineEdit& line, const QString& wanted);

/// Brings `line` to `wanted` by one undoable change; the caret goes to the end.
void replaceText(QLineEdit& line, const QString& wanted);

/// Place of the caret in `kept` when it stood at `caret` in `typed`, from which characters may have been dropped.
[[nodiscard]] int caretAmongKept(const QString& typed, int caret, const QString& kept);

}  // namespace kestedit
