#include "desktop/widgets/MomentEdit.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStyleOptionSpinBox>

namespace kestedit {

MomentEdit::MomentEdit(QWidget* parent) : QAbstractSpinBox(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::StrongFocus);
    lineEdit()->installEventFilter(this);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
        clickedCaret_ = 0;
        emit typed(text);
    });
}

void MomentEdit::setLongestText(const QString& text) {
    longestText_ = text;
    updateGeometry();
}

int MomentEdit::caret() const {
    if (!lineEdit()->hasSelectedText()) return lineEdit()->cursorPosition();
    const bool all = lineEdit()->selectedText() == lineEdit()->text();
    return all ? clickedCaret_ : lineEdit()->selectionStart();
}

void MomentEdit::select(int begin, int length) {
    lineEdit()->setCursorPosition(begin);
    lineEdit()->setSelection(begin, length);
}

QSize MomentEdit::sizeHint() const {
    ensurePolished();
    const int width = fontMetrics().horizontalAdvance(longestText_ + u'0');
    return sizeAround(QSize(width, lineEdit()->sizeHint().height()));
}

QSize MomentEdit::sizeAround(const QSize& line) const {
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, line, this);
}

void MomentEdit::stepBy(int steps) {
    emit stepped(steps);
}

QValidator::State MomentEdit::validate(QString&, int&) const {
    return QValidator::Acceptable;
}

QAbstractSpinBox::StepEnabled MomentEdit::stepEnabled() const {
    return isReadOnly() ? StepNone : StepUpEnabled | StepDownEnabled;
}

void MomentEdit::keyPressEvent(QKeyEvent* event) {
    const bool confirms = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    QAbstractSpinBox::keyPressEvent(event);
    if (confirms) emit confirmed();
}

void MomentEdit::focusInEvent(QFocusEvent* event) {
    QAbstractSpinBox::focusInEvent(event);
    clickedIn_ = event->reason() == Qt::MouseFocusReason;
    // From a menu, a calendar or another window the focus comes back to where it was.
    const bool back = event->reason() == Qt::PopupFocusReason || event->reason() == Qt::MenuBarFocusReason ||
                      event->reason() == Qt::ActiveWindowFocusReason;
    if (clickedIn_ || back) return;
    clickedCaret_ = 0;
    selectAll();
}

bool MomentEdit::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lineEdit() && event->type() == QEvent::MouseButtonRelease && clickedIn_) {
        clickedIn_ = false;
        if (!lineEdit()->hasSelectedText()) {
            clickedCaret_ = lineEdit()->cursorPosition();
            selectAll();
        }
    }
    return QAbstractSpinBox::eventFilter(watched, event);
}

}  // namespace kestedit
