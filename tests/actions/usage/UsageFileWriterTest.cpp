#include "actions/usage/UsageFileWriter.h"

#include "platform/ports/Console.h"
#include "platform/ports/Scheduler.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <latch>
#include <mutex>
#include <thread>

namespace tarvin {

namespace {

/// Runs background work on threads of their own, all at the same time.
class ThreadScheduler final : public Scheduler
{
public:
    ~ThreadScheduler() override { join(); }

    [[nodiscard]] double uptime() const override { return 0; }
    [[nodiscard]] WallClock now() const override { return {}; }
    [[nodiscard]] bool isMainThread() const override { return true; }
    void post(Task) override { }
    void postAfter(Duration, Task) override { }
    [[nodiscard]] std::unique_ptr<Timer> startOneShot(Duration, Task) override { return nullptr; }
    [[nodiscard]] std::unique_ptr<Timer> startRepeating(Duration, Task) override { return nullptr; }
    void runInBackground(BackgroundQueue, Task task) override { m_threads.emplace_back(std::move(task)); }

    void join()
    {
        for (std::thread& thread : m_threads)
            thread.join();
        m_threads.clear();
    }

private:
    std::vector<std::thread> m_threads;
};

/// One file, whose writings can be held up.
class OneFile final : public Files
{
public:
    [[nodiscard]] QString applicationSupportDirectory() const override { return {}; }
    [[nodiscard]] bool exists(const QString&) const override { return true; }
    [[nodiscard]] ReadResult read(const QString&) const override { return FileError{}; }
    void createDirectory(const QString&) override { }
    [[nodiscard]] std::optional<FileError> append(const QString&, const QByteArray&) override { return std::nullopt; }
    [[nodiscard]] std::optional<FileError> writeAtomically(const QString&, const QByteArray& content) override
    {
        if (std::latch* const held = gate) {
            entered->count_down();
            held->wait();
        }
        const std::scoped_lock lock(m_mutex);
        m_contents.push_back(content);
        return std::nullopt;
    }

    [[nodiscard]] std::vector<QByteArray> contents() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_contents;
    }

    std::latch* entered = nullptr; ///< counted down when a writing begins
    std::latch* gate = nullptr; ///< waited for by each writing

private:
    mutable std::mutex m_mutex;
    std::vector<QByteArray> m_contents;
};

class SilentConsole final : public Console
{
public:
    void printLine(const QString&) override { }
};

class UsageFileWriterTest : public testing::Test
{
protected:
    static ActionUsageRecords counted(std::int64_t count) { return {{KeyAction::mute, {count, UsageDate(0)}}}; }

    OneFile file;
    SilentConsole console;
    ThreadScheduler scheduler;
};

TEST_F(UsageFileWriterTest, theLastStateIsTheOneThatStays)
{
    constexpr int count = 500;
    {
        UsageFileWriter writer(file, console, scheduler, u"/f"_qs);
        for (int number = 1; number <= count; ++number)
            writer.write(counted(number));
        scheduler.join();
    }
    const std::vector<QByteArray> contents = file.contents();
    ASSERT_FALSE(contents.empty());
    EXPECT_EQ(contents.back(), encodeUsageRecords(counted(count)));
    EXPECT_LE(contents.size(), static_cast<std::size_t>(count));
}

TEST_F(UsageFileWriterTest, theEndWaitsForAWritingUnderWayAndThenWritesTheRest)
{
    std::latch entered(1);
    std::latch gate(1);
    file.entered = &entered;
    file.gate = &gate;
    auto writer = std::make_unique<UsageFileWriter>(file, console, scheduler, u"/f"_qs);
    writer->write(counted(1));
    entered.wait();
    file.entered = nullptr;
    file.gate = nullptr;
    writer->write(counted(2));
    EXPECT_TRUE(file.contents().empty()) << "a call never waits for the file";
    std::thread opener([&gate] { gate.count_down(); });
    writer.reset();
    EXPECT_EQ(file.contents(), (std::vector{encodeUsageRecords(counted(1)), encodeUsageRecords(counted(2))}));
    opener.join();
}

TEST_F(UsageFileWriterTest, backgroundWorkMayOutliveTheWriter)
{
    {
        UsageFileWriter writer(file, console, scheduler, u"/f"_qs);
        writer.write(counted(1));
    }
    scheduler.join();
    EXPECT_EQ(file.contents().size(), 1U);
}

} // namespace

} // namespace tarvin
