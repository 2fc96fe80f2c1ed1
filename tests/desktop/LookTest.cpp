// Colours and pictures: the desktop's own, in light and dark, also when it changes its mind.
#include <QLabel>
#include <algorithm>
#include <cmath>
#include <utility>

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

/// As the high contrast themes of desktops have it: two colours, and one for what is selected.
QPalette contrastPalette(const QColor& front, const QColor& back, const QColor& selected) {
    QPalette palette(front, back, front, back, front, front, front, back, back);
    palette.setColor(QPalette::Highlight, selected);
    palette.setColor(QPalette::HighlightedText, back);
    return palette;
}

/// How far the picture's strongest point stands out from what is behind it.
double contrast(const QImage& picture, const QColor& background) {
    double strongest = 1;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (const QColor point = picture.pixelColor(x, y); point.alpha() == 255)
                strongest = std::max(strongest, contrast(point, background));
    return strongest;
}

class Look : public WindowTest {
  protected:
    void TearDown() override {
        leave();
        QApplication::setPalette(QApplication::style()->standardPalette());
    }
    QImage picture() { return shownBy<QLabel>("Image1").pixmap().toImage(); }
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
    QApplication::setPalette(QApplication::style()->standardPalette());
    settle();
    EXPECT_EQ(picture(), light);
}

struct Scheme {
    const char* name;
    QPalette palette;
    double text, edge;  ///< contrast that these need
};

class Schemes : public Look, public testing::WithParamInterface<Scheme> {};

TEST_P(Schemes, EverythingStandsOutAfterAChangeWhileOpen) {
    const auto& [name, palette, text, edge] = GetParam();
    open();
    QApplication::setPalette(palette);
    settle();
    for (int node = 0; node < list().topLevelItemCount(); ++node) {
        clickNode(node);
        for (const QWidget* widget : window().findChildren<QWidget*>()) {
            if (!widget->isVisible() || !widget->isEnabled()) continue;
            for (const auto& [front, back] : {std::pair{QPalette::WindowText, QPalette::Window},
                                              {QPalette::Text, QPalette::Base},
                                              {QPalette::ButtonText, QPalette::Button},
                                              {QPalette::HighlightedText, QPalette::Highlight}})
                EXPECT_GE(contrast(widget->palette().color(front), widget->palette().color(back)), text)
                    << name << ": " << widget->objectName().toStdString() << " " << front;
        }
        const QIcon mark = list().topLevelItem(node)->icon(1);
        if (mark.isNull()) continue;
        EXPECT_GE(contrast(mark.pixmap(16).toImage(), list().palette().color(QPalette::Base)), edge) << name << node;
        EXPECT_GE(contrast(mark.pixmap(16, QIcon::Selected).toImage(), list().palette().color(QPalette::Highlight)),
                  edge)
            << name << node;
    }
    EXPECT_GE(contrast(picture(), window().palette().color(QPalette::Window)), edge) << name;
}

// Nothing in the box, nothing in the field: what is left to be seen is its line.
TEST_P(Schemes, EmptyBoxesAndFieldsHaveAnEdge) {
    open();
    QApplication::setPalette(GetParam().palette);
    settle();
    for (const char* name : {"dxName", "dxComment", "cmdSave", "chkPreview", "optAction(1)", "dxHours"}) {
        if (at(name).Container) turnTo(name);
        QWidget& widget = binding(name).widget();
        // Round any other field with the focus the style draws its own line.
        QWidget& focused = at(name).Kind == ControlKind::memo ? widget : list();
        focused.setFocus();
        const bool box = widget.inherits("QCheckBox") || widget.inherits("QRadioButton");
        const QRect empty = box ? QRect(0, 0, 14, widget.height()) : QRect(0, 0, widget.width(), 2);
        EXPECT_GE(contrast(widget.grab(empty).toImage(), widget.palette().color(QPalette::Window)), GetParam().edge)
            << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Palettes, Schemes,
                         testing::Values(Scheme{"dark", darkPalette(), 3.5, 3},
                                         Scheme{"black", contrastPalette(Qt::white, Qt::black, Qt::yellow), 7, 3},
                                         Scheme{"white", contrastPalette(Qt::black, Qt::white, Qt::darkBlue), 7, 3}),
                         [](const auto& scheme) { return std::string{scheme.param.name}; });

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
