#include "studio/applications/view/ApplicationIcons.h"

#include "platform/simulated/SimulatedPlatform.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin {

namespace {

class Icons : public testing::Test
{
protected:
    QImage read(const QString& icon, int pixels)
    {
        readings += icon;
        if (icon == u"missing")
            return {};
        QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::red);
        return image;
    }
    void arrive() { desktop.scheduler().runPosted(); }

    simulated::SimulatedPlatform desktop;
    QStringList readings;
    ApplicationIcons icons{desktop.scheduler(), [this](const QString& icon, int pixels) { return read(icon, pixels); }};
};

TEST_F(Icons, anIconArrivesLaterAndIsReadOnce)
{
    const test::SignalCount changes(icons, &ApplicationIcons::changed);
    EXPECT_TRUE(icons.icon(u"paint"_qs, 28, 2).isNull());
    EXPECT_TRUE(icons.icon(u"paint"_qs, 28, 2).isNull());
    EXPECT_TRUE(readings.isEmpty()) << "nothing is read while a row is painted";
    arrive();
    EXPECT_EQ(changes.count(), 1);
    const QPixmap icon = icons.icon(u"paint"_qs, 28, 2);
    EXPECT_EQ(icon.size(), QSize(56, 56));
    EXPECT_EQ(icon.devicePixelRatio(), 2);
    EXPECT_EQ(readings, QStringList{u"paint"_qs});
}

TEST_F(Icons, eachSizeIsReadByItself)
{
    EXPECT_TRUE(icons.icon(u"paint"_qs, 28, 1).isNull());
    EXPECT_TRUE(icons.icon(u"paint"_qs, 28, 1.5).isNull());
    arrive();
    EXPECT_EQ(icons.icon(u"paint"_qs, 28, 1).width(), 28);
    EXPECT_EQ(icons.icon(u"paint"_qs, 28, 1.5).width(), 42);
}

TEST_F(Icons, whatHasNoIconIsNotAskedForAgain)
{
    EXPECT_TRUE(icons.icon(u"missing"_qs, 28, 1).isNull());
    arrive();
    EXPECT_TRUE(icons.icon(u"missing"_qs, 28, 1).isNull());
    EXPECT_TRUE(icons.icon(QString(), 28, 1).isNull());
    arrive();
    EXPECT_EQ(readings, QStringList{u"missing"_qs});
}

TEST_F(Icons, whatWasScrolledAwayLongAgoIsNotRead)
{
    for (int number = 0; number < 500; ++number)
        static_cast<void>(icons.icon(QString::number(number), 28, 1));
    arrive();
    EXPECT_LT(readings.size(), 70);
    EXPECT_THAT(readings, testing::Contains(u"499"_qs));
    EXPECT_THAT(readings, testing::Not(testing::Contains(u"250"_qs)));
}

TEST_F(Icons, mayGoBeforeAReadingEnds)
{
    auto gone = std::make_unique<ApplicationIcons>(
        desktop.scheduler(), [this](const QString& icon, int pixels) { return read(icon, pixels); });
    static_cast<void>(gone->icon(u"paint"_qs, 28, 1));
    gone.reset();
    arrive();
    EXPECT_EQ(readings.size(), 1);
}

} // namespace

} // namespace tarvin
