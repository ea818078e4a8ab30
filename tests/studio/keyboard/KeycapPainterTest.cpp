#include "studio/keyboard/KeycapPainter.h"

#include "ui/Palette.h"
#include "ui/support/Canvas.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tarvin {

namespace {

using test::Canvas;

constexpr Colour ground{0.05, 0.05, 0.06};
const QRectF box(50, 50, 76, 39);

/// One key on the floor of the well, as large as in a window of the usual size.
Canvas painted(FKey key, const KeycapState& state, const KeycapContent* content = nullptr)
{
    const Keycap& keycap = keycaps[*keycapOf(key)];
    const KeycapLook look = keycapLook(keycap, state);
    return Canvas(
        {200, 140},
        [&](QPainter& painter) {
            paintUnderKeyAtmosphere(painter, box, look);
            paintKeyGlow(painter, keycap, box, look);
            paintKeycap(painter, keycap, box, look, content ? *content : plainContent(keycap));
        },
        2, ground);
}

/// The colour at a height of a vertical gradient.
QColor gradientAt(const Gradient& gradient, double part)
{
    const auto mix = [part](double a, double b) { return static_cast<float>(a + (b - a) * part); };
    return QColor::fromRgbF(mix(gradient.top.red, gradient.bottom.red), mix(gradient.top.green, gradient.bottom.green),
        mix(gradient.top.blue, gradient.bottom.blue));
}

void expectNear(const QColor& actual, const QColor& expected, double tolerance = 0.012)
{
    EXPECT_NEAR(actual.redF(), expected.redF(), tolerance);
    EXPECT_NEAR(actual.greenF(), expected.greenF(), tolerance);
    EXPECT_NEAR(actual.blueF(), expected.blueF(), tolerance);
}

struct FaceRow
{
    const char* name;
    KeycapState state;
    Gradient face;
};

void PrintTo(const FaceRow& row, std::ostream* out)
{
    *out << row.name;
}

class PaintedFace : public testing::TestWithParam<FaceRow>
{ };

} // namespace

TEST_P(PaintedFace, hasItsColoursInTheLowerHalf)
{
    // Where no highlight lies, beside the content.
    const Canvas canvas = painted(FKey::f5, GetParam().state);
    const double shift = GetParam().state.isDepressed ? 1.6 : 0;
    const double scale = keycapLook(keycaps[*keycapOf(FKey::f5)], GetParam().state).scale;
    for (const double part : {0.6, 0.75, 0.85}) {
        const double y = box.center().y() + (box.height() * (part - 0.5) + shift) * scale;
        expectNear(canvas.at(box.left() + 8, y), gradientAt(GetParam().face, part));
    }
}

INSTANTIATE_TEST_SUITE_P(States, PaintedFace,
    testing::Values(FaceRow{"rest", {}, {{0.19, 0.21, 0.23}, {0.12, 0.14, 0.15}}},
        FaceRow{"hovered", {.isHovered = true}, {{0.18, 0.26, 0.26}, {0.12, 0.18, 0.18}}},
        FaceRow{"depressed", {.isDepressed = true}, {{0.13, 0.14, 0.15}, {0.09, 0.10, 0.11}}},
        FaceRow{"customised", {.isCustomized = true}, {{0.11, 0.27, 0.25}, {0.06, 0.16, 0.15}}},
        FaceRow{"paused", {.isCustomized = true, .isActive = false}, {{0.22, 0.18, 0.12}, {0.14, 0.11, 0.08}}}),
    [](const auto& row) { return row.param.name; });

TEST(KeycapPainter, theSelectedFaceIsMint)
{
    const Canvas canvas = painted(FKey::f5, {.isSelected = true, .isCustomized = true});
    expectNear(canvas.at(box.left() + 10, box.center().y() + 3), QColor::fromRgbF(0, 0.87F, 0.66F), 0.04);
}

TEST(KeycapPainter, theRimIsCyanMintOrangeOrWhite)
{
    const auto rim = [](const KeycapState& state) {
        return painted(FKey::f5, state).at(box.left() + 0.5, box.center().y());
    };
    EXPECT_GT(rim({}).greenF(), rim({}).redF() + 0.15);
    EXPECT_LT(rim({}).greenF(), 0.5);
    expectNear(rim({.isCustomized = true}), QColor::fromRgbF(0.0F, 0.9F, 0.68F), 0.04);
    const QColor paused = rim({.isCustomized = true, .isActive = false});
    EXPECT_GT(paused.redF(), 0.9);
    EXPECT_LT(paused.blueF(), 0.12);
    const QColor selected = painted(FKey::f5, {.isSelected = true}).at(box.left() - 0.3, box.center().y());
    EXPECT_GT(selected.redF(), 0.65);
    EXPECT_GT(selected.greenF(), 0.9);
}

