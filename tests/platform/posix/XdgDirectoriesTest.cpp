#include "platform/posix/XdgDirectories.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <map>

namespace tarvin::posix {

namespace {

/// The environment of a user whose home is /home/someone; what was there before comes back afterwards.
class XdgDirectoriesTest : public testing::Test
{
protected:
    XdgDirectoriesTest()
    {
        for (const char* name : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"}) {
            if (qEnvironmentVariableIsSet(name))
                m_before[name] = qgetenv(name);
            qunsetenv(name);
        }
        qputenv("HOME", "/home/someone");
    }
    ~XdgDirectoriesTest() override
    {
        for (const char* name : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
            m_before.contains(name) ? qputenv(name, m_before[name]) : qunsetenv(name);
    }

private:
    std::map<QByteArray, QByteArray> m_before;
};

TEST_F(XdgDirectoriesTest, withoutVariablesTheFoldersLieInTheHome)
{
    EXPECT_EQ(applicationSupportDirectory(), u"/home/someone/.local/share/Tarvin");
    EXPECT_EQ(settingsFile(), u"/home/someone/.config/Tarvin/settings.json");
}

TEST_F(XdgDirectoriesTest, eachVariableMovesItsOwnFolder)
{
    qputenv("XDG_DATA_HOME", "/data of/someone");
    EXPECT_EQ(applicationSupportDirectory(), u"/data of/someone/Tarvin");
    EXPECT_EQ(settingsFile(), u"/home/someone/.config/Tarvin/settings.json");
    qputenv("XDG_CONFIG_HOME", "/config");
    EXPECT_EQ(settingsFile(), u"/config/Tarvin/settings.json");
}

TEST_F(XdgDirectoriesTest, aVariableThatIsEmptyOrNotAbsoluteCountsForNothing)
{
    for (const char* value : {"", "data", "./data", "~/data"}) {
        qputenv("XDG_DATA_HOME", value);
        qputenv("XDG_CONFIG_HOME", value);
        EXPECT_EQ(applicationSupportDirectory(), u"/home/someone/.local/share/Tarvin") << value;
        EXPECT_EQ(settingsFile(), u"/home/someone/.config/Tarvin/settings.json") << value;
    }
}

} // namespace

} // namespace tarvin::posix
