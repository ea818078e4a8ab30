#include "platform/posix/PosixUserEnvironment.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include <ctime>

namespace tarvin::posix {

namespace {

/// Changes a variable of the environment until the end of the scope.
class Variable
{
public:
    Variable(const char* name, const QByteArray& value)
        : m_name(name)
        , m_before(qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name)) : std::nullopt)
    {
        qputenv(name, value);
    }
    ~Variable() { m_before ? qputenv(m_name, *m_before) : qunsetenv(m_name); }
    Q_DISABLE_COPY_MOVE(Variable)

private:
    const char* m_name;
    std::optional<QByteArray> m_before;
};

Scheduler::WallClock instant(std::int64_t seconds)
{
    return Scheduler::WallClock(std::chrono::seconds(seconds));
}

TEST(PosixUserEnvironmentTest, theDesktopIsAFolderOfTheHome)
{
    const QTemporaryDir home;
    const Variable variable("HOME", home.path().toUtf8());
    const Variable configuration("XDG_CONFIG_HOME", (home.path() + u"/none"_qs).toUtf8());
    ASSERT_TRUE(QDir(home.path()).mkdir(u"Desktop"_qs));
    EXPECT_EQ(PosixUserEnvironment().homeDirectory(), home.path());
    EXPECT_EQ(PosixUserEnvironment().desktopDirectory(), home.path() + u"/Desktop"_qs);
}

TEST(PosixUserEnvironmentTest, withoutADesktopTheHomeTakesItsPlace)
{
    const QTemporaryDir home;
    const Variable variable("HOME", home.path().toUtf8());
    const Variable configuration("XDG_CONFIG_HOME", (home.path() + u"/none"_qs).toUtf8());
    EXPECT_EQ(PosixUserEnvironment().desktopDirectory(), home.path());
}

TEST(PosixUserEnvironmentTest, theClockFollowsSummerTime)
{
    const Variable zone("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    tzset();
    const PosixUserEnvironment user;
    EXPECT_EQ(user.utcOffset(instant(1767225600)), std::chrono::hours(1)); // 2026-01-01
    EXPECT_EQ(user.utcOffset(instant(1782864000)), std::chrono::hours(2)); // 2026-07-01
}

} // namespace

} // namespace tarvin::posix
