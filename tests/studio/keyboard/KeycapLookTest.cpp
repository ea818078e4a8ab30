#include "studio/keyboard/KeycapLook.h"

#include "ui/Palette.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tarvin {

namespace {

using palette::mintTeal;
using palette::orange;
using palette::white;

const Keycap& keycapNamed(QStringView id)
{
    for (const Keycap& keycap : keycaps) {
        if (keycap.id == id)
            return keycap;
    }
    throw std::invalid_argument("no such keycap");
}

KeycapLook lookOf(QStringView id, const KeycapState& state)
{
    return keycapLook(keycapNamed(id), state);
}

constexpr Gradient liveRest{{0.19, 0.21, 0.23}, {0.12, 0.14, 0.15}};
constexpr Gradient liveHovered{{0.18, 0.26, 0.26}, {0.12, 0.18, 0.18}};
constexpr Gradient depressed{{0.13, 0.14, 0.15}, {0.09, 0.10, 0.11}};
constexpr Gradient customised{{0.11, 0.27, 0.25}, {0.06, 0.16, 0.15}};
constexpr Gradient paused{{0.22, 0.18, 0.12}, {0.14, 0.11, 0.08}};
constexpr Gradient selected{mintTeal, mintTeal.at(0.85)};
constexpr Gradient standardRest{{0.20, 0.21, 0.23}, {0.13, 0.14, 0.15}};
constexpr Gradient standardHovered{{0.26, 0.27, 0.30}, {0.17, 0.18, 0.20}};

struct LiveRow
{
    KeycapState state;
    Gradient face;
    Colour rim;
    double rimWidth;
    int order;
    double scale;
    Colour glow;
    double glowRadius;
};

void PrintTo(const LiveRow& row, std::ostream* out)
{
    const KeycapState& state = row.state;
    *out << (state.isSelected ? "selected " : "") << (state.isCustomized ? "customised " : "")
         << (state.isActive ? "" : "paused ") << (state.isHovered ? "hovered " : "")
         << (state.isDepressed ? "depressed " : "") << "key";
}

class LiveKey : public testing::TestWithParam<LiveRow>
{ };

} // namespace

TEST_P(LiveKey, looksAsItsStateSays)
{
    const LiveRow& row = GetParam();
    for (const QStringView id : {u"F5", u"caps lock", u"FnGlobe", u"RightCommand", u"RightOption"}) {
        const KeycapLook look = lookOf(id, row.state);
        EXPECT_EQ(look.face, row.face);
        EXPECT_EQ(look.rim, (Gradient{row.rim, row.rim}));
        EXPECT_EQ(look.rimWidth, row.rimWidth);
        EXPECT_EQ(stackingOrder(keycapNamed(id), row.state), row.order);
        EXPECT_EQ(look.scale, row.scale);
        EXPECT_EQ(look.glow, row.glow);
        EXPECT_EQ(look.glowRadius, row.glowRadius);
        EXPECT_EQ(look.highlight, 0.04);
    }
}

INSTANTIATE_TEST_SUITE_P(States, LiveKey,
    testing::Values(LiveRow{{}, liveRest, mintTeal.at(0.35), 0.9, 1, 1.0, mintTeal.at(0.12), 2.5},
        LiveRow{{.isHovered = true}, liveHovered, mintTeal.at(0.75), 1.2, 1, 1.02, mintTeal.at(0.4), 6},
        LiveRow{{.isDepressed = true}, depressed, mintTeal.at(0.35), 0.9, 1, 0.98, mintTeal.at(0.12), 2.5},
        LiveRow{
            {.isHovered = true, .isDepressed = true}, depressed, mintTeal.at(0.75), 1.2, 1, 0.98, mintTeal.at(0.4), 6},
        LiveRow{{.isCustomized = true}, customised, mintTeal.at(0.95), 1.4, 1, 1.0, mintTeal.at(0.35), 6},
        LiveRow{{.isHovered = true, .isCustomized = true}, customised, mintTeal.at(0.95), 1.4, 1, 1.02,
            mintTeal.at(0.35), 6},
        LiveRow{{.isCustomized = true, .isActive = false}, paused, orange.at(0.95), 1.4, 1, 1.0, orange.at(0.35), 6},
        LiveRow{{.isSelected = true}, selected, white.at(0.7), 1.8, 100, 1.03, mintTeal.at(0.65), 10},
        LiveRow{{.isDepressed = true, .isSelected = true}, selected, white.at(0.7), 1.8, 100, 0.98, mintTeal.at(0.65),
            10}));

