// Hosts without an application of the toolkit: the editor brings one and takes it away again.
#include <QApplication>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "component/clsEdit.h"
#include "desktop/DesktopRun.h"
#include "desktop/OutlineStyle.h"
#include "tests/editor/EditorFixture.h"

namespace kestedit::test {
namespace {

class Hostless : public testing::Test, public Surroundings {
  protected:
    void SetUp() override { qputenv("QT_QPA_PLATFORM", "offscreen"); }

    /// Shows the editor once and tells what happened; `act` finds its window in front.
    std::string show(const std::function<void(QWidget&)>& act) {
        DesktopRun run;
        Platform desktop{ini, files, clock, dates, run.prompts(), settings};
        clsEdit editor(desktop, run);
        editor.Mode("New");
        editor.Language(values.Language);
        std::string happened;
        editor.SearchJobs = [&] { happened += "SearchJobs"; };
        QTimer::singleShot(0, qApp, [&] {
            QWidget* const window = QApplication::activeModalWidget();
            ASSERT_NE(window, nullptr);
            EXPECT_EQ(window->parentWidget(), nullptr);
            QObject::connect(window, &QObject::destroyed, qApp,
                             [&] { QTimer::singleShot(0, qApp, [&] { happened = "gone "; }); });
            act(*window);
        });
        editor.Show(4);
        EXPECT_NE(QCoreApplication::instance(), nullptr);
        return happened;
    }
};

TEST_F(Hostless, EditorBringsItsOwnApplicationAndTakesItAway) {
    ASSERT_EQ(QCoreApplication::instance(), nullptr);
    EXPECT_EQ(show([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); }), "gone ");
    EXPECT_EQ(QCoreApplication::instance(), nullptr);
    const auto close = [](QWidget& window) {
        EXPECT_NE(dynamic_cast<OutlineStyle*>(QApplication::style()), nullptr);
        window.close();
    };
    EXPECT_EQ(show(close), "gone SearchJobs");
    EXPECT_EQ(show([](QWidget&) { QApplication::closeAllWindows(); }), "gone SearchJobs");
}

TEST_F(Hostless, ApplicationWithoutWindowsIsRefused) {
    int count = 1;
    char name[] = "host";
    char* arguments[] = {name, nullptr};
    const QCoreApplication host(count, arguments);
    EXPECT_THROW(DesktopRun(), std::logic_error);
}

}  // namespace
}  // namespace kestedit::test
