#include "ui/InterfaceStyle.h"

#include "ui/Fonts.h"
#include "ui/Palette.h"
#include "ui/Plates.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QStyleOption>
#include <QToolTip>

#include <algorithm>

namespace tarvin {

namespace {

constexpr Colour floatingFill{0.17, 0.17, 0.19}; // of tips and menus
constexpr Colour floatingStroke = palette::white.at(0.14);
constexpr int tipFrame = 5;
constexpr int scrollBarRoom = 10;
constexpr double scrollBarWidth = 4;
constexpr int shortestSlider = 28;
constexpr TextStyle tipText{.size = 11, .weight = TextWeight::regular, .face = TextFace::rounded};
constexpr TextStyle menuText{.size = 12, .weight = TextWeight::medium, .face = TextFace::rounded};

} // namespace

InterfaceStyle::InterfaceStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{ }

void InterfaceStyle::install()
{
    auto* const style = new InterfaceStyle; // the application owns it
    QApplication::setStyle(style);
    // Said outright, because the desktop's theme goes before what a style proposes.
    QApplication::setPalette(style->standardPalette());
}

QPalette InterfaceStyle::standardPalette() const
{
    QPalette colours(palette::buttonStroke.toQColor(), palette::windowBackground.toQColor());
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        colours.setColor(role, palette::white.at(0.9));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colours.setColor(QPalette::Disabled, role, palette::white.at(0.3));
    colours.setColor(QPalette::Window, palette::windowBackground);
    colours.setColor(QPalette::Base, palette::panelBackground);
    colours.setColor(QPalette::Button, Colour{0.16, 0.16, 0.18});
    colours.setColor(QPalette::ToolTipBase, floatingFill);
    colours.setColor(QPalette::Highlight, palette::mintTeal.at(0.35));
    colours.setColor(QPalette::HighlightedText, palette::white);
    return colours;
}

void InterfaceStyle::polish(QWidget* widget)
{
    if (widget->inherits("QTipLabel")) {
        widget->setFont(fontOf(tipText));
        QPalette colours = widget->palette();
        colours.setColor(QPalette::ToolTipText, palette::white.at(0.9));
        colours.setColor(QPalette::ToolTipBase, floatingFill);
        widget->setPalette(colours);
    }
    if (widget->inherits("QMenu")) {
        widget->setFont(fontOf(menuText));
        QPalette colours = widget->palette();
        colours.setColor(QPalette::Base, floatingFill);
        widget->setPalette(colours);
    }
    QProxyStyle::polish(widget);
}

void InterfaceStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    switch (element) {
    case PE_PanelTipLabel:
        painter->fillRect(option->rect, floatingFill.toQColor());
        [[fallthrough]];
    case PE_FrameMenu:
        strokePlate(*painter, option->rect, 0, 1, floatingStroke);
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void InterfaceStyle::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const
{
    const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || !bar) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    if (bar->maximum <= bar->minimum)
        return;
    QRectF slider = subControlRect(CC_ScrollBar, option, SC_ScrollBarSlider, widget);
    if (bar->orientation == Qt::Vertical)
        slider =
            QRectF(slider.center().x() - scrollBarWidth / 2, slider.top() + 2, scrollBarWidth, slider.height() - 4);
    else
        slider =
            QRectF(slider.left() + 2, slider.center().y() - scrollBarWidth / 2, slider.width() - 4, scrollBarWidth);
    const bool isHot = (option->state & State_MouseOver) || (option->state & State_Sunken);
    fillPlate(*painter, slider, scrollBarWidth / 2, palette::white.at(isHot ? 0.35 : 0.18));
}

QRect InterfaceStyle::subControlRect(
    ComplexControl control, const QStyleOptionComplex* option, SubControl subControl, const QWidget* widget) const
{
    const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || !bar)
        return QProxyStyle::subControlRect(control, option, subControl, widget);
    // No arrows; the groove is the whole bar.
    const bool isVertical = bar->orientation == Qt::Vertical;
    const int room = isVertical ? bar->rect.height() : bar->rect.width();
    const int range = bar->maximum - bar->minimum;
    int length = room;
    if (range > 0)
        length = std::clamp(static_cast<int>(static_cast<qint64>(bar->pageStep) * room / (range + bar->pageStep)),
            std::min(shortestSlider, room), room);
    const int start =
        sliderPositionFromValue(bar->minimum, bar->maximum, bar->sliderPosition, room - length, bar->upsideDown);
    const auto part = [&](int from, int size) {
        return isVertical ? QRect(bar->rect.left(), bar->rect.top() + from, bar->rect.width(), size)
                          : QRect(bar->rect.left() + from, bar->rect.top(), size, bar->rect.height());
    };
    switch (subControl) {
    case SC_ScrollBarSlider:
        return part(start, length);
    case SC_ScrollBarSubPage:
        return part(0, start);
    case SC_ScrollBarAddPage:
        return part(start + length, room - start - length);
    case SC_ScrollBarGroove:
        return part(0, room);
    default:
        return {};
    }
}

int InterfaceStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_ToolTipLabelFrameWidth:
        return tipFrame;
    case PM_ScrollBarExtent:
        return scrollBarRoom;
    case PM_ScrollBarSliderMin:
        return shortestSlider;
    case PM_ScrollView_ScrollBarOverlap:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int InterfaceStyle::styleHint(
    StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const
{
    switch (hint) {
    case SH_ToolTipLabel_Opacity:
        return 255;
    case SH_ScrollBar_Transient:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

} // namespace tarvin
