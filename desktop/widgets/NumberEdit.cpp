#include "desktop/widgets/NumberEdit.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyleOptionSpinBox>

namespace kestedit {

NumberEdit::NumberEdit(QWidget* parent) : QAbstractSpinBox(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::StrongFocus);
    connect(lineEdit(), &QLineEdit::textEdited, this, &NumberEdit::textEdited);
}

std::optional<std::int64_t> NumberEdit::number() const {
    bool isNumber = false;
    const qlonglong number = text().toLongLong(&isNumber);
    return isNumber ? std::optional<std::int64_t>{number} : std::nullopt;
}

void NumberEdit::setNumber(std::optional<std::int64_t> number) {
    const QSignalBlocker quiet(lineEdit());
    lineEdit()->setText(number ? QString::number(*number) : QString());
}

void NumberEdit::setDigits(int digits) {
    digits_ = digits;
    updateGeometry();
}

QSize NumberEdit::sizeHint() const {
    ensurePolished();
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const int width = fontMetrics().horizontalAdvance(QString(digits_, u'0')) + 4;
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, QSize(width, lineEdit()->sizeHint().height()), this);
}

void NumberEdit::stepBy(int steps) {
    emit stepped(steps);
}

QValidator::State NumberEdit::validate(QString& text, int&) const {
    // Numbers are often copied with blanks between their groups or around them.
    for (qsizetype i = text.size(); i-- > 0;)
        if (text[i].isSpace()) text.remove(i, 1);
    if (text.isEmpty()) return QValidator::Acceptable;
    if (text == QLatin1String("-")) return QValidator::Intermediate;
    bool isNumber = false;
    (void)text.toLongLong(&isNumber);
    return isNumber && !text.contains(u'+') ? QValidator::Acceptable : QValidator::Invalid;
}

QAbstractSpinBox::StepEnabled NumberEdit::stepEnabled() const {
    return isReadOnly() ? StepNone : StepUpEnabled | StepDownEnabled;
}

void NumberEdit::textEdited(const QString& text) {
    if (text == QLatin1String("-")) return;  // on the way to a number
    emit typed(number());
}

}  // namespace kestedit
