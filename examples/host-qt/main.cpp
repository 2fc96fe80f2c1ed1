// A host with a window of its own.
//   host-qt [FOLDER]     shows the jobs in FOLDER
#include <QApplication>

#include "JobList.h"

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    JobList window(application.arguments().value(1, "."));
    window.show();
    return QApplication::exec();
}
