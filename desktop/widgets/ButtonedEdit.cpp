#include "desktop/widgets/ButtonedEdit.h"

#include <QEvent>
#include <QHBoxLayout>

#include "desktop/Icons.h"

namespace kestedit {

namespace {

constexpr const char* pictureProperty = "picture";

}  // namespace

ButtonedEdit::ButtonedEdit(QWidget* parent) : QWidget(parent), line_(new QLineEdit(this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(line_, 1);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // Reached through its line: as a stop of its own it would lead back to it.
    setFocusPolicy(Qt::ClickFocus);
    setFocusProxy(line_);
}

QToolButton& ButtonedEdit::addButton(const char* picture) {
    auto* button = new QToolButton(this);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAutoRaise(true);
    // As high as the line, so that line and buttons read as one field.
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    layout()->addWidget(button);
    buttons_.push_back(button);
    setPicture(*button, picture);
    return *button;
}

void ButtonedEdit::setPicture(QToolButton& button, const char* picture) {
    button.setProperty(pictureProperty, QByteArray(picture));
    button.setIcon(icon(picture, palette().color(QPalette::Window)));
}

void ButtonedEdit::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) showPictures();
    QWidget::changeEvent(event);
}

void ButtonedEdit::showPictures() {
    for (QToolButton* button : buttons_)
        setPicture(*button, button->property(pictureProperty).toByteArray().constData());
}

}  // namespace kestedit
