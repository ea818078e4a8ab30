#include "platform/linux/applications/LaunchEntry.h"

#include "support/QtPrinters.h"

namespace tarvin::applications {

TEST(LaunchEntry, theCommandHasItsArgumentsAndNoPlacesForFiles)
{
    const auto entry = readLaunchEntry(
        "[Desktop Entry]\nType=Application\nName=Paint\nExec=env A=1 \"/opt/my paint/bin\" --new %U\nPath=/opt\n"
        "StartupNotify=true\nStartupWMClass=Paint\n[Desktop Action New]\nExec=other\nTerminal=true\n");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->name, QStringLiteral("Paint"));
    EXPECT_EQ(entry->command,
        QStringList({QStringLiteral("env"), QStringLiteral("A=1"), QStringLiteral("/opt/my paint/bin"),
            QStringLiteral("--new")}));
    EXPECT_EQ(entry->folder, QStringLiteral("/opt"));
    EXPECT_EQ(entry->windowClass, QStringLiteral("Paint"));
    EXPECT_TRUE(entry->notifiesStartup);
    EXPECT_FALSE(entry->runsInTerminal) << "an action of the entry is not the entry";
    EXPECT_FALSE(entry->isBusActivated);
}

TEST(LaunchEntry, anEntryWithoutACommandStartsNothingUnlessTheBusDoes)
{
    EXPECT_EQ(readLaunchEntry("[Desktop Entry]\nName=Nothing\n").has_value(), false);
    EXPECT_EQ(readLaunchEntry("[Desktop Entry]\nName=Bus\nDBusActivatable=true\n").has_value(), true);
    EXPECT_EQ(readLaunchEntry("no entry at all").has_value(), false);
}

} // namespace tarvin::applications
