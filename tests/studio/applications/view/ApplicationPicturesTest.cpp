#include "studio/applications/view/ApplicationPictures.h"

#include "platform/simulated/SimulatedApplicationFolders.h"
#include "support/QtPrinters.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tarvin {

namespace {

class Pictures : public testing::Test
{
protected:
    void put(const QString& icon, const QSize& size)
    {
        const QString file = home.filePath(icon + u".png"_qs);
        QImage picture(size, QImage::Format_ARGB32);
        picture.fill(Qt::red);
        picture.save(file);
        folders.setPicture(icon, file);
    }

    QTemporaryDir home;
    simulated::SimulatedApplicationFolders folders;
    ApplicationIcons::Read read = picturesOf(folders);
};

TEST_F(Pictures, aPictureGetsTheSizeThatIsWanted)
{
    put(u"paint"_qs, {256, 256});
    const QImage image = read(u"paint"_qs, 56);
    EXPECT_EQ(image.size(), QSize(56, 56));
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::red));
}

TEST_F(Pictures, aPictureThatIsNoSquareStandsInTheMiddle)
{
    put(u"wide"_qs, {64, 32});
    const QImage image = read(u"wide"_qs, 28);
    EXPECT_EQ(image.pixelColor(14, 14), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(14, 3).alpha(), 0);
    EXPECT_EQ(image.pixelColor(14, 24).alpha(), 0);
}

TEST_F(Pictures, whatCannotBeReadGivesNone)
{
    folders.setPicture(u"gone"_qs, home.filePath(u"gone.png"_qs));
    EXPECT_TRUE(read(u"gone"_qs, 28).isNull());
    EXPECT_TRUE(read(u"unheard-of"_qs, 28).isNull());
}

} // namespace

} // namespace tarvin
