#include "desktop/NewFolderWindow.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolTip>
#include <QVBoxLayout>

#include "desktop/Icons.h"
#include "desktop/Text.h"
#include "desktop/bindings/LineText.h"
#include "editor/frmEdit.h"

namespace kestedit {

namespace {

constexpr int roomForName = 36;  // in average characters

}  // namespace

NewFolderWindow::NewFolderWindow(dlgNewFolder& dialog, QWidget* parent)
    : QDialog(parent),
      dialog_(dialog),
      name_(new QLineEdit(this)),
      create_(new QPushButton(this)),
      cancel_(new QPushButton(this)) {
    setWindowTitle(toQt(dialog.Caption));
    name_->setObjectName(QStringLiteral("dxTextEdit1"));
    create_->setObjectName(QStringLiteral("cmdCreate"));
    cancel_->setObjectName(QStringLiteral("cmdCancel"));
    create_->setText(toQt(dialog.cmdCreate.Caption));
    cancel_->setText(toQt(dialog.cmdCancel.Caption));
    create_->setDefault(true);

    auto* caption = new QLabel(toQt(dialog.Caption), this);
    caption->setTextFormat(Qt::PlainText);
    caption->setBuddy(name_);
    name_->setAccessibleName(toQt(dialog.Caption));
    name_->setMinimumWidth(fontMetrics().averageCharWidth() * roomForName);

    auto* folder = new QLabel(toQt(dialog.lblFolder.Caption), this);
    folder->setObjectName(QStringLiteral("lblFolder"));
    folder->setTextFormat(Qt::PlainText);
    folder->setWordWrap(true);
    name_->setAccessibleDescription(folder->text());

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(create_);
    buttons->addWidget(cancel_);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(16, 16, 16, 16);
    whole->addWidget(caption);
    whole->addWidget(name_);
    whole->addWidget(folder);
    whole->addSpacing(8);
    whole->addLayout(buttons);

    connect(name_, &QLineEdit::textEdited, this, [this](const QString& text) {
        hand([&](dlgNewFolder& d) { d.onTextTyped(d.dxTextEdit1, fromQt(text)); });
    });
    connect(create_, &QPushButton::clicked, this, [this] { hand([](dlgNewFolder& d) { d.onCommand(d.cmdCreate); }); });
    connect(cancel_, &QPushButton::clicked, this, [this] { hand([](dlgNewFolder& d) { d.onCommand(d.cmdCancel); }); });
    name_->setFocus();
    showColour();
    refresh();
}

void NewFolderWindow::reject() {
    hand([](dlgNewFolder& dialog) { dialog.onCommand(dialog.cmdCancel); });
}

void NewFolderWindow::closeEvent(QCloseEvent* event) {
    hand([](dlgNewFolder& dialog) { dialog.onCloseBox(); });
    event->setAccepted(!dialog_.isOpen());
}

void NewFolderWindow::hand(const std::function<void(dlgNewFolder&)>& event) {
    if (!dialog_.isOpen()) return;
    try {
        event(dialog_);
    } catch (const EventRefused& refused) {
        QToolTip::showText(name_->mapToGlobal(QPoint(0, name_->height())), toolTipText(refused.what()));
    }
    if (!dialog_.isOpen()) return done(Accepted);
    refresh();
}

void NewFolderWindow::refresh() {
    const QString wanted = toQt(dialog_.dxTextEdit1.text());
    if (name_->text() != wanted) replaceUserChange(*name_, wanted);
    create_->setEnabled(dialog_.cmdCreate.Enabled);
}

// The text takes black or white, whichever stands out from the user's background.
void NewFolderWindow::showColour() {
    if (!dialog_.BackColour) return;
    const auto part = [this](int shift) { return static_cast<int>((*dialog_.BackColour >> shift) & 0xFF); };
    const QColor background(part(0), part(8), part(16));
    QPalette colours = palette();
    colours.setColor(QPalette::Window, background);
    colours.setColor(QPalette::WindowText, isDark(background) ? Qt::white : Qt::black);
    setPalette(colours);
}

}  // namespace kestedit
