#include "desktop/DesktopPrompts.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <array>
#include <span>

#include "desktop/NewFolderWindow.h"
#include "desktop/Text.h"

namespace kestedit {

namespace {

struct Choice {
    QMessageBox::StandardButton button;
    Answer answer;
};

// The last of each list is what Escape and a hasty Return stand for, where there is a choice at all: nothing is lost by
// it.
constexpr std::array okChoices{Choice{QMessageBox::Ok, Answer::ok}};
constexpr std::array yesNoChoices{Choice{QMessageBox::Yes, Answer::yes}, Choice{QMessageBox::No, Answer::no}};
constexpr std::array retryChoices{Choice{QMessageBox::Retry, Answer::retry},
                                  Choice{QMessageBox::Ignore, Answer::proceed},
                                  Choice{QMessageBox::Cancel, Answer::cancel}};
constexpr std::array yesNoCancelChoices{Choice{QMessageBox::Yes, Answer::yes}, Choice{QMessageBox::No, Answer::no},
                                        Choice{QMessageBox::Cancel, Answer::cancel}};

std::span<const Choice> choicesOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::ok:
            return okChoices;
        case Buttons::yesNo:
            return yesNoChoices;
        case Buttons::yesNoCancel:
            return yesNoCancelChoices;
        case Buttons::cancelRetryContinue:
            break;
    }
    return retryChoices;
}

QMessageBox::Icon iconOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::information:
            return QMessageBox::Information;
        case MessageIcon::question:
            return QMessageBox::Question;
        case MessageIcon::error:
            return QMessageBox::Critical;
        case MessageIcon::none:
            break;
    }
    return QMessageBox::NoIcon;
}

/// Tells the selected path below the chooser. Only the toolkit's own chooser has a place for it.
void addStatusLine(QFileDialog& chooser, const QString& prefix) {
    auto* const grid = qobject_cast<QGridLayout*>(chooser.layout());
    if (!grid || prefix.isEmpty()) return;
    auto* const status = new QLabel(&chooser);
    status->setObjectName(QStringLiteral("statusLine"));
    status->setTextFormat(Qt::PlainText);
    status->setWordWrap(true);
    grid->addWidget(status, grid->rowCount(), 0, 1, -1);
    const auto tell = [status, prefix](const QString& path) { status->setText(prefix + path); };
    tell(chooser.directory().absolutePath());
    QObject::connect(&chooser, &QFileDialog::currentChanged, status, tell);
    QObject::connect(&chooser, &QFileDialog::directoryEntered, status, tell);
}

bool isBelow(const QString& path, const QString& root) {
    const QString top = QDir(root).canonicalPath();
    const QString inner = QDir(path).canonicalPath();
    return inner == top || inner.startsWith(top.endsWith(u'/') ? top : top + u'/');
}

}  // namespace

QStringList nameFilters(std::string_view filter) {
    const QStringList parts = toQt(filter).split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString description = parts[i].trimmed();
        if (const qsizetype list = description.lastIndexOf(QLatin1String("(*"));
            list > 0 && description.endsWith(u')')) {
            description = description.left(list).trimmed();
        }
        QString patterns = parts[i + 1];
        patterns.replace(u';', u' ');
        filters += QStringLiteral("%1 (%2)").arg(description, patterns);
    }
    return filters;
}

QWidget* DesktopPrompts::windowBehind() const {
    if (host_.refresh) host_.refresh();
    // A question of the new-folder dialog belongs in front of that dialog.
    QWidget* const active = QApplication::activeModalWidget();
    return active ? active : host_.window;
}

Answer DesktopPrompts::showMessage(const MessageBox& box) {
    QMessageBox message(iconOf(box.icon), toQt(box.title), linesToQt(box.text), QMessageBox::NoButton, windowBehind());
    message.setTextFormat(Qt::PlainText);
    const auto choices = choicesOf(box.buttons);
    for (const Choice& choice : choices) {
        QPushButton* const button = message.addButton(choice.button);
        const QString caption = host_.caption ? host_.caption(choice.answer) : QString();
        if (!caption.isEmpty()) button->setText(caption);
        button->setIcon({});  // themes have pictures for some of the answers only
    }
    message.setEscapeButton(choices.back().button);
    message.setDefaultButton(choices.back().button);
    message.exec();
    for (const Choice& choice : choices) {
        if (message.standardButton(message.clickedButton()) == choice.button) return choice.answer;
    }
    return choices.back().answer;
}

std::optional<std::string> DesktopPrompts::chooseFolder(const FolderRequest& request) {
    QFileDialog chooser(windowBehind(), toQt(request.title));
    chooser.setFileMode(QFileDialog::Directory);
    chooser.setOption(QFileDialog::ShowDirsOnly);
    if (!request.initialPath.empty() && QDir(toQt(request.initialPath)).exists()) {
        chooser.setDirectory(toQt(request.initialPath));
    } else if (request.root) {
        chooser.setDirectory(toQt(*request.root));
    }
    addStatusLine(chooser, toQt(request.statusPrefix));
    while (chooser.exec() == QDialog::Accepted && !chooser.selectedFiles().isEmpty()) {
        const QString chosen = chooser.selectedFiles().front();
        if (!request.root || isBelow(chosen, toQt(*request.root))) return fromQt(chosen);
    }
    return std::nullopt;
}

std::optional<std::string> DesktopPrompts::chooseFile(const FileRequest& request) {
    QFileDialog chooser(windowBehind(), toQt(request.title));
    chooser.setFileMode(QFileDialog::ExistingFile);
    const QStringList filters = nameFilters(request.filter);
    chooser.setNameFilters(filters);
    if (request.filterIndex >= 1 && request.filterIndex <= filters.size()) {
        chooser.selectNameFilter(filters[request.filterIndex - 1]);
    }
    if (chooser.exec() != QDialog::Accepted || chooser.selectedFiles().isEmpty()) return std::nullopt;
    return fromQt(chooser.selectedFiles().front());
}

void DesktopPrompts::runNewFolder(dlgNewFolder& dialog) {
    NewFolderWindow window(dialog, windowBehind());
    window.exec();
    if (dialog.isOpen()) dialog.onCloseBox();
}

}  // namespace kestedit
