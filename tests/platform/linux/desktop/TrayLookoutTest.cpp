#include "platform/linux/desktop/TrayLookout.h"

#include "platform/simulated/SimulatedScheduler.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarvin::desktop {

namespace {

using namespace std::chrono_literals;

/// A desktop without a session bus; the X tray comes and goes as the test says.
class TrayLookoutTest : public testing::Test
{
protected:
    TrayLookoutTest()
    {
        QObject::connect(&lookout, &TrayLookout::found, &lookout, [this](TrayKind kind) { found.push_back(kind); });
        QObject::connect(&lookout, &TrayLookout::nothingYet, &lookout, [this] { ++complaints; });
    }

    simulated::SimulatedScheduler scheduler;
    bool isTrayThere = false;
    int looks = 0;
    std::vector<TrayKind> found;
    int complaints = 0;
    TrayLookout lookout{scheduler, QDBusConnection(QStringLiteral("no such bus")), [this] {
                            ++looks;
                            return isTrayThere;
                        }};
};

} // namespace

TEST_F(TrayLookoutTest, anXTrayIsTakenWhenTheBusHadItsSecond)
{
    isTrayThere = true;
    scheduler.advance(999ms);
    EXPECT_TRUE(found.empty());
    scheduler.advance(1ms);
    EXPECT_EQ(found, std::vector{TrayKind::xTray});
    scheduler.advance(10min);
    EXPECT_EQ(found.size(), 1U);
    EXPECT_EQ(complaints, 0);
}

TEST_F(TrayLookoutTest, aTrayThatComesAfterTheLoginIsFound)
{
    scheduler.advance(2s);
    isTrayThere = true;
    scheduler.advance(1s);
    EXPECT_EQ(found, std::vector{TrayKind::xTray});
    EXPECT_EQ(complaints, 0);
}

TEST_F(TrayLookoutTest, aDesktopWithoutAnyPlaceIsToldOfOnceAndATrayIsStillFoundLater)
{
    scheduler.advance(TrayLookout::patience - 1ms);
    EXPECT_EQ(complaints, 0);
    scheduler.advance(1ms);
    EXPECT_EQ(complaints, 1);
    scheduler.advance(30s);
    isTrayThere = true;
    scheduler.advance(64s);
    EXPECT_EQ(found, std::vector{TrayKind::xTray});
    EXPECT_EQ(complaints, 1);
}

TEST_F(TrayLookoutTest, theLooksBecomeRareAndEnd)
{
    scheduler.advance(24h);
    EXPECT_EQ(looks, 7);
    EXPECT_EQ(scheduler.nextDue(), std::nullopt);
}

} // namespace tarvin::desktop
