#include "platform/linux/desktop/DesktopApplicationFolders.h"

#include "support/QtPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace tarvin::desktop {

namespace {

class Folders : public testing::Test
{
protected:
    QString put(const QString& path, const QByteArray& lines) const
    {
        const QString whole = home.filePath(path);
        QDir().mkpath(whole.section(u'/', 0, -2));
        QFile file(whole);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[Desktop Entry]\nType=Application\nExec=paint\n" + lines);
        return whole;
    }

    [[nodiscard]] DesktopApplicationFolders folders() const
    {
        return DesktopApplicationFolders({.applicationDirectories = {home.filePath(QStringLiteral("user/applications")),
                                              home.filePath(QStringLiteral("system/applications"))},
            .mimeAppsPaths = {},
            .locales = {QStringLiteral("de")},
            .browserVariable = {}});
    }

    QTemporaryDir home;
};

TEST_F(Folders, anEntryIsAnApplicationWithItsIdNameAndIcon)
{
    const QString path = put(
        QStringLiteral("system/applications/org.example.Paint.desktop"), "Name=Paint\nName[de]=Malen\nIcon=brush\n");
    EXPECT_THAT(folders().contents(ApplicationFolder::applications),
        testing::ElementsAre(ApplicationBundle{.path = path,
            .bundleIdentifier = QStringLiteral("org.example.Paint"),
            .displayName = QStringLiteral("Malen"),
            .icon = QStringLiteral("brush")}));
}

TEST_F(Folders, everythingIsInTheFirstFolderTheUsersOwnInFrontOfTheSystems)
{
    put(QStringLiteral("system/applications/paint.desktop"), "Name=Paint\n");
    put(QStringLiteral("user/applications/paint.desktop"), "Name=My Paint\n");
    const QList<ApplicationBundle> all = folders().contents(ApplicationFolder::applications);
    ASSERT_EQ(all.size(), 1);
    EXPECT_EQ(all.first().displayName, QStringLiteral("My Paint"));
    EXPECT_TRUE(folders().contents(ApplicationFolder::userApplications).isEmpty());
    EXPECT_TRUE(folders().contents(ApplicationFolder::systemApplications).isEmpty());
}

TEST_F(Folders, whatNoMenuShowsIsLeftOut)
{
    put(QStringLiteral("system/applications/helper.desktop"), "Name=Helper\nNoDisplay=true\n");
    put(QStringLiteral("user/applications/gone.desktop"), "Name=Gone\nHidden=true\n");
    EXPECT_TRUE(folders().contents(ApplicationFolder::applications).isEmpty());
}

TEST_F(Folders, aFileThatTheUserPointsAtIsReadWhereverItLies)
{
    put(QStringLiteral("system/applications/kde/paint.desktop"), "Name=Paint\n");
    put(QStringLiteral("desk/org.example.Own.desktop"), "Name=Own\n");
    EXPECT_EQ(
        folders().bundleAt(home.filePath(QStringLiteral("system/applications/kde/paint.desktop")))->bundleIdentifier,
        QStringLiteral("kde-paint"));
    EXPECT_EQ(folders().bundleAt(home.filePath(QStringLiteral("desk/org.example.Own.desktop")))->bundleIdentifier,
        QStringLiteral("org.example.Own"));
    EXPECT_EQ(folders().bundleAt(QStringLiteral("/bin/sh")), std::nullopt);
    EXPECT_EQ(folders().bundleAt(home.filePath(QStringLiteral("none.desktop"))), std::nullopt);
}

TEST_F(Folders, browsingBeginsInTheLastFolderThatIsThere)
{
    put(QStringLiteral("user/applications/paint.desktop"), "Name=Paint\n");
    EXPECT_EQ(folders().browsing(),
        (ApplicationBrowsing{home.filePath(QStringLiteral("user/applications")), QStringLiteral("desktop")}));
    put(QStringLiteral("system/applications/paint.desktop"), "Name=Paint\n");
    EXPECT_EQ(folders().browsing().startFolder, home.filePath(QStringLiteral("system/applications")));
}

} // namespace

} // namespace tarvin::desktop
