#include "ui/Shadows.h"

#include "ui/Palette.h"
#include "ui/support/Canvas.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarvin {

namespace {

using test::Canvas;

Canvas glow(const QSizeF& size, double sigma, double scale = 1)
{
    return Canvas(
        {400, 400},
        [&](QPainter& painter) {
            drawShadow(painter, {{100, 100}, size}, {.colour = palette::white, .sigma = sigma, .cornerRadius = 6});
        },
        scale);
}

/// A blurred straight edge, @p distance within it.
double edge(double distance, double sigma)
{
    return 0.5 * (1 + std::erf(distance / sigma / std::sqrt(2)));
}

class ShadowAtScale : public testing::TestWithParam<double>
{ };

} // namespace

TEST_P(ShadowAtScale, fallsOffAsAGaussianDoes)
{
    for (const double sigma : {2.5, 6.0, 10.0, 26.0}) {
        const Canvas canvas = glow({200, 200}, sigma, GetParam());
        for (const double distance : {-1.5, -0.5, 0.0, 0.5, 1.0}) {
            const double y = 100 + distance * sigma;
            const double pixelMiddle = (std::floor(y * GetParam()) + 0.5) / GetParam() - 100;
            EXPECT_NEAR(canvas.lightAt(200, y), edge(pixelMiddle, sigma), 0.02) << sigma << " " << distance;
        }
        EXPECT_LT(canvas.lightAt(200, 100 - 3.2 * sigma), 0.005) << sigma;
    }
}

TEST_P(ShadowAtScale, hasNoSeamWhereItIsStretched)
{
    const Canvas canvas = glow({200, 180}, 4, GetParam());
    for (int x = 130; x < 270; ++x) {
        EXPECT_NEAR(canvas.lightAt(x, 98), canvas.lightAt(200, 98), 0.005) << x;
        EXPECT_NEAR(canvas.lightAt(x, 190), 1, 0.005) << x;
    }
    for (int y = 130; y < 250; ++y)
        EXPECT_NEAR(canvas.lightAt(98, y), canvas.lightAt(98, 190), 0.005) << y;
}

TEST_P(ShadowAtScale, isTheSameOnBothSides)
{
    const Canvas canvas = glow({80, 38}, 6, GetParam());
    for (int x = 85; x < 140; ++x)
        EXPECT_NEAR(canvas.lightAt(x + 0.25, 119), canvas.lightAt(279.75 - x, 119), 0.02) << x;
}

INSTANTIATE_TEST_SUITE_P(Scales, ShadowAtScale, testing::Values(1.0, 1.25, 2.0));

TEST(Shadows, aClearColourDrawsNothing)
{
    const Canvas canvas({20, 20}, [](QPainter& painter) {
        drawShadow(painter, {5, 5, 10, 10}, {.colour = palette::white.at(0), .sigma = 3, .cornerRadius = 2});
    });
    EXPECT_EQ(canvas.at(10, 10), QColor(Qt::black));
}

} // namespace tarvin
