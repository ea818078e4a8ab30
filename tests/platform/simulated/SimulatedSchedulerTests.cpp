#include "platform/simulated/SimulatedScheduler.h"

#include <gmock/gmock.h>

namespace tarvin::simulated {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

class SimulatedSchedulerTest : public testing::Test
{
protected:
    Scheduler::Task note(const char* what)
    {
        return [this, what] { notes.emplace_back(what, scheduler.virtualTime() / 1ms); };
    }

    SimulatedScheduler scheduler;
    std::vector<std::pair<std::string, std::int64_t>> notes;
};

TEST_F(SimulatedSchedulerTest, timeStandsStillUntilItIsMoved)
{
    EXPECT_EQ(scheduler.uptime(), 1000.0);
    EXPECT_EQ(scheduler.now().time_since_epoch(), 1767225600s);
    scheduler.advance(1500ms);
    EXPECT_EQ(scheduler.uptime(), 1001.5);
    EXPECT_EQ(scheduler.now().time_since_epoch(), 1767225601500ms);
}

TEST_F(SimulatedSchedulerTest, uptimeAndWallClockAreSetForThePresentMoment)
{
    scheduler.advance(2s);
    scheduler.setUptime(50);
    scheduler.setNow(Scheduler::WallClock(7s));
    EXPECT_DOUBLE_EQ(scheduler.uptime(), 50);
    scheduler.advance(1s);
    EXPECT_DOUBLE_EQ(scheduler.uptime(), 51);
    EXPECT_EQ(scheduler.now().time_since_epoch(), 8s);
}

TEST_F(SimulatedSchedulerTest, postedTasksRunInOrderAndNotBeforeTheyAreAsked)
{
    scheduler.post(note("first"));
    scheduler.post(note("second"));
    EXPECT_TRUE(notes.empty());
    scheduler.runPosted();
    EXPECT_THAT(notes, ElementsAre(std::pair("first", 0), std::pair("second", 0)));
}

TEST_F(SimulatedSchedulerTest, delayedTasksRunAtTheirOwnMomentInTheOrderOfTheirMoments)
{
    scheduler.postAfter(40ms, note("later"));
    scheduler.postAfter(15ms, [this] {
        note("sooner")();
        scheduler.postAfter(10ms, note("between"));
    });
    scheduler.runPosted();
    EXPECT_TRUE(notes.empty());
    scheduler.advance(39ms);
    EXPECT_THAT(notes, ElementsAre(std::pair("sooner", 15), std::pair("between", 25)));
    scheduler.advance(1ms);
    EXPECT_EQ(notes.back(), std::pair(std::string("later"), std::int64_t(40)));
}

TEST_F(SimulatedSchedulerTest, aDestroyedTimerDoesNotFire)
{
    std::unique_ptr<Timer> timer = scheduler.startOneShot(10ms, note("fired"));
    const std::unique_ptr<Timer> kept = scheduler.startOneShot(10ms, note("kept"));
    EXPECT_EQ(scheduler.runningTimers(), 2u);
    timer.reset();
    scheduler.advance(1s);
    EXPECT_THAT(notes, ElementsAre(std::pair("kept", 10)));
    EXPECT_EQ(scheduler.runningTimers(), 1u);
}

TEST_F(SimulatedSchedulerTest, aRepeatingTimerFiresUntilItsTaskDestroysIt)
{
    std::unique_ptr<Timer> timer;
    timer = scheduler.startRepeating(2000ms, [this, &timer] {
        note("tick")();
        if (notes.size() == 3)
            timer.reset();
    });
    EXPECT_EQ(scheduler.nextDueOnce(), std::nullopt);
    EXPECT_EQ(scheduler.nextDue(), VirtualTime(2s));
    scheduler.advance(60s);
    EXPECT_THAT(notes, ElementsAre(std::pair("tick", 2000), std::pair("tick", 4000), std::pair("tick", 6000)));
    EXPECT_EQ(scheduler.nextDue(), std::nullopt);
}

TEST_F(SimulatedSchedulerTest, backgroundTasksRunAfterTheTurnThatAskedForThemAndBeforeTheNext)
{
    scheduler.post([this] {
        scheduler.runInBackground(BackgroundQueue::utility, [this] {
            EXPECT_FALSE(scheduler.isMainThread());
            note("background")();
            scheduler.post(note("back on main"));
        });
        note("asked")();
    });
    scheduler.post(note("next turn"));
    scheduler.runPosted();
    EXPECT_TRUE(scheduler.isMainThread());
    EXPECT_THAT(notes,
        ElementsAre(std::pair("asked", 0), std::pair("background", 0), std::pair("next turn", 0),
            std::pair("back on main", 0)));
}

TEST_F(SimulatedSchedulerTest, aCallOffMainSeesAnotherThread)
{
    scheduler.callOffMain([this] { EXPECT_FALSE(scheduler.isMainThread()); });
    EXPECT_TRUE(scheduler.isMainThread());
}

} // namespace
} // namespace tarvin::simulated
