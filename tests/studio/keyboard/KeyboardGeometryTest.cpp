#include "studio/keyboard/KeyboardGeometry.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tarvin {

namespace {

QRectF boxOf(const KeyboardGeometry& geometry, QStringView id)
{
    for (std::size_t index = 0; index < keycapCount; ++index) {
        if (keycaps[index].id == id)
            return geometry.keycaps[index];
    }
    return {};
}

struct SizeRow
{
    double containerWidth;
    double keyUnit;
    double keyHeight;
};

void PrintTo(const SizeRow& row, std::ostream* out)
{
    *out << row.containerWidth;
}

class KeySizes : public testing::TestWithParam<SizeRow>
{ };

class Rows : public testing::TestWithParam<double>
{ };

} // namespace

TEST_P(KeySizes, followFromTheWidth)
{
    const SizeRow& row = GetParam();
    EXPECT_NEAR(keyUnit(row.containerWidth), row.keyUnit, 0.0005);
    EXPECT_NEAR(keyHeight(keyUnit(row.containerWidth)), row.keyHeight, 0.0005);
}

INSTANTIATE_TEST_SUITE_P(Widths, KeySizes,
    testing::Values(SizeRow{0, 32, 28.16}, SizeRow{320, 32, 28.16}, SizeRow{364, 32, 28.16}, SizeRow{568.75, 32, 28.16},
        SizeRow{583.25, 33, 29.04}, SizeRow{740, 43.81034, 38.55310}, SizeRow{747.4, 44.32069, 39},
        SizeRow{1204, 75.81034, 39}, SizeRow{3784, 253.74138, 39}));

TEST(KeyboardGeometry, aContainerNarrowerThan364CountsAs364)
{
    EXPECT_EQ(keyUnit(100), keyUnit(364));
    EXPECT_EQ(keyUnit(363), 32) << "the floor of the unit, which is above what 320 inner points give";
    const KeyboardGeometry geometry = keyboardGeometry(364);
    EXPECT_GT(geometry.chassis.width(), 364) << "the keyboard overflows its container";
    EXPECT_NEAR(geometry.chassis.width(), 32 * 14.5 + 13.5 * 4.5 + 44, 1e-9);
}

TEST(KeyboardGeometry, keysGrowHigherOnlyUpTo39AndWiderWithoutEnd)
{
    EXPECT_EQ(keyHeight(keyUnit(2000)), 39);
    EXPECT_EQ(keyHeight(keyUnit(4000)), 39);
    EXPECT_GT(keyUnit(4000), keyUnit(2000));
    for (double width = 0; width < 4000; width += 7) {
        EXPECT_GE(keyHeight(keyUnit(width)), 28);
        EXPECT_LE(keyHeight(keyUnit(width)), 39);
    }
}

TEST(KeyboardGeometry, aKeyCoversWhatSingleKeysAndTheirGapsWould)
{
    EXPECT_EQ(keyWidth(40, 1), 40);
    EXPECT_EQ(keyWidth(40, 3), 3 * 40 + 2 * 4.5);
    EXPECT_EQ(keyWidth(40, 1.25), 40 * 1.25 + 4.5 * 0.25);
}

TEST(KeyboardGeometry, aReportedWidthOfAtMost320ChangesNothing)
{
    EXPECT_EQ(followedContainerWidth(740, 320), 740);
    EXPECT_EQ(followedContainerWidth(740, 10), 740);
    EXPECT_EQ(followedContainerWidth(740, 320.5), 320.5);
}

TEST(KeyboardGeometry, aReportedWidthThatDiffersByOneChangesNothing)
{
    EXPECT_EQ(followedContainerWidth(740, 741), 740);
    EXPECT_EQ(followedContainerWidth(740, 739), 740);
    EXPECT_EQ(followedContainerWidth(740, 741.01), 741.01);
}

