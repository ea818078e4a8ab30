#include "ui/PanelWindow.h"

#include "ui/Palette.h"

#include "support/QtPrinters.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvin {

using namespace std::chrono_literals;

namespace {

constexpr PanelLook look{.radius = 16,
    .fill = palette::panelBackground,
    .stroke = palette::hairline,
    .strokeWidth = 1,
    .shadowSigma = 10,
    .shadow = palette::black.at(0.5),
    .shadowOffsetY = 4};

class Panel : public testing::Test
{
protected:
    bool hasCompositor = true;
    PanelWindow panel{{200, 100}, look, PanelFocus::refuses, [this] { return hasCompositor; }};
};

} // namespace

TEST_F(Panel, hasRoomForItsShadowWhereACompositorRuns)
{
    panel.movePlate({300, 200});
    panel.fadeIn(0ms);
    EXPECT_EQ(panel.plate(), QRect(34, 34, 200, 100));
    EXPECT_EQ(panel.pos() + panel.plate().topLeft(), QPoint(300, 200));
    EXPECT_TRUE(panel.mask().isEmpty());
    const QImage image = panel.grab().toImage().convertToFormat(QImage::Format_ARGB32);
    EXPECT_GT(image.pixelColor(134, 34 + 100 + 4).alpha(), 40) << "the shadow below";
    EXPECT_EQ(image.pixelColor(1, 1).alpha(), 0);
}

TEST_F(Panel, hasItsCornersCutWhereNoneRuns)
{
    hasCompositor = false;
    panel.movePlate({300, 200});
    panel.fadeIn(0ms);
    EXPECT_EQ(panel.size(), QSize(200, 100));
    EXPECT_EQ(panel.pos(), QPoint(300, 200));
    EXPECT_FALSE(panel.mask().contains(QPoint(1, 1)));
    EXPECT_FALSE(panel.mask().contains(QPoint(198, 98)));
    EXPECT_TRUE(panel.mask().contains(QPoint(100, 0)));
}

TEST_F(Panel, isATopmostToolThatTakesNoKeyboard)
{
    const Qt::WindowFlags flags = panel.windowFlags();
    EXPECT_TRUE(flags.testFlag(Qt::Tool));
    EXPECT_TRUE(flags.testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(flags.testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(flags.testFlag(Qt::WindowDoesNotAcceptFocus));
    EXPECT_FALSE(PanelWindow({10, 10}, look, PanelFocus::accepts, [] { return true; })
                     .windowFlags()
                     .testFlag(Qt::WindowDoesNotAcceptFocus));
}

TEST_F(Panel, fadesInAndOutAndIsGoneAtTheEnd)
{
    QSignalSpy gone(&panel, &PanelWindow::fadedOut);
    panel.fadeIn(30ms);
    EXPECT_TRUE(panel.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel.windowOpacity() == 1; }));
    panel.fadeOut(30ms);
    EXPECT_TRUE(panel.isVisible());
    EXPECT_TRUE(gone.wait(2000));
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(Panel, oneThatIsShownAgainWhileItFadesStays)
{
    panel.fadeIn(0ms);
    QSignalSpy gone(&panel, &PanelWindow::fadedOut);
    panel.fadeOut(200ms);
    panel.fadeIn(20ms);
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel.windowOpacity() == 1; }));
    EXPECT_EQ(gone.size(), 0);
    EXPECT_TRUE(panel.isVisible());
}

} // namespace tarvin
