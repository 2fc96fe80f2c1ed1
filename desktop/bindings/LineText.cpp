#include "desktop/bindings/LineText.h"

#include <QSignalBlocker>
#include <algorithm>

namespace kestedit {

namespace {

/// Replaces what differs between the line's text and `wanted`, through the line's own editing.
void editInto(QLineEdit& line, const QString& wanted) {
    const QString present = line.text();
    if (present == wanted) return;
    const auto shorter = std::min(present.size(), wanted.size());
    qsizetype head = 0;
    while (head < shorter && present[head] == wanted[head])
        ++head;
    qsizetype tail = 0;
    while (tail < shorter - head && present[present.size() - 1 - tail] == wanted[wanted.size() - 1 - tail])
        ++tail;
    line.setSelection(static_cast<int>(head), static_cast<int>(present.size() - head - tail));
    line.insert(wanted.mid(head, wanted.size() - head - tail));
}

}  // namespace

int caretAmongKept(const QString& typed, int caret, const QString& kept) {
    // Whether a character is kept depends on the character alone, so matching greedily from the left finds the kept
    // ones.
    qsizetype place = 0;
    for (qsizetype i = 0; i < caret && place < kept.size(); ++i) {
        if (typed[i] == kept[place]) ++place;
    }
    return static_cast<int>(place);
}

void replaceUserChange(QLineEdit& line, const QString& wanted) {
    const QSignalBlocker quiet(line);
    const int caret = caretAmongKept(line.text(), line.cursorPosition(), wanted);
    line.undo();
    if (line.text() == wanted) return;  // taken back whole, with the selection that it replaced
    editInto(line, wanted);
    line.setCursorPosition(caret);
}

void replaceText(QLineEdit& line, const QString& wanted) {
    const QSignalBlocker quiet(line);
    editInto(line, wanted);
    line.end(false);
}

}  // namespace kestedit
