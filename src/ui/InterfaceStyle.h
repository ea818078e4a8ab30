#pragma once

#include <QProxyStyle>

namespace tarvin {

/// What the toolkit itself draws in the program's windows: tooltips, thin scroll bars, dark menus. Set on the
/// application once, before the first window is made.
class InterfaceStyle : public QProxyStyle
{
    Q_OBJECT

public:
    InterfaceStyle();

    /// Gives the application this style and its colours. Once, before the first window is made.
    static void install();

    /// Dark colours for everything that takes its colours from the application.
    [[nodiscard]] QPalette standardPalette() const override;
    void polish(QWidget* widget) override;
    using QProxyStyle::polish;

    void drawPrimitive(
        PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
        const QWidget* widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl subControl,
        const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    [[nodiscard]] int styleHint(
        StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const override;
};

} // namespace tarvin
