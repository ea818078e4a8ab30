#pragma once

#include "platform/ports/Console.h"
#include "platform/ports/ProcessInfo.h"
#include "platform/ports/UserEnvironment.h"
#include "platform/ports/UuidGenerator.h"

#include <gtest/gtest.h>

#include <set>

namespace tarvin::contracts {

[[nodiscard]] inline bool isFolderPath(const QString& path)
{
    return path.startsWith(u'/') && (path.size() == 1 || !path.endsWith(u'/'));
}

/// What every platform knows of its user and of the process. A platform under test has `userEnvironment()`,
/// `processInfo()` and `uuids()`.
template <typename Tested> class UserContract : public testing::Test
{
protected:
    Tested tested;
};

TYPED_TEST_SUITE_P(UserContract);

TYPED_TEST_P(UserContract, foldersAreAbsoluteWithoutASlashAtTheEnd)
{
    EXPECT_TRUE(isFolderPath(this->tested.userEnvironment().homeDirectory()));
    EXPECT_TRUE(isFolderPath(this->tested.userEnvironment().desktopDirectory()));
}

TYPED_TEST_P(UserContract, clocksAreLessThanADayFromUniversalTime)
{
    using namespace std::chrono_literals;
    for (const auto instant :
        {Scheduler::WallClock(0s), Scheduler::WallClock(1767225600s), Scheduler::WallClock(1782864000s)}) {
        const std::chrono::seconds offset = this->tested.userEnvironment().utcOffset(instant);
        EXPECT_GT(offset, -24h);
        EXPECT_LT(offset, 24h);
    }
}

TYPED_TEST_P(UserContract, theProcessKnowsItself)
{
    const ProcessInfo& info = this->tested.processInfo();
    EXPECT_FALSE(info.processName().isEmpty());
    EXPECT_FALSE(info.arguments().isEmpty());
    EXPECT_TRUE(isFolderPath(info.bundlePath()));
    EXPECT_FALSE(info.wasStartedAsLoginItem());
}

TYPED_TEST_P(UserContract, identifiersAreNeverTheSame)
{
    std::set<QUuid> seen;
    for (int i = 0; i < 1000; ++i) {
        const QUuid next = this->tested.uuids().next();
        EXPECT_FALSE(next.isNull());
        EXPECT_TRUE(seen.insert(next).second);
    }
}

REGISTER_TYPED_TEST_SUITE_P(UserContract, foldersAreAbsoluteWithoutASlashAtTheEnd,
    clocksAreLessThanADayFromUniversalTime, theProcessKnowsItself, identifiersAreNeverTheSame);

} // namespace tarvin::contracts
