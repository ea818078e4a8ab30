#include "platform/posix/InstanceLock.h"
#include "platform/posix/RandomUuids.h"
#include "platform/posix/StdoutConsole.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace tarvin::posix {

TEST(RandomUuids, areDifferentAndRandom)
{
    RandomUuids uuids;
    const QUuid first = uuids.next();
    EXPECT_NE(first, uuids.next());
    EXPECT_EQ(first.version(), QUuid::Random);
}

TEST(StdoutConsole, writesALineAtOnceInUtf8)
{
    testing::internal::CaptureStdout();
    StdoutConsole().printLine(QStringLiteral("[Tarvin] Müde"));
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
        "[Tarvin] M\xC3\xBC"
        "de\n");
}

TEST(InstanceLock, isHeldByOneAtATime)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("lock"));
    {
        const InstanceLock first(path);
        EXPECT_EQ(first.state(), InstanceLock::State::held);
        EXPECT_EQ(InstanceLock(path).state(), InstanceLock::State::heldByAnother);
    }
    EXPECT_EQ(InstanceLock(path).state(), InstanceLock::State::held);
    EXPECT_EQ(InstanceLock(QString()).state(), InstanceLock::State::unavailable);
}

} // namespace tarvin::posix
