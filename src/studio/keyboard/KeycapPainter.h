#pragma once

#include "studio/keyboard/KeycapLook.h"

#include <QRectF>
#include <QString>

#include <optional>

class QPainter;

namespace tarvin {

/// What stands on a keycap at this moment.
struct KeycapContent
{
    QString label;
    QString subLabel{};
    std::optional<Symbol> icon{};
    bool isCustomized = false; ///< some labels are bolder then

    bool operator==(const KeycapContent&) const = default;
};

/// The content of a key that can't be customised, or isn't.
[[nodiscard]] KeycapContent plainContent(const Keycap& keycap);
/// The content of a customised one.
[[nodiscard]] KeycapContent customisedContent(const Keycap& keycap, QStringView actionTitle, QStringView actionIcon);

/// The shadow and the light under a key.
void paintUnderKeyAtmosphere(QPainter& painter, const QRectF& box, const KeycapLook& look);
/// What shines around the key.
void paintKeyGlow(QPainter& painter, const Keycap& keycap, const QRectF& box, const KeycapLook& look);
/// The key itself: slab, face, rim and what stands on it.
void paintKeycap(
    QPainter& painter, const Keycap& keycap, const QRectF& box, const KeycapLook& look, const KeycapContent& content);

/// How far anything of the key reaches beyond its box.
[[nodiscard]] double keycapReach(const KeycapLook& look);
[[nodiscard]] double keycapRadius(const Keycap& keycap);

} // namespace tarvin