TEST(KeycapLook, aKeyThatIsCustomisedAndSelectedShowsTheSelectedFace)
{
    EXPECT_EQ(lookOf(u"F5", {.isSelected = true, .isCustomized = true}).face, selected);
    EXPECT_EQ(lookOf(u"F5", {.isSelected = true, .isCustomized = true, .isActive = false}).face, selected);
}

TEST(KeycapLook, thePausedAccentIsOrange)
{
    EXPECT_EQ(keyAccent(true), mintTeal);
    EXPECT_EQ(keyAccent(false), orange.at(0.85));
    EXPECT_EQ(lookOf(u"F5", {.isCustomized = true, .isActive = false}).icon, orange.at(0.85));
}

TEST(KeycapLook, aStandardKeyUnderThePointerAndPressedShowsTheHoveredFaceButMoves)
{
    const KeycapLook look = lookOf(u"A", {.isHovered = true, .isDepressed = true});
    EXPECT_EQ(look.face, standardHovered);
    EXPECT_EQ(look.faceShift, 1.6);
    EXPECT_EQ(look.slabShift, 0.4);
    EXPECT_EQ(look.rim.top, white.at(0.07));
}

TEST(KeycapLook, standardKeysAndTheSpaceBarAndArrowsShareTheirFaces)
{
    for (const QStringView id : {u"A", u"esc", u"space", u"arrow_up", u"return"}) {
        EXPECT_EQ(lookOf(id, {}).face, standardRest);
        EXPECT_EQ(lookOf(id, {.isHovered = true}).face, standardHovered);
        EXPECT_EQ(lookOf(id, {.isDepressed = true}).face, depressed);
        EXPECT_EQ(lookOf(id, {}).rim, (Gradient{white.at(0.2), white.at(0.02)}));
        EXPECT_EQ(lookOf(id, {}).rimWidth, 0.75);
        EXPECT_EQ(lookOf(id, {}).scale, 1);
        EXPECT_EQ(lookOf(id, {}).glow.opacity, 0);
        EXPECT_EQ(stackingOrder(keycapNamed(id), {}), 0);
    }
}

TEST(KeycapLook, theTouchIDKeyKeepsTheBlueOfItsLowerEdge)
{
    EXPECT_EQ(lookOf(u"touch_id", {}).face, (Gradient{{0.14, 0.14, 0.16}, {0.09, 0.09, 0.10}}));
    EXPECT_EQ(lookOf(u"touch_id", {.isHovered = true}).face, (Gradient{{0.18, 0.18, 0.20}, {0.12, 0.12, 0.10}}));
    EXPECT_EQ(lookOf(u"touch_id", {.isDepressed = true}).face, (Gradient{{0.10, 0.10, 0.11}, {0.07, 0.07, 0.10}}));
}

TEST(KeycapLook, arrowKeysTravelLess)
{
    EXPECT_EQ(lookOf(u"arrow_up", {}).slabShift, 1.5);
    EXPECT_EQ(lookOf(u"arrow_up", {.isDepressed = true}).slabShift, 0.3);
    EXPECT_EQ(lookOf(u"arrow_up", {.isDepressed = true}).faceShift, 1.4);
    EXPECT_EQ(lookOf(u"A", {}).slabShift, 1.8);
    EXPECT_EQ(lookOf(u"F5", {.isDepressed = true}).faceShift, 1.6);
}

TEST(KeycapLook, withABacklightUpToAFiveHundredthNoGlowIsDrawnAndAboveItGrows)
{
    EXPECT_EQ(lookOf(u"A", {.backlight = 0}).backlight, 0);
    EXPECT_EQ(lookOf(u"A", {.backlight = 0.05}).backlight, 0);
    EXPECT_NEAR(lookOf(u"A", {.backlight = 0.06}).backlight, 0.0096, 1e-9);
    EXPECT_NEAR(lookOf(u"A", {.backlight = 1}).backlight, 0.16, 1e-9);
    EXPECT_NEAR(lookOf(u"A", {.isDepressed = true, .backlight = 1}).backlight, 0.08, 1e-9);
}

TEST(KeycapLook, theShadowUnderAKeyShrinksAsItGoesDown)
{
    EXPECT_EQ(lookOf(u"A", {}).shadowOpacity, 0.7);
    EXPECT_EQ(lookOf(u"A", {}).shadowRadius, 2.2);
    EXPECT_EQ(lookOf(u"A", {}).shadowShift, 2.5);
    EXPECT_EQ(lookOf(u"A", {.isDepressed = true}).shadowOpacity, 0.35);
    EXPECT_EQ(lookOf(u"A", {.isDepressed = true}).shadowRadius, 0.8);
    EXPECT_EQ(lookOf(u"A", {.isDepressed = true}).shadowShift, 1.0);
}

