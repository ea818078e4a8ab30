#include "platform/linux/desktop/InstalledApplications.h"
#include "platform/linux/desktop/QtScheduler.h"

#include "endtoend/support/Patience.h"
#include "support/QtPrinters.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace tarvin::desktop {

using endtoend::eventually;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace {

const QByteArray editor = "[Desktop Entry]\nType=Application\nName=Editor\nExec=ed\n";

class Installed : public testing::Test
{
protected:
    void put(const QString& path, const QByteArray& content) const
    {
        QDir().mkpath(home.filePath(path).section(u'/', 0, -2));
        QFile file(home.filePath(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    [[nodiscard]] static QStringList idsOf(const ApplicationIndex& index)
    {
        QStringList ids;
        for (const DesktopEntry& entry : index.catalog.entries())
            ids += entry.id;
        return ids;
    }

    /// Waits until exactly these applications are installed.
    [[nodiscard]] static bool becomes(const InstalledApplications& applications, QStringList ids)
    {
        ids.sort();
        return eventually([&] {
            QStringList now = idsOf(applications.index());
            now.sort();
            return now == ids;
        });
    }

    QTemporaryDir home;
    ApplicationLocations locations{.applicationDirectories = {home.filePath(QStringLiteral("user/applications")),
                                       home.filePath(QStringLiteral("system/applications"))},
        .mimeAppsPaths = {home.filePath(QStringLiteral("config/mimeapps.list"))},
        .locales = {},
        .browserVariable = {}};
    QtScheduler scheduler;
};

} // namespace

TEST_F(Installed, theUsersEntryMasksTheSystemsOfTheSameId)
{
    put(QStringLiteral("system/applications/ed.desktop"), editor);
    put(QStringLiteral("user/applications/ed.desktop"), "[Desktop Entry]\nType=Application\nName=Mine\nExec=ed\n");
    const ApplicationIndex index = readInstalledApplications(locations);
    ASSERT_THAT(idsOf(index), ElementsAre(u"ed"));
    EXPECT_EQ(index.catalog.entries().front().name, QStringLiteral("Mine"));
}

TEST_F(Installed, anEntryThatTheUserDeletedIsGone)
{
    put(QStringLiteral("system/applications/ed.desktop"), editor);
    put(QStringLiteral("user/applications/ed.desktop"), editor + "Hidden=true\n");
    EXPECT_TRUE(idsOf(readInstalledApplications(locations)).isEmpty());
}

TEST_F(Installed, foldersArePartOfTheId)
{
    put(QStringLiteral("system/applications/kde/sub/ed.desktop"), editor);
    put(QStringLiteral("system/applications/readme.txt"), editor);
    EXPECT_THAT(idsOf(readInstalledApplications(locations)), ElementsAre(u"kde-sub-ed"));
}

TEST_F(Installed, theFirstReadingHappensInTheBackground)
{
    put(QStringLiteral("system/applications/ed.desktop"), editor);
    const InstalledApplications applications(scheduler, locations);
    EXPECT_TRUE(applications.index().catalog.entries().empty());
    EXPECT_TRUE(becomes(applications, {QStringLiteral("ed")}));
}

TEST_F(Installed, whatIsInstalledChangedOrRemovedLaterIsNoticed)
{
    put(QStringLiteral("system/applications/ed.desktop"), editor);
    const InstalledApplications applications(scheduler, locations);
    ASSERT_TRUE(becomes(applications, {QStringLiteral("ed")}));
    put(QStringLiteral("system/applications/new.desktop"), editor);
    EXPECT_TRUE(becomes(applications, {QStringLiteral("ed"), QStringLiteral("new")}));
    put(QStringLiteral("system/applications/new.desktop"), editor + "Hidden=true\n");
    EXPECT_TRUE(becomes(applications, {QStringLiteral("ed")}));
    QFile::remove(home.filePath(QStringLiteral("system/applications/ed.desktop")));
    EXPECT_TRUE(becomes(applications, {}));
}

TEST_F(Installed, aFolderThatDidNotExistIsNoticedWhenItComes)
{
    const InstalledApplications applications(scheduler, locations);
    ASSERT_TRUE(becomes(applications, {}));
    put(QStringLiteral("user/applications/kde/ed.desktop"), editor);
    EXPECT_TRUE(becomes(applications, {QStringLiteral("kde-ed")}));
    put(QStringLiteral("user/applications/kde/more.desktop"), editor);
    EXPECT_TRUE(becomes(applications, {QStringLiteral("kde-ed"), QStringLiteral("kde-more")}));
    QDir(home.filePath(QStringLiteral("user"))).removeRecursively();
    EXPECT_TRUE(becomes(applications, {}));
    put(QStringLiteral("user/applications/again.desktop"), editor);
    EXPECT_TRUE(becomes(applications, {QStringLiteral("again")}));
}

TEST_F(Installed, anotherDefaultBrowserIsNoticed)
{
    const QByteArray browser = editor + "Categories=WebBrowser;\n";
    put(QStringLiteral("system/applications/one.desktop"), browser);
    put(QStringLiteral("system/applications/two.desktop"), browser);
    const InstalledApplications applications(scheduler, locations);
    const QString safari = QStringLiteral("com.apple.Safari");
    const auto browsers = [&] { return applications.index().roles.applicationsFilling(safari); };
    ASSERT_TRUE(eventually([&] { return browsers().size() == 2; }));
    put(QStringLiteral("config/mimeapps.list"), "[Default Applications]\nx-scheme-handler/https=two.desktop\n");
    EXPECT_TRUE(eventually([&] { return browsers() == QStringList{QStringLiteral("two")}; }));
}

} // namespace tarvin::desktop
