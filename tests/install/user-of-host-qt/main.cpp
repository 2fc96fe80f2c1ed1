// Sits before the example host: asks for help, creates a job in the editor's window, and finds it in the host's list.
#include <QApplication>
#include <QDesktopServices>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <cstdlib>
#include <iostream>

#include "JobList.h"

namespace {

[[noreturn]] void fail(const char* what) {
    std::cerr << "user-of-host-qt: " << what << '\n';
    std::exit(1);
}

/// The widget of that name, or the first field inside of it that takes keys.
template <class Widget>
Widget* in(QWidget* window, const char* name) {
    auto* const found = window ? window->findChild<Widget*>(name) : nullptr;
    if (!found) fail(name);
    return found;
}

void createJob() {
    QWidget* const editor = QApplication::activeModalWidget();
    if (!editor) fail("the editor's window has not opened");
    std::cout << qPrintable(editor->windowTitle()) << '\n';
    QTextBrowser browser;
    QDesktopServices::setUrlHandler("file", &browser, "setSource");
    QTest::keyClick(editor, Qt::Key_F1);
    std::cout << "help: " << qPrintable(browser.source().toLocalFile()) << '\n';
    QTest::keyClicks(in<QWidget>(editor, "dxName"), "Night");
    QTest::mouseClick(in<QPushButton>(editor, "cmdSave"), Qt::LeftButton);
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    JobList window(application.arguments().at(1));
    window.show();
    QTimer::singleShot(500, createJob);
    QTimer::singleShot(20000, [] { fail("the editor's window has not closed"); });
    for (auto* const button : window.findChildren<QPushButton*>()) {
        if (button->text() == "New job") QTest::mouseClick(button, Qt::LeftButton);
    }
    const auto* const list = window.findChild<QListWidget*>();
    if (list->count() != 1 || list->item(0)->text() != "Night.job") fail("the host does not list the new job");
    std::cout << "the host lists Night.job\n";
}