TEST(KeycapPainter, theGlowFallsOffAroundTheKey)
{
    const auto green = [](const KeycapState& state, double distance) {
        const QColor colour = painted(FKey::f5, state).at(box.left() - distance, box.center().y());
        return colour.greenF() - colour.redF();
    };
    for (const KeycapState& state : {KeycapState{.isCustomized = true}, KeycapState{.isSelected = true}}) {
        EXPECT_GT(green(state, 3), green(state, 8));
        EXPECT_GT(green(state, 8), green(state, 16));
        EXPECT_GT(green(state, 8), 0.02);
    }
    EXPECT_GT(green({.isSelected = true}, 8), green({.isCustomized = true}, 8));
    EXPECT_LT(green({}, 9), 0.01);
}

TEST(KeycapPainter, theBacklightShinesBesideTheKeyOnlyWhenItIsOn)
{
    const auto light = [](double level) {
        return painted(FKey::f5, {.backlight = level}).at(box.left() - 3, box.center().y()).redF();
    };
    EXPECT_GT(light(1), light(0.35) + 0.02);
    EXPECT_GT(light(0.35), light(0));
    EXPECT_EQ(light(0.05), light(0));
}

TEST(KeycapPainter, theMarkerStandsAtTheCornerOfTheKey)
{
    const QPointF functionMarker = box.center() + QPointF(76 * 0.3, 39 * -0.28);
    const auto mint = [](const QColor& colour) { return colour.greenF() > 0.8 && colour.redF() < 0.15; };
    EXPECT_TRUE(mint(painted(FKey::f5, {.isCustomized = true}).at(functionMarker.x(), functionMarker.y())));
    EXPECT_FALSE(mint(painted(FKey::f5, {}).at(functionMarker.x(), functionMarker.y()))) << "a ring is hollow";
    const QPointF special(box.right() - 5 - 2.25, box.top() + 4.5 + 2.25);
    EXPECT_TRUE(mint(painted(FKey::rightOption, {.isCustomized = true}).at(special.x(), special.y())));
    const QColor orange =
        painted(FKey::f5, {.isCustomized = true, .isActive = false}).at(functionMarker.x(), functionMarker.y());
    EXPECT_GT(orange.redF(), 0.85);
}

TEST(KeycapPainter, theLampOfCapsLockIsDarkInEveryState)
{
    for (const KeycapState& state :
        {KeycapState{}, KeycapState{.isCustomized = true}, KeycapState{.isDepressed = true}}) {
        const double shift = state.isDepressed ? 1.6 : 0;
        EXPECT_LT(painted(FKey::capsLock, state).lightAt(box.left() + 9, box.top() + 8 + shift), 0.5);
    }
}

TEST(KeycapPainter, aLongTitleOnCapsLockStaysOnTheKey)
{
    const Keycap& capsLock = keycaps[*keycapOf(FKey::capsLock)];
    const KeycapContent content =
        customisedContent(capsLock, u"An action with a title that no key has room for", u"bolt.fill");
    const Canvas canvas = painted(FKey::capsLock, {.isCustomized = true}, &content);
    const Canvas blank = painted(FKey::capsLock, {.isCustomized = true});
    int outside = 0;
    for (double x = box.right() - 6; x < 200; x += 0.5) {
        for (double y = box.bottom() - 16; y < box.bottom() - 4; y += 0.5)
            outside += std::abs(canvas.lightAt(x, y) - blank.lightAt(x, y)) > 0.05;
    }
    EXPECT_EQ(outside, 0);
}

TEST(KeycapPainter, aDepressedKeyHasMovedDown)
{
    const auto firstLitRow = [](const KeycapState& state) {
        const Canvas canvas = painted(FKey::f5, state);
        double y = box.top() - 4;
        while (canvas.at(box.center().x() - 20, y).greenF() < 0.25)
            y += 0.5;
        return y;
    };
    EXPECT_GE(firstLitRow({.isDepressed = true}), firstLitRow({}) + 1);
}

} // namespace tarvin