TEST(KeycapLook, theBacklightLiftsTheLabels)
{
    const auto opacity = [](double level, QStringView id) { return lookOf(id, {.backlight = level}).label.opacity; };
    EXPECT_NEAR(opacity(0, u"A"), 0.62, 1e-9);
    EXPECT_NEAR(opacity(1, u"A"), 1, 1e-9);
    EXPECT_NEAR(opacity(0.5, u"F5"), 0.675, 1e-9);
    EXPECT_NEAR(opacity(1, u"caps lock"), 0.9, 1e-9);
    EXPECT_NEAR(lookOf(u"1", {.backlight = 1}).subLabel.opacity, 0.75, 1e-9);
    EXPECT_NEAR(lookOf(u"arrow_up", {.backlight = 0}).icon.opacity, 0.68, 1e-9);
    EXPECT_NEAR(lookOf(u"F5", {.backlight = 0.5}).iconShadow.opacity, 0.15, 1e-9);
    EXPECT_EQ(lookOf(u"F5", {.backlight = 0.5}).iconShadowRadius, 1);
    EXPECT_NEAR(lookOf(u"F", {.backlight = 0.4}).nub.opacity, 0.5, 1e-9);
}

TEST(KeycapLook, aFunctionKeysContentIsBlackWhenSelectedAndTheAccentWhenCustomised)
{
    const KeycapLook chosen = lookOf(u"F5", {.isSelected = true, .isCustomized = true});
    EXPECT_EQ(chosen.icon, palette::black.at(0.85));
    EXPECT_EQ(chosen.label, palette::black.at(0.85));
    const KeycapLook mapped = lookOf(u"F5", {.isCustomized = true});
    EXPECT_EQ(mapped.icon, mintTeal);
    EXPECT_EQ(mapped.label, mintTeal.at(0.9));
    for (const KeycapLook& look : {chosen, mapped}) {
        EXPECT_EQ(look.iconShadow, palette::black.at(0.6));
        EXPECT_EQ(look.iconShadowRadius, 3);
    }
}

TEST(KeycapLook, theMarkerIsADiscOnACustomisedKeyAndARingOnOthers)
{
    EXPECT_EQ(lookOf(u"F5", {.isCustomized = true}).markerDisc, mintTeal.at(0.95));
    EXPECT_EQ(lookOf(u"F5", {.isCustomized = true}).markerRing.opacity, 0);
    EXPECT_EQ(lookOf(u"RightOption", {.isCustomized = true, .isActive = false}).markerDisc, orange.at(0.95));
    EXPECT_EQ(lookOf(u"F5", {}).markerDisc.opacity, 0);
    EXPECT_EQ(lookOf(u"F5", {}).markerRing, mintTeal.at(0.45));
    EXPECT_EQ(lookOf(u"F5", {.isHovered = true}).markerRing, mintTeal.at(0.85));
    EXPECT_EQ(lookOf(u"A", {}).markerRing.opacity, 0);
}

TEST(KeycapLook, theCapsLockLampNeverLights)
{
    for (const bool isDepressed : {false, true}) {
        EXPECT_EQ(lookOf(u"caps lock", {.isDepressed = isDepressed}).lamp, white.at(0.12));
        EXPECT_EQ(lookOf(u"caps lock", {.isDepressed = isDepressed, .isCustomized = true}).lamp,
            (Colour{0.19, 0.84, 0.38, 0.35}));
    }
}

TEST(KeycapLook, turnsIntoAnotherLookWithoutAJump)
{
    const KeycapLook from = lookOf(u"F5", {});
    const KeycapLook to = lookOf(u"F5", {.isSelected = true});
    EXPECT_EQ(between(from, to, 0), from);
    EXPECT_EQ(between(from, to, 1), to);
    EXPECT_NEAR(between(from, to, 0.5).scale, 1.015, 1e-9);
    EXPECT_NEAR(between(from, to, 0.5).glowRadius, 6.25, 1e-9);
    EXPECT_LE(between(from, to, 1.2).face.top.green, 1) << "a spring that swings over makes no colour that isn't one";
    EXPECT_GT(between(from, to, 1.2).scale, to.scale);
}

} // namespace tarvin
