#include "desktop/DesktopRun.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <cstddef>
#include <stdexcept>

#include "desktop/FormWindow.h"
#include "desktop/Icons.h"
#include "desktop/OutlineStyle.h"
#include "desktop/Text.h"

namespace kestedit {

namespace {

/// Identifier of the localizer's text for a button.
std::size_t localizerText(Answer answer) {
    switch (answer) {
        case Answer::ok:
            return 9;
        case Answer::cancel:
            return 8;
        case Answer::yes:
            return 11;
        case Answer::no:
            return 10;
        case Answer::retry:
            return 7;
        case Answer::proceed:
            break;
    }
    return 12;
}

}  // namespace

/// Brought into a host that has none. The choosers speak the user's language where the toolkit has it.
class DesktopRun::OwnApplication {
  public:
    OwnApplication() : application_(count_, arguments_) {
        QApplication::setApplicationName(QStringLiteral("kestedit"));
        QGuiApplication::setDesktopFileName(QStringLiteral("kestedit"));
        QApplication::setWindowIcon(programIcon());  // a question may come before the window
        OutlineStyle::improveFusion();
        if (translator_.load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
                             QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
            QApplication::installTranslator(&translator_);
        }
    }

  private:
    // The application keeps references to both.
    char name_[9] = "kestedit";
    char* arguments_[2] = {name_, nullptr};
    int count_ = 1;
    QApplication application_;
    QTranslator translator_;
};

DesktopRun::DesktopRun() {
    if (!QCoreApplication::instance()) {
        application_ = std::make_unique<OwnApplication>();
    } else if (!qobject_cast<QApplication*>(QCoreApplication::instance())) {
        throw std::logic_error("the host's application has no windows");
    }
}

DesktopRun::~DesktopRun() = default;

void DesktopRun::run(frmEdit& form) {
    FormWindow window(form);
    prompts_.serve({&window, [&window] { window.refresh(); },
                    [&form](Answer answer) { return toQt(form.Localizer.at(localizerText(answer))); }});
    window.exec();
    prompts_.serve({});
    if (form.isOpen()) form.onCloseBox();
}

void DesktopRun::processPending() {
    QCoreApplication::processEvents();
}

bool DesktopRun::hasDisplay() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

}  // namespace kestedit
