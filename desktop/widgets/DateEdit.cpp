#include "desktop/widgets/DateEdit.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStylePainter>

#include "desktop/widgets/CalendarPopup.h"

namespace kestedit {

DateEdit::DateEdit(QWidget* parent) : MomentEdit(parent) {
    setButtonSymbols(NoButtons);
}

void DateEdit::setCalendarTexts(const QString& today, const QString& clear) {
    todayText_ = today;
    clearText_ = clear;
}

CalendarPopup& DateEdit::calendar() {
    if (!calendar_) {
        calendar_ = new CalendarPopup(todayText_, clearText_, this);
        connect(calendar_, &CalendarPopup::chosen, this, &DateEdit::chosen);
        connect(calendar_, &CalendarPopup::todayChosen, this, &DateEdit::todayChosen);
        connect(calendar_, &CalendarPopup::cleared, this, &DateEdit::cleared);
    }
    return *calendar_;
}

void DateEdit::openCalendar() {
    if (isReadOnly()) return;
    setFocus();
    emit confirmed();
    calendar().openAt(*this, date_);
}

// ---- looks: the frame and the button of an editable list

QStyleOptionComboBox DateEdit::frameOption() const {
    QStyleOptionComboBox option;
    option.initFrom(this);
    option.editable = true;
    option.frame = hasFrame();
    option.subControls = QStyle::SC_ComboBoxFrame | QStyle::SC_ComboBoxEditField | QStyle::SC_ComboBoxArrow;
    if (calendar_ && calendar_->isVisible()) option.state |= QStyle::State_On;
    return option;
}

QSize DateEdit::sizeAround(const QSize& line) const {
    const QStyleOptionComboBox option = frameOption();
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, line, this);
}

void DateEdit::placeLine() {
    const QStyleOptionComboBox option = frameOption();
    lineEdit()->setGeometry(style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this));
}

void DateEdit::paintEvent(QPaintEvent*) {
    QStylePainter(this).drawComplexControl(QStyle::CC_ComboBox, frameOption());
}

void DateEdit::resizeEvent(QResizeEvent* event) {
    MomentEdit::resizeEvent(event);
    placeLine();
}

void DateEdit::showEvent(QShowEvent* event) {
    MomentEdit::showEvent(event);
    placeLine();
}

void DateEdit::changeEvent(QEvent* event) {
    MomentEdit::changeEvent(event);
    placeLine();
}

// ---- the calendar's button and keys

void DateEdit::mousePressEvent(QMouseEvent* event) {
    const QStyleOptionComboBox option = frameOption();
    const QRect arrow = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this);
    if (event->button() == Qt::LeftButton && arrow.contains(event->position().toPoint())) return openCalendar();
    MomentEdit::mousePressEvent(event);
}

void DateEdit::keyPressEvent(QKeyEvent* event) {
    const bool altDown = event->key() == Qt::Key_Down && event->modifiers() & Qt::AltModifier;
    if (event->key() == Qt::Key_F4 || altDown) return openCalendar();
    MomentEdit::keyPressEvent(event);
}

}  // namespace kestedit
