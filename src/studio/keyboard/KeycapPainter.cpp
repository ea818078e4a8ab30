#include "studio/keyboard/KeycapPainter.h"

#include "studio/keyboard/KeycapContentPainter.h"
#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/Shadows.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>

namespace tarvin {

namespace {

constexpr double atmosphereRadius = 6;
constexpr double backlightSpread = 2;
constexpr double backlightBlur = 3.2;

QBrush highlightBrush(const QRectF& face, double opacity)
{
    QLinearGradient brush(face.topLeft(), face.bottomLeft());
    brush.setColorAt(0, palette::white.at(opacity));
    brush.setColorAt(0.5, palette::white.at(0));
    return brush;
}

} // namespace

double keycapRadius(const Keycap& keycap)
{
    switch (keycap.kind) {
    case KeycapKind::standard:
    case KeycapKind::special:
        return 5.5;
    case KeycapKind::heroFunction:
    case KeycapKind::capsLock:
    case KeycapKind::spacebar:
    case KeycapKind::touchID:
        return 6;
    case KeycapKind::arrow:
        return 4.5;
    }
    Q_UNREACHABLE();
}

KeycapContent plainContent(const Keycap& keycap)
{
    KeycapContent content{.label = keycap.label.toString(),
        .subLabel = keycap.subLabel.toString(),
        .icon = keycap.icon,
        .isCustomized = false};
    if (keycap.kind == KeycapKind::heroFunction)
        content.icon = Symbol::named(defaultIcon(*keycap.key));
    return content;
}

KeycapContent customisedContent(const Keycap& keycap, QStringView actionTitle, QStringView actionIcon)
{
    KeycapContent content = plainContent(keycap);
    content.isCustomized = true;
    // fn, Right Command and Right Option keep what is printed on them.
    if (keycap.kind != KeycapKind::special)
        content.icon = Symbol::namedOrPlaceholder(actionIcon);
    if (keycap.kind == KeycapKind::capsLock)
        content.label = actionTitle.toString();
    return content;
}

double keycapReach(const KeycapLook& look)
{
    constexpr double backlightReach = blurReach(backlightBlur) + backlightSpread;
    return std::max({blurReach(look.glowRadius), backlightReach, blurReach(look.shadowRadius) + look.shadowShift}) + 4;
}

void paintUnderKeyAtmosphere(QPainter& painter, const QRectF& box, const KeycapLook& look)
{
    drawShadow(painter, box.translated(0, look.shadowShift),
        {.colour = palette::black.at(look.shadowOpacity),
            .sigma = look.shadowRadius,
            .cornerRadius = atmosphereRadius});
    if (look.backlight > 0) {
        const QRectF lit = box.adjusted(-backlightSpread, -backlightSpread, backlightSpread, backlightSpread);
        drawShadow(painter, lit,
            {.colour = palette::white.at(look.backlight),
                .sigma = backlightBlur,
                .cornerRadius = atmosphereRadius + backlightSpread});
    }
}

void paintKeyGlow(QPainter& painter, const Keycap& keycap, const QRectF& box, const KeycapLook& look)
{
    drawShadow(painter, box.translated(0, look.faceShift),
        {.colour = look.glow, .sigma = look.glowRadius, .cornerRadius = keycapRadius(keycap)});
}

void paintKeycap(
    QPainter& painter, const Keycap& keycap, const QRectF& box, const KeycapLook& look, const KeycapContent& content)
{
    painter.save();
    if (look.scale != 1) {
        painter.translate(box.center());
        painter.scale(look.scale, look.scale);
        painter.translate(-box.center());
    }
    const double radius = keycapRadius(keycap);
    const QRectF face = box.translated(0, look.faceShift);
    fillPlate(painter, box.translated(0, look.slabShift), radius, palette::panelBackground);
    fillPlate(painter, face, radius, verticalBrush(face, look.face));
    fillPlate(painter, face, radius, highlightBrush(face, look.highlight));
    strokePlate(painter, face, radius, look.rimWidth, verticalBrush(face, look.rim));
    paintKeycapContent(painter, keycap, face, look, content);
    painter.restore();
}

} // namespace tarvin
