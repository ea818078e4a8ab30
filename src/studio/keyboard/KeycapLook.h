#pragma once

#include "studio/keyboard/Keycaps.h"
#include "ui/Colour.h"

namespace tarvin {

/// All that decides how a keycap looks. The last three mean nothing for keys that can't be customised.
struct KeycapState
{
    bool isHovered = false;
    bool isDepressed = false;
    bool isSelected = false;
    bool isCustomized = false;
    bool isActive = true; ///< no switch pauses the key
    double backlight = 0.85; ///< the level, from 0 to 1

    bool operator==(const KeycapState&) const = default;
};

/// Every number with which a keycap is painted, so that one look can turn smoothly into another.
struct KeycapLook
{
    Gradient face;
    double highlight = 0; ///< opacity of white at the upper edge of the face
    Gradient rim;
    double rimWidth = 0;
    double slabShift = 0; ///< downwards
    double faceShift = 0;
    double scale = 1;
    Colour glow; ///< around the key
    double glowRadius = 0;
    double shadowOpacity = 0; ///< under the key, black
    double shadowRadius = 0;
    double shadowShift = 0;
    double backlight = 0; ///< opacity of the white light under the key
    Colour icon;
    Colour label;
    Colour subLabel;
    Colour nub;
    Colour iconShadow;
    double iconShadowRadius = 0;
    Colour markerDisc; ///< of a customised key
    Colour markerGlow;
    Colour markerRing; ///< of one that can be
    Colour lamp; ///< of Caps Lock

    bool operator==(const KeycapLook&) const = default;
};

[[nodiscard]] KeycapLook keycapLook(const Keycap& keycap, const KeycapState& state);
/// @param part 0 gives @p from, 1 gives @p to; beyond them where a spring swings over
[[nodiscard]] KeycapLook between(const KeycapLook& from, const KeycapLook& to, double part);
/// Keys with a higher order are painted over those with a lower one.
[[nodiscard]] int stackingOrder(const Keycap& keycap, const KeycapState& state);
inline constexpr int calloutStackingOrder = 200;

/// The light of a mapped key: mint, or orange while a switch pauses it.
[[nodiscard]] Colour keyAccent(bool isActive);

} // namespace tarvin
