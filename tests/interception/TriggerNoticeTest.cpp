#include "interception/TriggerNotice.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"

#include <gtest/gtest.h>

namespace tarvin::test {

using namespace std::chrono_literals;

class TriggerNoticeTest : public testing::Test
{
protected:
    simulated::SimulatedScheduler scheduler;
    TriggerNotice notice{scheduler};
};

TEST_F(TriggerNoticeTest, thereIsNoneAtFirst)
{
    EXPECT_EQ(notice.lastTriggeredInfo(), std::nullopt);
}

TEST_F(TriggerNoticeTest, aKeyThatFiredIsShownForThreeAndAHalfSeconds)
{
    notice.recordTrigger(FKey::capsLock, u"Mute"_qs);
    EXPECT_EQ(notice.lastTriggeredInfo(), u"Pressed physical CapsLock → Executing Mute"_qs);
    scheduler.advance(3499ms);
    EXPECT_NE(notice.lastTriggeredInfo(), std::nullopt);
    scheduler.advance(1ms);
    EXPECT_EQ(notice.lastTriggeredInfo(), std::nullopt);
}

TEST_F(TriggerNoticeTest, anActionsOwnNoticeIsShownAsItIsForThreeSeconds)
{
    notice.recordTriggerDirectly(u"Mute Toggled"_qs);
    EXPECT_EQ(notice.lastTriggeredInfo(), u"Mute Toggled"_qs);
    scheduler.advance(2999ms);
    EXPECT_NE(notice.lastTriggeredInfo(), std::nullopt);
    scheduler.advance(1ms);
    EXPECT_EQ(notice.lastTriggeredInfo(), std::nullopt);
}

TEST_F(TriggerNoticeTest, aNewNoticeReplacesTheOldOneAndItsTime)
{
    notice.recordTrigger(FKey::f5, u"Mute"_qs);
    scheduler.advance(2s);
    notice.recordTriggerDirectly(u"Mute Toggled"_qs);
    EXPECT_EQ(scheduler.runningTimers(), 1U);
    scheduler.advance(2s);
    EXPECT_EQ(notice.lastTriggeredInfo(), u"Mute Toggled"_qs);
    scheduler.advance(1s);
    EXPECT_EQ(notice.lastTriggeredInfo(), std::nullopt);
}

TEST_F(TriggerNoticeTest, eachChangeIsTold)
{
    const SignalCount changed(notice, &TriggerNotice::lastTriggeredInfoChanged);
    notice.recordTriggerDirectly(u"Copied"_qs);
    EXPECT_EQ(changed.count(), 1);
    scheduler.advance(3s);
    EXPECT_EQ(changed.count(), 2);
}

TEST_F(TriggerNoticeTest, itsEndStopsTheTimer)
{
    {
        TriggerNotice shortLived(scheduler);
        shortLived.recordTriggerDirectly(u"Copied"_qs);
    }
    EXPECT_EQ(scheduler.runningTimers(), 0U);
}

} // namespace tarvin::test
