#include "platform/linux/desktop/FocusSettler.h"

#include "platform/simulated/SimulatedScheduler.h"

namespace tarvin::desktop {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class FocusSettling : public testing::Test
{
protected:
    simulated::SimulatedScheduler scheduler;
    std::vector<std::optional<FocusSettler::WindowId>> settled;
    FocusSettler focus{scheduler, [this](std::optional<FocusSettler::WindowId> window) { settled.push_back(window); }};
};

} // namespace

TEST_F(FocusSettling, aWindowTakesTheFocusAtOnce)
{
    focus.focusMoved(1);
    EXPECT_EQ(focus.current(), 1);
    EXPECT_THAT(settled, ElementsAre(1));
}

TEST_F(FocusSettling, aMomentWithoutFocusOnTheWayToAnotherWindowIsNotSeen)
{
    focus.focusMoved(1);
    focus.focusMoved(std::nullopt);
    scheduler.advance(8ms);
    EXPECT_EQ(focus.current(), 1);
    focus.focusMoved(2);
    scheduler.advance(1s);
    EXPECT_THAT(settled, ElementsAre(1, 2));
}

TEST_F(FocusSettling, aMomentWithoutFocusBackToTheSameWindowIsNotSeen)
{
    focus.focusMoved(1);
    focus.focusMoved(std::nullopt);
    focus.focusMoved(1);
    scheduler.advance(1s);
    EXPECT_THAT(settled, ElementsAre(1));
}

TEST_F(FocusSettling, focusThatStaysAwayIsLost)
{
    focus.focusMoved(1);
    focus.focusMoved(std::nullopt);
    scheduler.advance(focusSettleTime - 1ms);
    EXPECT_EQ(focus.current(), 1);
    scheduler.advance(1ms);
    EXPECT_EQ(focus.current(), std::nullopt);
    EXPECT_THAT(settled, ElementsAre(1, std::nullopt));
}

TEST_F(FocusSettling, repeatedReportsOfNoFocusDoNotProlongTheWait)
{
    focus.focusMoved(1);
    focus.focusMoved(std::nullopt);
    scheduler.advance(focusSettleTime - 1ms);
    focus.focusMoved(std::nullopt);
    scheduler.advance(1ms);
    EXPECT_EQ(focus.current(), std::nullopt);
}

TEST_F(FocusSettling, withoutAnyFocusNothingIsReported)
{
    focus.focusMoved(std::nullopt);
    scheduler.advance(1s);
    EXPECT_THAT(settled, IsEmpty());
    EXPECT_EQ(scheduler.runningTimers(), 0U);
}

} // namespace tarvin::desktop
