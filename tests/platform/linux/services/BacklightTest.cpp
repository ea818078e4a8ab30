#include "platform/linux/services/Backlight.h"

#include "platform/linux/services/ServicesOnBus.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace tarvin::services {

namespace {

class BacklightOnBus : public ServicesOnBus
{
protected:
    void SetUp() override
    {
        ServicesOnBus::SetUp();
        if (!IsSkipped())
            backlight = std::make_unique<Backlight>(scheduler, buses.system, *answers, tell, folder.path());
    }

    void putLight(const char* name, const char* kind, unsigned level, unsigned full) const
    {
        const QString path = folder.filePath(QString::fromLatin1(name));
        QDir().mkpath(path);
        const auto put = [&](const char* file, const QByteArray& content) {
            QFile entry(path + u'/' + QString::fromLatin1(file));
            ASSERT_TRUE(entry.open(QIODevice::WriteOnly));
            entry.write(content + '\n');
        };
        put("type", kind);
        put("brightness", QByteArray::number(level));
        put("max_brightness", QByteArray::number(full));
    }

    QTemporaryDir folder;
    std::unique_ptr<Backlight> backlight;
};

} // namespace

TEST(SteppedLevel, aStepIsASixteenthOfTheFullBrightness)
{
    EXPECT_EQ(steppedLevel(800, 1600, Backlight::Step::up), 900U);
    EXPECT_EQ(steppedLevel(800, 1600, Backlight::Step::down), 700U);
}

TEST(SteppedLevel, theStepsEndAtFullBrightnessAndAboveDarkness)
{
    EXPECT_EQ(steppedLevel(1550, 1600, Backlight::Step::up), 1600U);
    EXPECT_EQ(steppedLevel(60, 1600, Backlight::Step::down), 16U);
    EXPECT_EQ(steppedLevel(16, 1600, Backlight::Step::down), 16U);
    EXPECT_EQ(steppedLevel(5, 1600, Backlight::Step::down), 5U) << "nothing is made brighter by a step down";
}

TEST(SteppedLevel, aLightOfFewLevelsMovesByOne)
{
    EXPECT_EQ(steppedLevel(3, 7, Backlight::Step::up), 4U);
    EXPECT_EQ(steppedLevel(3, 7, Backlight::Step::down), 2U);
    EXPECT_EQ(steppedLevel(1, 7, Backlight::Step::down), 1U);
}

TEST_F(BacklightOnBus, theBrightnessIsAPartOfTheFullOne)
{
    EXPECT_EQ(backlight->current(), std::nullopt);
    putLight("panel", "raw", 300, 1200);
    EXPECT_EQ(backlight->current(), 0.25);
}

TEST_F(BacklightOnBus, theFirmwaresControlIsPreferred)
{
    putLight("a_raw", "raw", 1, 10);
    putLight("b_firmware", "firmware", 5, 10);
    putLight("c_platform", "platform", 9, 10);
    EXPECT_EQ(backlight->current(), 0.5);
}

TEST_F(BacklightOnBus, aStepAsksTheLoginManagerForTheNewLevelOfThatLight)
{
    const auto session = loginSession();
    session->addMethod("SetBrightness", "ssu");
    putLight("panel", "raw", 800, 1600);
    backlight->change(Backlight::Step::up);
    ASSERT_TRUE(session->isCalled(1));
    EXPECT_EQ(session->calls(), QStringList(QStringLiteral("SetBrightness backlight panel 900")));
    EXPECT_EQ(told(), QStringList());
}

TEST_F(BacklightOnBus, theStepHappensOnALaterTurn)
{
    const auto session = loginSession();
    session->addMethod("SetBrightness", "ssu");
    putLight("panel", "raw", 800, 1600);
    backlight->change(Backlight::Step::up);
    putLight("panel", "raw", 400, 1600);
    ASSERT_TRUE(session->isCalled(1));
    EXPECT_EQ(session->calls(), QStringList(QStringLiteral("SetBrightness backlight panel 500")));
}

TEST_F(BacklightOnBus, aRefusalIsShown)
{
    const auto session = loginSession();
    session->addRefusal("SetBrightness", "ssu", "org.freedesktop.DBus.Error.AccessDenied", "Not in front");
    putLight("panel", "raw", 800, 1600);
    backlight->change(Backlight::Step::down);
    EXPECT_TRUE(tells("Brightness refused: Not in front"));
}

TEST_F(BacklightOnBus, withoutALightTheUserIsTold)
{
    backlight->change(Backlight::Step::up);
    EXPECT_TRUE(tells("Not available on this desktop: Brightness"));
}

TEST_F(BacklightOnBus, withoutALoginManagerTheUserIsTold)
{
    putLight("panel", "raw", 800, 1600);
    backlight->change(Backlight::Step::up);
    EXPECT_TRUE(tells("Not available on this desktop: Brightness"));
}

} // namespace tarvin::services
