#include "tools/ring/view/ActionsRingView.h"

#include "support/QtPrinters.h"
#include "tools/ring/RingItem.h"
#include "tools/view/PanelProbe.h"

#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

namespace tarvin {
namespace {

class RingView : public testing::Test
{
protected:
    RingView() { view.fadeIn(std::chrono::milliseconds(0)); }

    std::vector<KeyAction> chosen;
    ActionsRingView view{
        [this](const ConfiguredAction& action) { chosen.push_back(action.action); }, [] { return true; }};
};

TEST_F(RingView, eachItemIsAButtonOfItsNameAndChoosesItsAction)
{
    for (const RingItem& item : ringItems) {
        QAbstractButton* const button = test::buttonNamed(view, item.title.toString());
        ASSERT_NE(button, nullptr) << item.title.toString().toStdString();
        QTest::mouseClick(button, Qt::LeftButton);
        ASSERT_FALSE(chosen.empty());
        EXPECT_EQ(chosen.back(), item.action);
    }
    EXPECT_EQ(chosen.size(), ringItems.size());
}

TEST_F(RingView, theItemsStandAtTheirOffsetsFromTheMiddle)
{
    for (std::size_t index = 0; index < ringItems.size(); ++index) {
        const QAbstractButton* const button = test::buttonNamed(view, ringItems[index].title.toString());
        const QPointF middle = QRectF(test::placeOf(view, *button)).center();
        EXPECT_NEAR(middle.x() - 155, ringOffset(index).x, 1) << index;
        EXPECT_NEAR(middle.y() - 155, ringOffset(index).y, 1) << index;
    }
}

TEST_F(RingView, itsMiddleClosesItAndChoosesNothing)
{
    QSignalSpy dismissed(&view, &ActionsRingView::dismissed);
    QAbstractButton* const centre = test::buttonNamed(view, u"Actions Ring"_qs);
    EXPECT_EQ(test::placeOf(view, *centre), QRect(115, 115, 80, 80));
    QTest::mouseClick(centre, Qt::LeftButton);
    EXPECT_EQ(dismissed.size(), 1);
    QTest::mouseClick(centre, Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(dismissed.size(), 1) << "the corner is outside the circle";
    EXPECT_TRUE(chosen.empty());
}

TEST_F(RingView, noKeyDoesAnything)
{
    QSignalSpy dismissed(&view, &ActionsRingView::dismissed);
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_1, Qt::Key_Tab, Qt::Key_Down})
        QTest::keyClick(&view, key);
    EXPECT_EQ(dismissed.size(), 0);
    EXPECT_TRUE(chosen.empty());
    EXPECT_TRUE(view.isVisible());
}

TEST_F(RingView, itIsADiscOf310WithARim)
{
    EXPECT_EQ(view.plate().size(), QSize(310, 310));
    const test::Canvas picture = test::pictureOf(view);
    const QColor disc = picture.at(155, 100);
    EXPECT_GE(disc.alphaF(), 0.92) << "its own, and that of the shadow below";
    EXPECT_LT(disc.alphaF(), 0.98);
    EXPECT_NEAR(disc.redF(), 0.08, 0.01);
    EXPECT_NEAR(disc.blueF(), 0.10, 0.01);
    EXPECT_GT(picture.at(155, 0).greenF(), picture.at(155, 0).redF() + 0.2) << "the rim";
    EXPECT_LT(picture.at(20, 20).alphaF(), 0.7) << "only shadow beside the disc";
}

TEST_F(RingView, anItemIsASymbolInADiscOf44AboveItsName)
{
    const test::Canvas picture = test::pictureOf(view);
    // The topmost item is 58 high around the point 100 above the middle; its disc is at its top.
    const double top = 155 - 100 - 28.9;
    EXPECT_GT(picture.lightAt(155 - 19, top + 22), picture.lightAt(155 - 25, top + 22) + 0.05);
    EXPECT_GT(picture.lightAt(155, top + 3), picture.lightAt(155, top - 3) + 0.05);
}

} // namespace
} // namespace tarvin
