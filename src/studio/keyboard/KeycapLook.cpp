#include "studio/keyboard/KeycapLook.h"

#include "ui/Palette.h"

namespace tarvin {

namespace {

using palette::black;
using palette::mintTeal;
using palette::white;

constexpr Gradient customisedFace{{0.11, 0.27, 0.25}, {0.06, 0.16, 0.15}};
constexpr Gradient pausedFace{{0.22, 0.18, 0.12}, {0.14, 0.11, 0.08}};
constexpr Gradient selectedFace{mintTeal, mintTeal.at(0.85)};
constexpr Gradient depressedFace{{0.13, 0.14, 0.15}, {0.09, 0.10, 0.11}};

struct PlainFaces
{
    Gradient rest;
    Gradient hovered;
    Gradient depressed;
};
constexpr PlainFaces liveFaces{
    {{0.19, 0.21, 0.23}, {0.12, 0.14, 0.15}}, {{0.18, 0.26, 0.26}, {0.12, 0.18, 0.18}}, depressedFace};
constexpr PlainFaces standardFaces{
    {{0.20, 0.21, 0.23}, {0.13, 0.14, 0.15}}, {{0.26, 0.27, 0.30}, {0.17, 0.18, 0.20}}, depressedFace};
constexpr PlainFaces touchIDFaces{{{0.14, 0.14, 0.16}, {0.09, 0.09, 0.10}}, {{0.18, 0.18, 0.20}, {0.12, 0.12, 0.10}},
    {{0.10, 0.10, 0.11}, {0.07, 0.07, 0.10}}};

constexpr Colour capsLockLamp{0.19, 0.84, 0.38};
constexpr Colour clear = black.at(0);
/// Below this the drawn light is off.
constexpr double darkest = 0.05;

/// How a key gives way: how far its slab and its face are shifted down.
struct Travel
{
    double slabAtRest;
    double slabDepressed;
    double faceDepressed;
};
constexpr Travel fullTravel{1.8, 0.4, 1.6};
constexpr Travel arrowTravel{1.5, 0.3, 1.4};

struct Rim
{
    Colour colour;
    double width = 0;
    int order = 0;
};

Rim liveRim(const KeycapState& state)
{
    if (state.isSelected)
        return {white.at(0.7), 1.8, 100};
    if (state.isCustomized)
        return {keyAccent(state.isActive).at(0.95), 1.4, 1};
    if (state.isHovered)
        return {mintTeal.at(0.75), 1.2, 1};
    return {mintTeal.at(0.35), 0.9, 1};
}

Gradient liveFace(const KeycapState& state)
{
    if (state.isSelected)
        return selectedFace;
    if (state.isCustomized)
        return state.isActive ? customisedFace : pausedFace;
    if (state.isDepressed)
        return liveFaces.depressed;
    return state.isHovered ? liveFaces.hovered : liveFaces.rest;
}

double liveScale(const KeycapState& state)
{
    if (state.isDepressed)
        return 0.98;
    if (state.isSelected)
        return 1.03;
    return state.isHovered ? 1.02 : 1.0;
}

void addGlow(KeycapLook& look, const KeycapState& state)
{
    if (state.isSelected) {
        look.glow = mintTeal.at(0.65);
        look.glowRadius = 10;
    } else if (state.isCustomized) {
        look.glow = keyAccent(state.isActive).at(0.35);
        look.glowRadius = 6;
    } else if (state.isHovered) {
        look.glow = mintTeal.at(0.4);
        look.glowRadius = 6;
    } else {
        look.glow = mintTeal.at(0.12);
        look.glowRadius = 2.5;
    }
}

void addMarker(KeycapLook& look, const KeycapState& state)
{
    const Colour accent = keyAccent(state.isActive);
    look.markerDisc = state.isCustomized ? accent.at(0.95) : accent.at(0);
    look.markerGlow = state.isCustomized ? accent.at(0.95) : accent.at(0);
    look.markerRing = state.isCustomized ? mintTeal.at(0) : mintTeal.at(state.isHovered ? 0.85 : 0.45);
}

/// Icon and name of F1 to F12.
void addFunctionContent(KeycapLook& look, const KeycapState& state)
{
    const double light = state.backlight;
    const Colour accent = keyAccent(state.isActive);
    look.iconShadow = black.at(0.6);
    look.iconShadowRadius = 3;
    if (state.isSelected) {
        look.icon = look.label = black.at(0.85);
    } else if (state.isCustomized) {
        look.icon = accent;
        look.label = accent.at(0.9);
    } else {
        look.icon = white.at(light * 0.32 + 0.68);
        look.label = white.at(light * 0.35 + 0.5);
        look.iconShadow = white.at(light * 0.3);
        look.iconShadowRadius = 1;
    }
}

void addCapsLockContent(KeycapLook& look, const KeycapState& state)
{
    look.label = state.isSelected ? black : white.at(state.backlight * 0.35 + 0.55);
    look.icon = state.isSelected ? black.at(0.85) : keyAccent(state.isActive).at(0.95);
    look.lamp = state.isCustomized ? capsLockLamp.at(0.35) : white.at(0.12);
}

void addSpecialContent(KeycapLook& look, const KeycapState& state)
{
    if (state.isSelected)
        look.icon = look.label = black.at(0.85);
    else if (state.isCustomized)
        look.icon = look.label = keyAccent(state.isActive);
}

Gradient plainFace(const Keycap& keycap, const KeycapState& state)
{
    const PlainFaces& faces = keycap.kind == KeycapKind::touchID ? touchIDFaces : standardFaces;
    if (state.isHovered)
        return faces.hovered;
    return state.isDepressed ? faces.depressed : faces.rest;
}

double mixed(double from, double to, double part)
{
    return from + (to - from) * part;
}

Gradient mixed(const Gradient& from, const Gradient& to, double part)
{
    return {tarvin::mixed(from.top, to.top, part), tarvin::mixed(from.bottom, to.bottom, part)};
}

} // namespace

Colour keyAccent(bool isActive)
{
    return isActive ? mintTeal : palette::orange.at(0.85);
}

KeycapLook keycapLook(const Keycap& keycap, const KeycapState& state)
{
    KeycapLook look;
    const double light = state.backlight;
    const Travel& travel = keycap.kind == KeycapKind::arrow ? arrowTravel : fullTravel;
    look.slabShift = state.isDepressed ? travel.slabDepressed : travel.slabAtRest;
    look.faceShift = state.isDepressed ? travel.faceDepressed : 0;
    look.highlight = 0.04;
    look.shadowOpacity = state.isDepressed ? 0.35 : 0.7;
    look.shadowRadius = state.isDepressed ? 0.8 : 2.2;
    look.shadowShift = state.isDepressed ? 1.0 : 2.5;
    look.backlight = light > darkest ? light * (state.isDepressed ? 0.08 : 0.16) : 0;
    look.icon = look.label = white.at(light * 0.38 + 0.62);
    look.subLabel = white.at(light * 0.3 + 0.45);
    look.nub = white.at(light * 0.25 + 0.4);
    look.iconShadow = look.glow = look.markerDisc = look.markerGlow = look.markerRing = look.lamp = clear;
    if (keycap.kind == KeycapKind::arrow)
        look.icon = white.at(light * 0.32 + 0.68);

    if (!keycap.key) {
        look.face = plainFace(keycap, state);
        look.rim = {white.at(state.isDepressed ? 0.07 : 0.2), white.at(0.02)};
        look.rimWidth = 0.75;
        return look;
    }
    look.face = liveFace(state);
    const Rim rim = liveRim(state);
    look.rim = {rim.colour, rim.colour};
    look.rimWidth = rim.width;
    look.scale = liveScale(state);
    addGlow(look, state);
    addMarker(look, state);
    if (keycap.kind == KeycapKind::heroFunction) {
        addFunctionContent(look, state);
    } else if (keycap.kind == KeycapKind::capsLock) {
        addCapsLockContent(look, state);
        // The icon of its action stands where the disc would.
        look.markerDisc = look.markerGlow = clear;
    } else {
        addSpecialContent(look, state);
    }
    return look;
}

KeycapLook between(const KeycapLook& from, const KeycapLook& to, double part)
{
    KeycapLook look;
    look.face = mixed(from.face, to.face, part);
    look.highlight = mixed(from.highlight, to.highlight, part);
    look.rim = mixed(from.rim, to.rim, part);
    look.rimWidth = mixed(from.rimWidth, to.rimWidth, part);
    look.slabShift = mixed(from.slabShift, to.slabShift, part);
    look.faceShift = mixed(from.faceShift, to.faceShift, part);
    look.scale = mixed(from.scale, to.scale, part);
    look.glow = tarvin::mixed(from.glow, to.glow, part);
    look.glowRadius = mixed(from.glowRadius, to.glowRadius, part);
    look.shadowOpacity = mixed(from.shadowOpacity, to.shadowOpacity, part);
    look.shadowRadius = mixed(from.shadowRadius, to.shadowRadius, part);
    look.shadowShift = mixed(from.shadowShift, to.shadowShift, part);
    look.backlight = mixed(from.backlight, to.backlight, part);
    look.icon = tarvin::mixed(from.icon, to.icon, part);
    look.label = tarvin::mixed(from.label, to.label, part);
    look.subLabel = tarvin::mixed(from.subLabel, to.subLabel, part);
    look.nub = tarvin::mixed(from.nub, to.nub, part);
    look.iconShadow = tarvin::mixed(from.iconShadow, to.iconShadow, part);
    look.iconShadowRadius = mixed(from.iconShadowRadius, to.iconShadowRadius, part);
    look.markerDisc = tarvin::mixed(from.markerDisc, to.markerDisc, part);
    look.markerGlow = tarvin::mixed(from.markerGlow, to.markerGlow, part);
    look.markerRing = tarvin::mixed(from.markerRing, to.markerRing, part);
    look.lamp = tarvin::mixed(from.lamp, to.lamp, part);
    return look;
}

int stackingOrder(const Keycap& keycap, const KeycapState& state)
{
    return keycap.key ? liveRim(state).order : 0;
}

} // namespace tarvin
