// Colours and pictures: the desktop's own, in light and dark, also when it changes its mind.
#include <QLabel>
#include <cmath>

#include "desktop/Icons.h"
#include "tests/desktop/WindowFixture.h"

namespace kestedit::test {
namespace {

double luminance(const QColor& colour) {
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

QPalette darkPalette() {
    QPalette palette(QColor(49, 54, 59), QColor(42, 46, 50));
    palette.setColor(QPalette::Base, QColor(27, 30, 32));
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::WindowText, Qt::white);
    return palette;
}

class Look : public WindowTest {
  protected:
    void TearDown() override {
        leave();
        QApplication::setPalette(QApplication::style()->standardPalette());
    }
    QImage picture() { return shownBy<QLabel>("Image1").pixmap().toImage(); }
    double listContrast() {
        return contrast(list().palette().color(QPalette::Base), list().palette().color(QPalette::Text));
    }
};

TEST_F(Look, PicturesFollowTheDesktopWhileOpen) {
    open();
    const QImage light = picture();
    const QImage lightNode = list().topLevelItem(1)->icon(1).pixmap(16).toImage();
    ASSERT_FALSE(light.isNull());
    ASSERT_FALSE(lightNode.isNull());
    QApplication::setPalette(darkPalette());
    settle();
    EXPECT_NE(picture(), light);
    EXPECT_NE(list().topLevelItem(1)->icon(1).pixmap(16).toImage(), lightNode);
    EXPECT_GE(listContrast(), 7);
    QApplication::setPalette(QApplication::style()->standardPalette());
    settle();
    EXPECT_EQ(picture(), light);
    EXPECT_GE(listContrast(), 7);
}

TEST_F(Look, ListTakesItsColoursFromTheSettingsAsAPair) {
    std::ofstream(values.INIFile) << "[Global]\r\nRowBgCol=8388608\r\nRowTxtCol=16777215\r\n";  // white on navy
    QApplication::setPalette(darkPalette());
    open();
    EXPECT_EQ(list().palette().color(QPalette::Base), QColor(0, 0, 128));
    EXPECT_EQ(list().palette().color(QPalette::Text), QColor(Qt::white));
}

TEST_F(Look, ListWithoutIconsHidesTheirColumn) {
    std::ofstream(values.INIFile) << "[EditWin]\r\nShowIcons=0\r\n";
    open();
    EXPECT_TRUE(list().isColumnHidden(1));
}

TEST_F(Look, MarksAreSaidInWords) {
    open();
    EXPECT_EQ(list().topLevelItem(1)->toolTip(1).toStdString(), at("optAction(0)").Caption);
    EXPECT_FALSE(list().topLevelItem(4)->toolTip(1).isEmpty());
    press("optAction(2)");
    EXPECT_EQ(list().topLevelItem(1)->toolTip(1).toStdString(), at("optAction(2)").Caption);
    EXPECT_NE(list().topLevelItem(12)->data(0, Qt::AccessibleDescriptionRole).toString(), QString());
}

TEST_F(Look, ActionPictureFollowsActionAndPreview) {
    open();
    const QImage copy = picture();
    press("optAction(5)");
    const QImage synchronise = picture();
    EXPECT_NE(copy, synchronise);
    press("chkPreview");
    EXPECT_NE(picture(), synchronise);
    EXPECT_EQ(shownBy<QLabel>("Image1").toolTip().toStdString(), at("Image1").ToolTipText);
}

// The files behind the numbers that the product uses are all there, in both families.
TEST(Icons, EveryPictureExistsInBothFamilies) {
    for (const QColor background : {QColor(Qt::white), QColor(Qt::black)}) {
        for (int node = 0; node <= 15; ++node)
            EXPECT_FALSE(icon("node-" + std::to_string(node), background).pixmap(16).toImage().isNull()) << node;
        for (int action = 1; action <= 12; ++action)
            EXPECT_FALSE(icon("action-" + std::to_string(action), background).pixmap(48).toImage().isNull()) << action;
        for (const char* field : {"field-browse", "field-new-folder", "field-show", "field-hide"})
            EXPECT_FALSE(icon(field, background).pixmap(16).toImage().isNull()) << field;
    }
    EXPECT_FALSE(programIcon().pixmap(48).toImage().isNull());
}

TEST_F(Look, CaptionsAndToolTipsAreNeverMarkup) {
    open();
    turnTo("dxSource");
    prompts.choices = {"/srv/<b>a</b>"};
    QTest::mouseClick(binding("dxSource").focusWidgets()[1], Qt::LeftButton);
    EXPECT_FALSE(binding("dxSource").widget().toolTip().contains("<b>"));
    EXPECT_EQ(toolTipText("plain"), "plain");
    EXPECT_EQ(withoutMnemonic("&Save && close"), "Save & close");
}

}  // namespace
}  // namespace kestedit::test
