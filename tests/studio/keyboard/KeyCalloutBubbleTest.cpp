#include "studio/keyboard/KeyCalloutBubble.h"

#include "support/QtPrinters.h"
#include "ui/Palette.h"
#include "ui/support/Canvas.h"

#include <gtest/gtest.h>

namespace tarvin {

namespace {

const QRectF key(100, 100, 76, 39);
const KeyCalloutBubble oneLine{{QStringLiteral("Mute audio")}};
const KeyCalloutBubble twoLines{{QStringLiteral("Clipboard"), QStringLiteral("History HUD")}};

} // namespace

TEST(KeyCalloutBubble, standsInTheMiddleAboveItsKey)
{
    for (const KeyCalloutBubble& callout : {oneLine, twoLines}) {
        const QRectF box = callout.bubble(key);
        EXPECT_NEAR(box.center().x(), key.center().x(), 1e-9);
        EXPECT_LT(box.bottom(), key.top() - 4);
        EXPECT_TRUE(callout.reach(key).contains(box));
    }
}

TEST(KeyCalloutBubble, growsByALineEach)
{
    EXPECT_NEAR(twoLines.bubble(key).height() - oneLine.bubble(key).height(), 12.8, 1e-9);
    EXPECT_NEAR(oneLine.bubble(key).height(), 12.8 + 12, 1e-9);
    EXPECT_GT(twoLines.bubble(key).width(), oneLine.bubble(key).width());
}

TEST(KeyCalloutBubble, isMintWithABlackDotBeforeEachLineAndPointsAtTheKey)
{
    const test::Canvas canvas(
        {300, 200}, [](QPainter& painter) { twoLines.paint(painter, key, 1); }, 2);
    const QRectF box = twoLines.bubble(key);
    const auto expectMint = [&](double x, double y) {
        EXPECT_NEAR(canvas.at(x, y).greenF(), 0.94, 0.01);
        EXPECT_NEAR(canvas.at(x, y).blueF(), 0.71, 0.01);
    };
    expectMint(box.left() + 4, box.center().y());
    expectMint(box.center().x(), box.bottom() + 1);
    EXPECT_LT(canvas.lightAt(box.left() + 12, box.top() + 6 + 6.4), 0.05);
    EXPECT_LT(canvas.lightAt(box.left() + 12, box.top() + 6 + 12.8 + 6.4), 0.05);
    EXPECT_GT(canvas.lightAt(box.left() - 3, box.center().y()), 0.05) << "the glow";
    EXPECT_EQ(canvas.lightAt(5, 5), 0);
}

TEST(KeyCalloutBubble, fades)
{
    const test::Canvas canvas({300, 200}, [](QPainter& painter) { oneLine.paint(painter, key, 0.5); });
    const QRectF box = oneLine.bubble(key);
    EXPECT_NEAR(canvas.at(box.left() + 4, box.center().y()).greenF(), 0.5, 0.12);
}

} // namespace tarvin
