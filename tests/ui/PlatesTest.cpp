#include "ui/Plates.h"

#include "ui/Palette.h"
#include "ui/support/Canvas.h"

#include <gtest/gtest.h>

namespace tarvin {

TEST(Plates, aContinuousCornerCutsTheSameMiddleAsARoundOne)
{
    const QPainterPath path = continuousRectangle({0, 0, 200, 100}, 20);
    EXPECT_EQ(path.boundingRect(), QRectF(0, 0, 200, 100));
    // A round corner passes the diagonal at radius * (1 - sqrt(1/2)).
    EXPECT_FALSE(path.contains(QPointF(5, 5)));
    EXPECT_TRUE(path.contains(QPointF(6.5, 6.5)));
    for (const QPointF corner : {QPointF(195, 5), QPointF(195, 95), QPointF(5, 95)})
        EXPECT_FALSE(path.contains(corner));
    EXPECT_FALSE(path.contains(QPointF(22, 0.05))) << "it begins before a round one would";
}

TEST(Plates, aContinuousCornerTooLargeForItsSideGetsTighter)
{
    const QPainterPath path = continuousRectangle({0, 0, 20, 20}, 50);
    EXPECT_EQ(path.boundingRect(), QRectF(0, 0, 20, 20));
    EXPECT_TRUE(path.contains(QPointF(10, 0.5)));
}

TEST(Plates, aStrokeLiesWithinItsBox)
{
    const test::Canvas canvas({30, 30}, [](QPainter& painter) {
        strokePlate(painter, {5, 5, 20, 20}, 0, 2, palette::white);
    });
    EXPECT_EQ(canvas.lightAt(15, 4), 0);
    EXPECT_GT(canvas.lightAt(15, 5), 0.9);
    EXPECT_GT(canvas.lightAt(15, 6), 0.9);
    EXPECT_EQ(canvas.lightAt(15, 7), 0);
}

} // namespace tarvin
