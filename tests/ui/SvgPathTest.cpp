#include "ui/SvgPath.h"

#include <gtest/gtest.h>

namespace tarvin {

namespace {

QRectF boxOf(const char16_t* data)
{
    return pathFromSvg(data).boundingRect();
}

} // namespace

TEST(SvgPath, linesAbsoluteAndRelativeMeanTheSame)
{
    EXPECT_EQ(pathFromSvg(u"M10,20L30,20L30,50Z"), pathFromSvg(u"m10 20l20 0l0 30z"));
    EXPECT_EQ(pathFromSvg(u"M10,20H30V50Z"), pathFromSvg(u"M10,20h20v30z"));
}

TEST(SvgPath, furtherPointsOfAMoveAreLines)
{
    EXPECT_EQ(pathFromSvg(u"M1,2 3,4 5,6"), pathFromSvg(u"M1,2L3,4L5,6"));
    EXPECT_EQ(pathFromSvg(u"m1,2 3,4"), pathFromSvg(u"M1,2L4,6"));
}

TEST(SvgPath, numbersNeedNothingButASignOrAPointBetweenThem)
{
    EXPECT_EQ(pathFromSvg(u"M1-2L.5.25"), pathFromSvg(u"M1,-2L0.5,0.25"));
    EXPECT_EQ(pathFromSvg(u"M1e1,2E-1L3,4"), pathFromSvg(u"M10,0.2L3,4"));
}

TEST(SvgPath, twoHalfCirclesAreADisc)
{
    const QPainterPath disc = pathFromSvg(u"M28,128A100,100,0,0,1,228,128A100,100,0,0,1,28,128Z");
    for (const QPointF inside : {QPointF(128, 30), QPointF(58.5, 58.5), QPointF(197.5, 197.5)})
        EXPECT_TRUE(disc.contains(inside)) << inside.x();
    for (const QPointF outside : {QPointF(128, 26), QPointF(56, 56), QPointF(200, 200)})
        EXPECT_FALSE(disc.contains(outside)) << outside.x();
}

TEST(SvgPath, theFlagsOfAnArcChooseItsSideAndItsLength)
{
    const auto top = [](const char16_t* data) { return boxOf(data).top(); };
    EXPECT_NEAR(top(u"M0,0A10,10,0,0,1,20,0"), -10, 0.1) << "over the top";
    EXPECT_NEAR(top(u"M0,0A10,10,0,0,0,20,0"), 0, 0.1) << "below";
    EXPECT_NEAR(boxOf(u"M0,0A10,10 0 1110,10").height(), 20, 0.1) << "three quarters, flags without separators";
    EXPECT_NEAR(boxOf(u"M0,0A10,10 0 0110,10").height(), 10, 0.1);
}

TEST(SvgPath, radiiTooSmallToReachAreEnlarged)
{
    EXPECT_NEAR(boxOf(u"M0,0A1,1,0,0,1,20,0").height(), 10, 0.1);
}

TEST(SvgPath, smoothCurvesMirrorTheHandleBefore)
{
    EXPECT_EQ(
        pathFromSvg(u"M0,0C0,10,10,10,10,0S20,-10,20,0"), pathFromSvg(u"M0,0C0,10,10,10,10,0C10,-10,20,-10,20,0"));
    EXPECT_EQ(pathFromSvg(u"M0,0Q5,10,10,0T20,0"), pathFromSvg(u"M0,0Q5,10,10,0Q15,-10,20,0"));
}

TEST(SvgPath, whatIsNoPathEndsIt)
{
    EXPECT_TRUE(pathFromSvg(u"").isEmpty());
    EXPECT_EQ(pathFromSvg(u"M0,0L1,1X5,5L9,9"), pathFromSvg(u"M0,0L1,1"));
}

} // namespace tarvin
