#include "platform/linux/desktop/IconTheme.h"

#include "platform/linux/desktop/DesktopApplicationFolders.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace tarvin::desktop {

namespace {

class IconThemes : public testing::Test
{
protected:
    QString put(const QString& path, const QByteArray& content = "picture") const
    {
        const QString whole = home.filePath(path);
        QDir().mkpath(whole.section(u'/', 0, -2));
        QFile file(whole);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return whole;
    }
    [[nodiscard]] IconPlaces places(const QString& theme) const
    {
        return {.themeFolders = {home.filePath(u"user"_qs), home.filePath(u"system"_qs)},
            .theme = theme,
            .plainFolders = {home.filePath(u"pixmaps"_qs)}};
    }
    [[nodiscard]] QStringList files(const QString& icon, int pixels, const QString& theme = u"Blue"_qs) const
    {
        return IconTheme(places(theme)).filesOf(icon, pixels);
    }
    void putSizes() const
    {
        put(u"system/hicolor/index.theme"_qs,
            "[Icon Theme]\nDirectories=16x16/apps,48x48/apps,64x64/apps,scalable/apps\n"
            "[16x16/apps]\nSize=16\nType=Fixed\n[48x48/apps]\nSize=48\nType=Fixed\n[64x64/apps]\nSize=64\nType=Fixed\n"
            "[scalable/apps]\nSize=128\nMinSize=8\nMaxSize=512\nType=Scalable\n");
    }

    QTemporaryDir home;
};

TEST_F(IconThemes, theNearestSizeStandsFirstAndALargerOneBeforeASmaller)
{
    putSizes();
    const QString small = put(u"system/hicolor/16x16/apps/paint.png"_qs);
    const QString middle = put(u"system/hicolor/48x48/apps/paint.png"_qs);
    const QString large = put(u"system/hicolor/64x64/apps/paint.png"_qs);
    EXPECT_EQ(files(u"paint"_qs, 56), (QStringList{large, middle, small}));
    EXPECT_EQ(files(u"paint"_qs, 48), (QStringList{middle, large, small}));
    EXPECT_EQ(files(u"paint"_qs, 28), (QStringList{middle, large, small}));
    const QString drawing = put(u"system/hicolor/scalable/apps/paint.svg"_qs);
    EXPECT_EQ(files(u"paint"_qs, 56).first(), drawing);
}

TEST_F(IconThemes, theChosenThemeGoesBeforeItsParentsAndThoseBeforeTheLast)
{
    putSizes();
    put(u"system/Blue/index.theme"_qs,
        "[Icon Theme]\nInherits=hicolor,Green\nDirectories=apps\n[apps]\nSize=32\nType=Threshold\n");
    put(u"system/Green/index.theme"_qs, "[Icon Theme]\nInherits=Blue\nDirectories=apps\n[apps]\nSize=32\n");
    const QString last = put(u"system/hicolor/48x48/apps/paint.png"_qs);
    const QString inherited = put(u"system/Green/apps/paint.png"_qs);
    EXPECT_EQ(files(u"paint"_qs, 48), (QStringList{inherited, last}));
    const QString chosen = put(u"system/Blue/apps/paint.png"_qs);
    EXPECT_EQ(files(u"paint"_qs, 48), (QStringList{chosen, inherited, last}));
}

TEST_F(IconThemes, theUsersOwnFolderGoesBeforeTheSystems)
{
    putSizes();
    const QString theSystems = put(u"system/hicolor/48x48/apps/paint.png"_qs);
    const QString theUsers = put(u"user/hicolor/48x48/apps/paint.png"_qs);
    EXPECT_EQ(files(u"paint"_qs, 48), (QStringList{theUsers, theSystems}));
}

TEST_F(IconThemes, foldersForDenseScreensCountInPixels)
{
    put(u"system/hicolor/index.theme"_qs,
        "[Icon Theme]\nDirectories=32x32/apps\nScaledDirectories=32x32@2/apps\n"
        "[32x32/apps]\nSize=32\nType=Fixed\n[32x32@2/apps]\nSize=32\nScale=2\nType=Fixed\n");
    const QString plain = put(u"system/hicolor/32x32/apps/paint.png"_qs);
    const QString dense = put(u"system/hicolor/32x32@2/apps/paint.png"_qs);
    EXPECT_EQ(files(u"paint"_qs, 64), (QStringList{dense, plain}));
    EXPECT_EQ(files(u"paint"_qs, 32), (QStringList{plain, dense}));
}

TEST_F(IconThemes, whatNoThemeHasIsAPlainPictureOrNothing)
{
    putSizes();
    const QString plain = put(u"pixmaps/old.xpm"_qs);
    EXPECT_EQ(files(u"old"_qs, 28), QStringList{plain});
    EXPECT_EQ(files(u"old.xpm"_qs, 28), QStringList{plain}) << "some entries name the file";
    EXPECT_EQ(files(u"unheard-of"_qs, 28), QStringList());
    EXPECT_EQ(files(u"/opt/paint/icon.png"_qs, 28), QStringList{u"/opt/paint/icon.png"_qs});
}

TEST_F(IconThemes, anIndexThatMakesNoSenseHarmsNothing)
{
    put(u"system/Blue/index.theme"_qs,
        "[Icon Theme]\nInherits=Blue,,Gone\nDirectories=apps,nowhere\n[apps]\nSize=huge\n");
    const QString picture = put(u"system/Blue/apps/paint.png"_qs);
    EXPECT_EQ(files(u"paint"_qs, 48), QStringList{picture});
}

TEST_F(IconThemes, theFoldersOfApplicationsKnowThePicturesOfTheirIcons)
{
    putSizes();
    const QString picture = put(u"system/hicolor/48x48/apps/paint.png"_qs);
    const DesktopApplicationFolders folders({}, places({}));
    EXPECT_EQ(folders.pictureFiles(u"paint"_qs, 48), QStringList{picture});
}

} // namespace

} // namespace tarvin::desktop
