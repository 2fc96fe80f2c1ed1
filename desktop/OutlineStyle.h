// Keeps boxes and fields visible on dark windows and in high contrast.
#pragma once

#include <QProxyStyle>

namespace kestedit {

/// The toolkit's own style, Fusion. Its lines round what can be ticked, typed into or pressed are a darker shade of the
/// window's colour, which cannot be seen on a dark window, nor in a high contrast palette, where fields and window have
/// one background; there this style draws lines of its own.
class OutlineStyle final : public QProxyStyle {
    Q_OBJECT

  public:
    OutlineStyle();
    /// Replaces Fusion as the application's style; leaves any other alone, which knows its own palettes.
    static void improveFusion();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

}  // namespace kestedit
