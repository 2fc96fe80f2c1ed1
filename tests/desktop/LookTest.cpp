// Colours and pictures: the desktop's own, in light and dark, also when it changes its mind.
#include <QLabel>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "desktop/Icons.h"
#include "desktop/widgets/PathEdit.h"
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

struct Scheme {
    const char* name;
    QPalette palette;
    double text, edge;  ///< contrast that these need
};

class Look : public WindowTest {
  protected:
    void TearDown() override {
        leave();
        QApplication::setPalette(QApplication::style()->standardPalette());
    }
    QImage picture() { return shownBy<QLabel>("Image1").pixmap().toImage(); }
    QImage markOf(int node) { return list().topLevelItem(node)->icon(1).pixmap(16).toImage(); }

    void expectTextsToStandOut(double text) {
        for (const QWidget* widget : window().findChildren<QWidget*>()) {
            if (!widget->isVisible() || !widget->isEnabled()) continue;
            for (const auto& [front, back] : {std::pair{QPalette::WindowText, QPalette::Window},
                                              {QPalette::Text, QPalette::Base},
                                              {QPalette::ButtonText, QPalette::Button},
                                              {QPalette::HighlightedText, QPalette::Highlight}})
                EXPECT_GE(contrast(widget->palette().color(front), widget->palette().color(back)), text)
                    << widget->objectName().toStdString() << " " << front;
        }
    }

    void expectMarkToStandOut(int node, double edge) {
        const QIcon mark = list().topLevelItem(node)->icon(1);
        if (mark.isNull()) return;
        const QPalette& colours = list().palette();
        EXPECT_GE(contrast(markOf(node), colours.color(QPalette::Base)), edge) << node;
        const QImage selected = mark.pixmap(16, QIcon::Selected).toImage();
        EXPECT_GE(contrast(selected, colours.color(QPalette::Highlight)), edge) << node;
    }

    /// Nothing in the box, nothing in the field: what is left to be seen is its line.
    void expectEdge(const char* name, double edge) {
        if (at(name).Container) turnTo(name);
        QWidget& widget = binding(name).widget();
        // Round any other field with the focus the style draws its own line.
        QWidget& focused = at(name).Kind == ControlKind::memo ? widget : list();
        focused.setFocus();
        const bool box = widget.inherits("QCheckBox") || widget.inherits("QRadioButton");
        const QRect empty = box ? QRect(0, 0, 14, widget.height()) : QRect(0, 0, widget.width(), 2);
        EXPECT_GE(contrast(widget.grab(empty).toImage(), widget.palette().color(QPalette::Window)), edge) << name;
    }
};

TEST_F(Look, EverythingStandsOutInEachPaletteThatComesWhileOpen) {
    const Scheme schemes[] = {{"dark", darkPalette(), 3.5, 3},
                              {"black", contrastPalette(Qt::white, Qt::black, Qt::yellow), 7, 3},
                              {"white", contrastPalette(Qt::black, Qt::white, Qt::darkBlue), 7, 3}};
    open();
    const auto pictures = [this] {
        const QIcon browse = shownBy<PathEdit>("dxSource").buttons().front()->icon();
        return std::array{picture(), markOf(1), browse.pixmap(16).toImage()};
    };
    const auto before = pictures();
    for (const auto& [name, palette, text, edge] : schemes) {
        SCOPED_TRACE(name);
        QApplication::setPalette(palette);
        settle();
        const bool light = !isDark(palette.color(QPalette::Window));
        for (std::size_t i = 0; i < before.size(); ++i)
            EXPECT_EQ(pictures()[i] == before[i], light) << "picture " << i;
        EXPECT_GE(contrast(picture(), window().palette().color(QPalette::Window)), edge);
        for (int node = 0; node < list().topLevelItemCount(); ++node) {
            clickNode(node);
            expectTextsToStandOut(text);
            expectMarkToStandOut(node, edge);
        }
        for (const char* control : {"dxName", "dxComment", "cmdSave", "chkPreview", "optAction(1)", "dxHours"})
            expectEdge(control, edge);
    }
}

TEST_F(Look, ListTakesItsColoursAndIconsFromTheSettings) {
    std::ofstream(values.INIFile) << "[Global]\r\nRowBgCol=8388608\r\nRowTxtCol=65535\r\n"  // yellow on navy
                                     "[EditWin]\r\nShowIcons=0\r\n";
    QApplication::setPalette(darkPalette());
    open();
    EXPECT_EQ(list().palette().color(QPalette::Base), QColor(0, 0, 128));
    EXPECT_EQ(list().palette().color(QPalette::Text), QColor(Qt::yellow));
    EXPECT_TRUE(list().isColumnHidden(1));
}

TEST_F(Look, MarksAndPictureFollowTheActionAndAreSaidInWords) {
    open();
    EXPECT_EQ(list().topLevelItem(1)->toolTip(1).toStdString(), at("optAction(0)").Caption);
    EXPECT_FALSE(list().topLevelItem(4)->toolTip(1).isEmpty());
    const QImage copy = picture();
    press("optAction(5)");
    EXPECT_EQ(list().topLevelItem(1)->toolTip(1).toStdString(), at("optAction(5)").Caption);
    const QImage synchronise = picture();
    EXPECT_NE(copy, synchronise);
    press("chkPreview");
    EXPECT_NE(picture(), synchronise);
    press("optAction(2)");
    EXPECT_NE(list().topLevelItem(12)->data(0, Qt::AccessibleDescriptionRole).toString(), QString());
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

}  // namespace
}  // namespace kestedit::test
