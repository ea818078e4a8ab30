#include "platform/linux/desktop/AutostartLoginItem.h"

#include "support/QtPrinters.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace tarvin::desktop {

namespace {

class Autostart : public testing::Test
{
protected:
    [[nodiscard]] AutostartLoginItem item(const QString& executable = QStringLiteral("/opt/tarvin")) const
    {
        return {executable, {userDirectory, systemDirectory}};
    }

    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void put(const QString& path, const QByteArray& content)
    {
        QDir().mkpath(path.section(u'/', 0, -2));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QTemporaryDir home;
    QString userDirectory = home.filePath(QStringLiteral("config/autostart"));
    QString systemDirectory = home.filePath(QStringLiteral("system/autostart"));
    QString userEntry = userDirectory + QStringLiteral("/tarvin.desktop");
    QString systemEntry = systemDirectory + QStringLiteral("/tarvin.desktop");
};

} // namespace

TEST_F(Autostart, enablingWritesAnEntryThatStartsTheProgramQuietly)
{
    EXPECT_FALSE(item().isEnabled());
    EXPECT_EQ(item().enable(), std::nullopt);
    EXPECT_TRUE(item().isEnabled());
    const QByteArray content = contentOf(userEntry);
    EXPECT_TRUE(content.startsWith("[Desktop Entry]\nType=Application\nName=Tarvin\n"));
    EXPECT_TRUE(content.contains("\nExec=/opt/tarvin --startup\n"));
}

TEST_F(Autostart, aPathWithBlanksQuotesAndBackslashesIsWrittenByTheRulesOfDesktopEntries)
{
    const QString awkward = QStringLiteral(R"(/opt/my "keys" 100%\tarvin)");
    EXPECT_EQ(item(awkward).enable(), std::nullopt);
    // Quoted for the command line, and each backslash of that doubled once more as in every text of such a file.
    EXPECT_TRUE(contentOf(userEntry).contains(R"(Exec="/opt/my \\"keys\\" 100%%\\\\tarvin" --startup)"));
    EXPECT_TRUE(item(awkward).isEnabled());
}

TEST_F(Autostart, disablingTakesTheEntryAway)
{
    ASSERT_EQ(item().enable(), std::nullopt);
    EXPECT_EQ(item().disable(), std::nullopt);
    EXPECT_FALSE(item().isEnabled());
    EXPECT_FALSE(QFile::exists(userEntry));
    EXPECT_EQ(item().disable(), std::nullopt) << "with nothing there";
}

TEST_F(Autostart, anEntryThatTheUserSwitchedOffStaysOff)
{
    for (const char* line : {"Hidden=true\n", "X-GNOME-Autostart-enabled=false\n"}) {
        ASSERT_TRUE(item().disable() == std::nullopt && item().enable() == std::nullopt);
        put(userEntry, contentOf(userEntry) + line);
        const QByteArray before = contentOf(userEntry);
        EXPECT_FALSE(item().isEnabled()) << line;
        const std::optional<QString> refusal = item().enable();
        ASSERT_TRUE(refusal) << line;
        EXPECT_TRUE(refusal->contains(userEntry));
        EXPECT_EQ(contentOf(userEntry), before);
    }
}

TEST_F(Autostart, anEntryOfAnotherCopyIsBroughtUpToDate)
{
    ASSERT_EQ(item(QStringLiteral("/old/tarvin")).enable(), std::nullopt);
    EXPECT_FALSE(item().isEnabled());
    EXPECT_EQ(item().enable(), std::nullopt);
    EXPECT_TRUE(item().isEnabled());
}

TEST_F(Autostart, anEntryOfTheSystemIsHiddenNotRemovedAndComesBackWhenEnabled)
{
    put(systemEntry, "[Desktop Entry]\nType=Application\nName=Tarvin\nExec=tarvin --startup\n");
    EXPECT_EQ(item().disable(), std::nullopt);
    EXPECT_TRUE(contentOf(userEntry).contains("\nHidden=true\n"));
    EXPECT_TRUE(QFile::exists(systemEntry));
    EXPECT_FALSE(item().isEnabled());
    EXPECT_EQ(item().enable(), std::nullopt) << "our own hiding is no word of the user";
    EXPECT_TRUE(item().isEnabled());
}

TEST_F(Autostart, aFolderThatCannotBeWrittenIsRefusedInWords)
{
    put(home.filePath(QStringLiteral("config")), "a file where the folder should be");
    const std::optional<QString> refusal = item().enable();
    ASSERT_TRUE(refusal);
    EXPECT_TRUE(refusal->contains(userEntry));
}

} // namespace tarvin::desktop
