#include "studio/KeyLegend.h"

#include "studio/keyboard/KeycapLook.h"
#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/Shadows.h"
#include "ui/TextLine.h"

#include <QPainter>

#include <array>
#include <cmath>

namespace tarvin {

namespace {

struct Entry
{
    QStringView text;
    KeycapState state;
};
constexpr std::array entries = {
    Entry{u"Customizable", {}}, Entry{u"Customized (Turns Mint Teal)", {.isCustomized = true}}};

constexpr TextStyle legendText{.size = 10, .weight = TextWeight::medium, .face = TextFace::rounded};
constexpr double plateHeight = 28;
constexpr double radius = 8;
constexpr double inset = 10;
constexpr QSizeF marker{14, 10};
constexpr double markerRadius = 2.5;
constexpr double spacing = 6;
constexpr double entryGap = 18;

} // namespace

KeyLegend::KeyLegend(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    const QString tip =
        QStringLiteral("F1–F12, Caps Lock, Globe/Fn, Right ⌥, and Right ⌘ are customizable with cyan borders. "
                       "Once customized, they turn vibrant Mint Teal.");
    setToolTip(tip);
    setAccessibleName(tr("Legend"));
    setAccessibleDescription(tip);
}

QSize KeyLegend::sizeHint() const
{
    double width = 2 * inset + entryGap;
    for (const Entry& entry : entries)
        width += marker.width() + spacing + textWidth(entry.text.toString(), legendText);
    return {static_cast<int>(std::ceil(width)), static_cast<int>(plateHeight)};
}

void KeyLegend::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRectF box = rect();
    fillPlate(painter, box, radius, palette::white.at(0.04));
    strokePlate(painter, box, radius, 1, palette::white.at(0.06));
    double x = inset;
    for (const Entry& entry : entries) {
        const KeycapLook look = keycapLook(keycaps[*keycapOf(FKey::f1)], entry.state);
        const QRectF key(QPointF(x, box.center().y() - marker.height() / 2), marker);
        drawShadow(painter, key, {.colour = look.glow, .sigma = look.glowRadius / 2, .cornerRadius = markerRadius});
        fillPlate(painter, key, markerRadius, verticalBrush(key, look.face));
        strokePlate(painter, key, markerRadius, 1, Colour(palette::mintTeal).at(entry.state.isCustomized ? 0.95 : 0.5));
        x += marker.width() + spacing;
        const double width = textWidth(entry.text.toString(), legendText);
        drawText(painter, {x, 0, width, box.height()}, Qt::AlignLeft, entry.text.toString(), legendText,
            palette::white.at(0.7));
        x += width + entryGap;
    }
}

} // namespace tarvin
