#pragma once

#include "platform/ports/Scheduler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <mutex>
#include <vector>

namespace tarvin::contracts {

using namespace std::chrono_literals;

/// What every platform's scheduler promises.
///
/// A platform under test has `scheduler()`, and `until(condition)`, which lets time pass until the condition holds and
/// says whether it did before the patience of the test ended.
template <typename Tested> class SchedulerContract : public testing::Test
{
protected:
    Tested tested;
    Scheduler& scheduler = tested.scheduler();
};

TYPED_TEST_SUITE_P(SchedulerContract);

TYPED_TEST_P(SchedulerContract, aPostedTaskRunsOnALaterTurnAfterThoseBeforeIt)
{
    std::vector<int> order;
    this->scheduler.post([&] {
        order.push_back(1);
        this->scheduler.post([&] { order.push_back(3); });
    });
    this->scheduler.post([&] { order.push_back(2); });
    EXPECT_TRUE(order.empty());
    EXPECT_TRUE(this->tested.until([&] { return order.size() == 3; }));
    EXPECT_THAT(order, testing::ElementsAre(1, 2, 3));
}

TYPED_TEST_P(SchedulerContract, aDelayedTaskDoesNotRunBeforeItsTime)
{
    const double before = this->scheduler.uptime();
    std::optional<double> ranAt;
    this->scheduler.postAfter(30ms, [&] { ranAt = this->scheduler.uptime(); });
    EXPECT_TRUE(this->tested.until([&] { return ranAt.has_value(); }));
    EXPECT_GE(ranAt.value_or(0), before + 0.029);
}

TYPED_TEST_P(SchedulerContract, aOneShotRunsOnce)
{
    int runs = 0;
    bool isLater = false;
    const auto timer = this->scheduler.startOneShot(1ms, [&] { ++runs; });
    this->scheduler.postAfter(60ms, [&] { isLater = true; });
    EXPECT_TRUE(this->tested.until([&] { return isLater && runs > 0; }));
    EXPECT_EQ(runs, 1);
}

TYPED_TEST_P(SchedulerContract, aTimerThatIsDestroyedRunsNoMore)
{
    bool hasRun = false;
    bool isLater = false;
    auto timer = this->scheduler.startOneShot(1ms, [&] { hasRun = true; });
    timer.reset();
    this->scheduler.postAfter(60ms, [&] { isLater = true; });
    EXPECT_TRUE(this->tested.until([&] { return isLater; }));
    EXPECT_FALSE(hasRun);
}

TYPED_TEST_P(SchedulerContract, aRepeatingTimerMayEndItself)
{
    int runs = 0;
    bool isLater = false;
    std::unique_ptr<Timer> timer;
    timer = this->scheduler.startRepeating(2ms, [&] {
        if (++runs == 3)
            timer.reset();
    });
    EXPECT_TRUE(this->tested.until([&] { return runs == 3; }));
    this->scheduler.postAfter(60ms, [&] { isLater = true; });
    EXPECT_TRUE(this->tested.until([&] { return isLater; }));
    EXPECT_EQ(runs, 3);
}

TYPED_TEST_P(SchedulerContract, backgroundWorkIsOffTheMainThreadAndReportsBackToIt)
{
    EXPECT_TRUE(this->scheduler.isMainThread());
    for (const BackgroundQueue queue : {BackgroundQueue::userInitiated, BackgroundQueue::utility}) {
        std::optional<bool> wasMain;
        std::optional<bool> isMainAgain;
        this->scheduler.runInBackground(queue, [&] {
            const bool isMain = this->scheduler.isMainThread();
            this->scheduler.post([&, isMain] {
                wasMain = isMain;
                isMainAgain = this->scheduler.isMainThread();
            });
        });
        EXPECT_TRUE(this->tested.until([&] { return isMainAgain.has_value(); }));
        EXPECT_EQ(wasMain, false);
        EXPECT_EQ(isMainAgain, true);
    }
}

TYPED_TEST_P(SchedulerContract, theLogQueueKeepsTheOrderOfTheCalls)
{
    std::mutex mutex;
    std::vector<int> order;
    std::vector<int> expected;
    for (int number = 0; number < 100; ++number) {
        expected.push_back(number);
        this->scheduler.runInBackground(BackgroundQueue::log, [&, number] {
            const std::lock_guard lock(mutex);
            order.push_back(number);
        });
    }
    EXPECT_TRUE(this->tested.until([&] {
        const std::lock_guard lock(mutex);
        return order.size() == expected.size();
    }));
    EXPECT_EQ(order, expected);
}

TYPED_TEST_P(SchedulerContract, theClocksGoForward)
{
    const double uptime = this->scheduler.uptime();
    const auto now = this->scheduler.now();
    EXPECT_GT(uptime, 0);
    bool isLater = false;
    this->scheduler.postAfter(5ms, [&] { isLater = true; });
    EXPECT_TRUE(this->tested.until([&] { return isLater; }));
    EXPECT_GT(this->scheduler.uptime(), uptime);
    EXPECT_GT(this->scheduler.now(), now);
}

REGISTER_TYPED_TEST_SUITE_P(SchedulerContract, aPostedTaskRunsOnALaterTurnAfterThoseBeforeIt,
    aDelayedTaskDoesNotRunBeforeItsTime, aOneShotRunsOnce, aTimerThatIsDestroyedRunsNoMore, aRepeatingTimerMayEndItself,
    backgroundWorkIsOffTheMainThreadAndReportsBackToIt, theLogQueueKeepsTheOrderOfTheCalls, theClocksGoForward);

} // namespace tarvin::contracts
