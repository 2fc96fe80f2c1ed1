#include "desktop/OutlineStyle.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>
#include <cstdlib>

#include "desktop/Icons.h"

namespace kestedit {

namespace {

constexpr int fieldRadius = 2;

/// The line's colour; not valid where the style's own line can be seen.
QColor outlineColour(const QPalette& palette) {
    const QColor window = palette.color(QPalette::Window);
    const bool oneBackground = std::abs(qGray(palette.color(QPalette::Base).rgb()) - qGray(window.rgb())) < 4;
    if (!oneBackground && !isDark(window)) return {};
    QColor line = palette.color(QPalette::WindowText);
    if (!oneBackground) line.setAlphaF(0.45F);
    return line;
}

void drawOutline(const QStyleOption& option, QPainter& painter, int radius) {
    const QColor colour = outlineColour(option.palette);
    if (!colour.isValid()) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colour);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.restore();
}

// A field of one line with the focus shows it by a line of the style's.
void drawFieldOutline(const QStyleOption& option, QPainter& painter) {
    if (!(option.state & QStyle::State_HasFocus)) drawOutline(option, painter, fieldRadius);
}

}  // namespace

OutlineStyle::OutlineStyle() : QProxyStyle(QStringLiteral("fusion")) {}

void OutlineStyle::improveFusion() {
    if (QApplication::style()->name() == QLatin1String("fusion")) QApplication::setStyle(new OutlineStyle);
}

void OutlineStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    switch (element) {
        case PE_IndicatorCheckBox:
        case PE_PanelButtonCommand:
            return drawOutline(*option, *painter, fieldRadius);
        case PE_IndicatorRadioButton:
            return drawOutline(*option, *painter, option->rect.width() / 2);
        case PE_FrameLineEdit:
            return drawFieldOutline(*option, *painter);
        case PE_Frame:
            if (widget && widget->inherits("QPlainTextEdit")) drawOutline(*option, *painter, fieldRadius);
            return;
        default:
            return;
    }
}

void OutlineStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                      const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_SpinBox || control == CC_ComboBox) drawFieldOutline(*option, *painter);
}

}  // namespace kestedit