TEST_P(Rows, areFlushOnBothSides)
{
    const KeyboardGeometry geometry = keyboardGeometry(GetParam());
    const double left = geometry.well.left() + 12;
    const double right = geometry.well.right() - 12;
    for (const QStringView first : {u"esc", u"`", u"tab", u"caps lock", u"shift_left", u"FnGlobe"})
        EXPECT_NEAR(boxOf(geometry, first).left(), left, 1e-9) << first.toString().toStdString();
    for (const QStringView last : {u"touch_id", u"delete", u"\\", u"return", u"shift_right", u"arrow_right"})
        EXPECT_NEAR(boxOf(geometry, last).right(), right, 1e-9) << last.toString().toStdString();
}

TEST_P(Rows, keepTheGapBetweenAllNeighbours)
{
    const KeyboardGeometry geometry = keyboardGeometry(GetParam());
    for (std::size_t index = 1; index < keycapCount; ++index) {
        if (keycaps[index].row != keycaps[index - 1].row || keycaps[index].kind == KeycapKind::arrow)
            continue;
        EXPECT_NEAR(geometry.keycaps[index].left() - geometry.keycaps[index - 1].right(), 4.5, 1e-9) << index;
        EXPECT_NEAR(geometry.keycaps[index].height(), geometry.keyHeight, 1e-9);
    }
    const auto tops = {u"esc", u"`", u"tab", u"caps lock", u"shift_left", u"FnGlobe"};
    double expected = geometry.well.top() + 12;
    for (const QStringView id : tops) {
        EXPECT_NEAR(boxOf(geometry, id).top(), expected, 1e-9);
        expected += geometry.keyHeight + 4.5;
    }
    EXPECT_NEAR(geometry.well.bottom(), expected - 4.5 + 12, 1e-9);
}

TEST_P(Rows, endInTheArrowCluster)
{
    const KeyboardGeometry geometry = keyboardGeometry(GetParam());
    const double half = (geometry.keyHeight - 4.5) * 0.5;
    const QRectF up = boxOf(geometry, u"arrow_up");
    const QRectF down = boxOf(geometry, u"arrow_down");
    const QRectF left = boxOf(geometry, u"arrow_left");
    const QRectF right = boxOf(geometry, u"arrow_right");
    EXPECT_NEAR(left.left() - boxOf(geometry, u"RightOption").right(), 4.5, 1e-9);
    EXPECT_NEAR(right.right() - left.left(), keyWidth(geometry.keyUnit, 3), 1e-9);
    EXPECT_EQ(up.left(), down.left());
    EXPECT_NEAR(down.left() - left.right(), 4.5, 1e-9);
    for (const QRectF& box : {up, down, left, right}) {
        EXPECT_NEAR(box.height(), half, 1e-9);
        EXPECT_NEAR(box.width(), geometry.keyUnit, 1e-9);
    }
    EXPECT_NEAR(down.top() - up.bottom(), 4.5, 1e-9);
    EXPECT_NEAR(down.bottom(), boxOf(geometry, u"space").bottom(), 1e-9);
    EXPECT_EQ(left.top(), down.top());
    EXPECT_EQ(right.top(), down.top());
}

INSTANTIATE_TEST_SUITE_P(Widths, Rows, testing::Values(364.0, 740.0, 1124.0, 1204.0, 3784.0));

TEST(KeyboardGeometry, theChassisHoldsHeaderAndWell)
{
    const KeyboardGeometry geometry = keyboardGeometry(1204);
    EXPECT_NEAR(geometry.chassis.height(), 12 + 13.2 + 10 + (24 + 6 * 39 + 5 * 4.5) + 12, 1e-9);
    EXPECT_EQ(geometry.chassis.topLeft(), QPointF(0, 0));
    EXPECT_EQ(geometry.well.left(), 10);
    EXPECT_NEAR(geometry.chassis.right() - geometry.well.right(), 10, 1e-9);
    EXPECT_NEAR(geometry.chassis.bottom() - geometry.well.bottom(), 12, 1e-9);
    EXPECT_EQ(geometry.headerDot.left(), 18);
    EXPECT_NEAR(geometry.speakerSlot.center().x(), 602, 1e-9);
    EXPECT_EQ(geometry.speakerSlot.size(), QSizeF(72, 4.5));
    EXPECT_NEAR(geometry.headerMark.x() + 6.6, 1204 - 18, 1e-9);
}

} // namespace tarvin
