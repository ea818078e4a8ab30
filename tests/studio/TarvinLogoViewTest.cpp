#include "studio/TarvinLogoView.h"

#include "support/QtPrinters.h"
#include "ui/support/Canvas.h"

#include <gtest/gtest.h>

namespace tarvin {

namespace {

using test::Canvas;

/// The mark in the middle of a square three times as large.
Canvas painted(double size, LogoGlow glow, double scale = 1)
{
    const int side = static_cast<int>(3 * size);
    return Canvas(
        {side, side},
        [&](QPainter& painter) {
            paintTarvinLogo(painter, {size, size, size, size}, glow);
        },
        scale);
}

/// How many pixels outside of the square of the mark are lit.
int litOutside(const Canvas& canvas, double size)
{
    int lit = 0;
    for (double x = 0.5; x < 3 * size; ++x) {
        for (double y = 0.5; y < 3 * size; ++y) {
            const bool isInside = x > size && x < 2 * size && y > size && y < 2 * size;
            lit += !isInside && canvas.lightAt(x, y) > 0;
        }
    }
    return lit;
}

} // namespace

TEST(TarvinLogo, withoutGlowNothingLiesOutsideOfItsSquare)
{
    for (const double size : {16.0, 26.0, 64.0, 256.0})
        EXPECT_EQ(litOutside(painted(size, LogoGlow::none), size), 0) << size;
    EXPECT_GT(litOutside(painted(64, LogoGlow::shining), 64), 1000);
}

TEST(TarvinLogo, atVerySmallSizesItsLinesAndItsDiamondStopShrinking)
{
    // Three quarters down only the two legs are met; a line of a fixed width takes a greater part of a smaller mark.
    const auto inkAcross = [](double size) {
        const Canvas canvas = painted(size, LogoGlow::none, 8);
        int lit = 0;
        for (double x = size * 1.25; x < size * 1.75; x += 0.125)
            lit += canvas.at(x, size * 1.66).greenF() > 0.5;
        return lit * 0.125;
    };
    EXPECT_NEAR(inkAcross(64), 2 * 64 * 0.075, 0.6);
    EXPECT_NEAR(inkAcross(10), 2 * 1.6, 0.5);
    EXPECT_NEAR(inkAcross(16), 2 * 1.6, 0.5);
    const auto diamondHeight = [](double size) {
        const Canvas canvas = painted(size, LogoGlow::none, 8);
        int lit = 0;
        for (double y = size; y < size * 1.5; y += 0.125)
            lit += canvas.at(size * 1.5, y).redF() > 0.5;
        return lit * 0.125;
    };
    EXPECT_NEAR(diamondHeight(64), 64 * 0.14, 0.8);
    EXPECT_NEAR(diamondHeight(12), 3.5, 0.8);
}

TEST(TarvinLogo, aDiamondTouchesTheMiddlesOfItsSides)
{
    const QPainterPath diamond = polygonDiamond({10, 20, 30, 40});
    EXPECT_EQ(diamond.boundingRect(), QRectF(10, 20, 30, 40));
    EXPECT_TRUE(diamond.contains(QPointF(25, 21)));
    EXPECT_FALSE(diamond.contains(QPointF(12, 22)));
    EXPECT_FALSE(diamond.contains(QPointF(38, 58)));
}

TEST(TarvinLogo, theGlyphIsALetterWithABarAcrossIt)
{
    const QPainterPath glyph = quantumCommandGlyph({0, 0, 100, 100});
    ASSERT_EQ(glyph.elementCount(), 7);
    const std::array<QPointF, 7> points{QPointF(14, 96), {14, 4}, {50, 60}, {86, 4}, {86, 96}, {0, 38}, {100, 38}};
    for (int index = 0; index < 7; ++index) {
        EXPECT_NEAR(glyph.elementAt(index).x, points[static_cast<std::size_t>(index)].x(), 1e-9) << index;
        EXPECT_NEAR(glyph.elementAt(index).y, points[static_cast<std::size_t>(index)].y(), 1e-9) << index;
    }
    EXPECT_TRUE(glyph.elementAt(5).isMoveTo());
}

TEST(TarvinLogo, itsPartsHaveTheirColours)
{
    const Canvas canvas = painted(256, LogoGlow::none);
    const auto at = [&](double x, double y) { return canvas.at(256 * (1 + x), 256 * (1 + y)); };
    EXPECT_GT(at(0.5, 0.3).redF(), 0.85) << "the diamond";
    EXPECT_GT(at(0.32, 0.6).greenF(), 0.8) << "the left leg";
    EXPECT_LT(at(0.32, 0.6).redF(), 0.1);
    EXPECT_GT(at(0.68, 0.7).blueF(), at(0.32, 0.35).blueF()) << "from mint to cyan";
    EXPECT_LT(at(0.5, 0.85).valueF(), 0.12) << "the inner plate";
    EXPECT_GT(at(0.2 + 0.033, 0.2).blueF(), 0.5) << "a ring";
    EXPECT_LT(at(0.2, 0.2).blueF(), 0.3) << "its hole";
    EXPECT_GT(at(0.01, 0.5).greenF(), 0.35) << "the rim";
}

TEST(TarvinLogo, theViewHasRoomForTheGlow)
{
    EXPECT_EQ(TarvinLogoView(26, LogoGlow::none).sizeHint(), QSize(26, 26));
    const TarvinLogoView shining(26, LogoGlow::shining);
    EXPECT_GE(shining.margin(), 17);
    EXPECT_EQ(shining.sizeHint().width(), 26 + 2 * shining.margin());
}

} // namespace tarvin
