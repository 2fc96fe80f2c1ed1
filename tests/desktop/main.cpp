// Window tests run without a display, in one look and one font, whatever the machine's desktop is.
#include <QApplication>
#include <QFont>
#include <gtest/gtest.h>

#include "desktop/OutlineStyle.h"

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&count, arguments);
    QApplication application(count, arguments);
    QApplication::setStyle("fusion");
    kestedit::OutlineStyle::improveFusion();
    QApplication::setFont(QFont("DejaVu Sans", 10));
    return RUN_ALL_TESTS();
}
