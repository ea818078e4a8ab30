#include "platform/linux/desktop/QtScheduler.h"

#include "endtoend/support/Patience.h"

#include <QFile>

#include <atomic>
#include <mutex>
#include <semaphore>

namespace tarvin::desktop {

using namespace std::chrono_literals;
using endtoend::eventually;
using testing::ElementsAre;

namespace {

double sinceBoot()
{
    QFile file(QStringLiteral("/proc/uptime"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(0).toDouble() : 0;
}

/// What several threads note in the order in which it happens.
class Notes
{
public:
    void add(int number)
    {
        const std::lock_guard lock(m_mutex);
        m_numbers.push_back(number);
    }

    [[nodiscard]] std::vector<int> numbers() const
    {
        const std::lock_guard lock(m_mutex);
        return m_numbers;
    }

private:
    mutable std::mutex m_mutex;
    std::vector<int> m_numbers;
};

} // namespace

TEST(QtScheduler, uptimeCountsFromTheSystemsStart)
{
    const QtScheduler scheduler;
    EXPECT_NEAR(scheduler.uptime(), sinceBoot(), 0.5);
    const double before = scheduler.uptime();
    EXPECT_GE(scheduler.uptime(), before);
}

TEST(QtScheduler, postedTasksRunInOrderOnALaterTurn)
{
    QtScheduler scheduler;
    std::vector<int> order;
    scheduler.post([&] {
        order.push_back(1);
        scheduler.post([&] { order.push_back(3); });
    });
    scheduler.post([&] { order.push_back(2); });
    EXPECT_TRUE(order.empty()) << "before the loop had a turn";
    EXPECT_TRUE(eventually([&] { return order.size() == 3; }));
    EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

TEST(QtScheduler, whatAnotherThreadPostsRunsOnTheMainThread)
{
    QtScheduler scheduler;
    std::atomic<bool> wasOffMain = false;
    std::atomic<int> ranOnMain = 0;
    std::thread other([&] {
        wasOffMain = !scheduler.isMainThread();
        scheduler.post([&] { ranOnMain += scheduler.isMainThread() ? 1 : 0; });
        scheduler.postAfter(1ms, [&] { ranOnMain += scheduler.isMainThread() ? 1 : 0; });
    });
    EXPECT_TRUE(eventually([&] { return ranOnMain == 2; }));
    other.join();
    EXPECT_TRUE(wasOffMain);
    EXPECT_TRUE(scheduler.isMainThread());
}

TEST(QtScheduler, shortDelaysAreNeverShortened)
{
    QtScheduler scheduler;
    for (const auto delay : {15ms, 25ms, 40ms, 45ms}) {
        const double start = scheduler.uptime();
        double end = 0;
        scheduler.postAfter(delay, [&] { end = scheduler.uptime(); });
        ASSERT_TRUE(eventually([&] { return end > 0; }));
        EXPECT_GE(end - start, std::chrono::duration<double>(delay).count());
    }
}

TEST(QtScheduler, delayedTasksRunByTheirTimesNotByTheirCalls)
{
    QtScheduler scheduler;
    std::vector<int> order;
    scheduler.postAfter(60ms, [&] { order.push_back(2); });
    scheduler.postAfter(5ms, [&] { order.push_back(1); });
    EXPECT_TRUE(eventually([&] { return order.size() == 2; }));
    EXPECT_THAT(order, ElementsAre(1, 2));
}

TEST(QtScheduler, aDestroyedOneShotDoesNotRun)
{
    QtScheduler scheduler;
    bool ran = false;
    bool otherRan = false;
    auto timer = scheduler.startOneShot(5ms, [&] { ran = true; });
    const auto other = scheduler.startOneShot(20ms, [&] { otherRan = true; });
    timer.reset();
    EXPECT_TRUE(eventually([&] { return otherRan; }));
    EXPECT_FALSE(ran);
}

TEST(QtScheduler, aRepeatingTimerMayEndItself)
{
    QtScheduler scheduler;
    int runs = 0;
    std::unique_ptr<Timer> timer;
    auto guard = std::make_shared<int>(7);
    timer = scheduler.startRepeating(2ms, [&, guard] {
        if (++runs == 3)
            timer.reset();
        EXPECT_EQ(*guard, 7) << "the task outlives its timer while it runs";
    });
    EXPECT_TRUE(eventually([&] { return !timer; }));
    (void)eventually([] { return false; }, 20ms);
    EXPECT_EQ(runs, 3);
    EXPECT_EQ(guard.use_count(), 1);
}

TEST(QtScheduler, logLinesKeepTheirOrder)
{
    QtScheduler scheduler;
    Notes notes;
    std::vector<int> expected;
    for (int number = 0; number < 500; ++number) {
        scheduler.runInBackground(BackgroundQueue::log, [&, number] { notes.add(number); });
        expected.push_back(number);
    }
    EXPECT_TRUE(eventually([&] { return notes.numbers().size() == expected.size(); }));
    EXPECT_EQ(notes.numbers(), expected);
}

TEST(QtScheduler, aBlockedScriptDoesNotHoldUpAnother)
{
    QtScheduler scheduler;
    std::binary_semaphore gate(0);
    std::atomic<bool> secondRan = false;
    scheduler.runInBackground(BackgroundQueue::userInitiated, [&] { gate.acquire(); });
    scheduler.runInBackground(BackgroundQueue::userInitiated, [&] { secondRan = !scheduler.isMainThread(); });
    EXPECT_TRUE(eventually([&] { return secondRan.load(); }));
    gate.release();
}

TEST(QtScheduler, theEndWaitsForWorkAtHandAndWritesEveryLogLine)
{
    QtScheduler scheduler;
    Notes lines;
    std::binary_semaphore started(0);
    scheduler.runInBackground(BackgroundQueue::utility, [&] {
        started.release();
        std::this_thread::sleep_for(30ms);
        scheduler.runInBackground(BackgroundQueue::log, [&] { lines.add(100); });
    });
    started.acquire();
    for (int number = 0; number < 50; ++number) {
        scheduler.runInBackground(BackgroundQueue::log, [&, number] {
            std::this_thread::sleep_for(1ms);
            lines.add(number);
        });
    }
    EXPECT_TRUE(scheduler.shutDown(10s));
    EXPECT_EQ(lines.numbers().size(), 51U);
    EXPECT_EQ(lines.numbers().back(), 100);
    scheduler.runInBackground(BackgroundQueue::log, [&] { lines.add(-1); });
    scheduler.runInBackground(BackgroundQueue::utility, [&] { lines.add(-1); });
    (void)eventually([] { return false; }, 20ms);
    EXPECT_EQ(lines.numbers().size(), 51U) << "what comes after the end is dropped";
}

TEST(QtScheduler, theEndDoesNotWaitForeverForABlockedScript)
{
    std::counting_semaphore<8> gate(0);
    std::atomic<bool> neverRan = true;
    QtScheduler scheduler;
    for (int number = 0; number < 8; ++number)
        scheduler.runInBackground(BackgroundQueue::userInitiated, [&] { gate.acquire(); });
    scheduler.runInBackground(BackgroundQueue::userInitiated, [&] { neverRan = false; });
    Notes lines;
    scheduler.runInBackground(BackgroundQueue::log, [&] { lines.add(1); });
    EXPECT_FALSE(scheduler.shutDown(20ms));
    EXPECT_THAT(lines.numbers(), ElementsAre(1)) << "the log is drained all the same";
    gate.release(8);
    EXPECT_TRUE(scheduler.shutDown(10s));
    EXPECT_TRUE(neverRan) << "work not yet begun is dropped";
}

} // namespace tarvin::desktop
