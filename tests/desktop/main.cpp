// Window tests run without a display, in one look and one font, and in a home of their own, whatever the machine's
// desktop is: the toolkit's choosers note in the user's settings where they have been.
#include <QApplication>
#include <QFont>
#include <gtest/gtest.h>

#include "desktop/OutlineStyle.h"
#include "tests/platform/TemporaryFolder.h"

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const kestedit::test::TemporaryFolder home;
    qputenv("HOME", home.path().c_str());
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qunsetenv(variable);
    testing::InitGoogleTest(&count, arguments);
    QApplication application(count, arguments);
    QApplication::setStyle("fusion");
    kestedit::OutlineStyle::improveFusion();
    QApplication::setFont(QFont("DejaVu Sans", 10));
    return RUN_ALL_TESTS();
}
