#include "platform/linux/services/LinuxSystemKeys.h"

#include "platform/linux/mixer/PulseMixer.h"
#include "platform/linux/services/Backlight.h"
#include "platform/linux/services/MprisPlayers.h"
#include "platform/linux/services/ServicesOnBus.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace tarvin::services {

namespace {

class KeysOnBus : public ServicesOnBus
{
protected:
    void SetUp() override
    {
        ServicesOnBus::SetUp();
        if (IsSkipped())
            return;
        QDir(folder.path()).mkdir(QStringLiteral("panel"));
        for (const auto& [name, content] :
            {std::pair("type", "raw"), {"brightness", "800"}, {"max_brightness", "1600"}}) {
            QFile file(folder.filePath(QStringLiteral("panel/") + QString::fromLatin1(name)));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(content);
        }
        session = loginSession();
        session->addMethod("SetBrightness", "ssu");
        player = std::make_unique<MockService>(
            *sessionBus, "org.mpris.MediaPlayer2.player", "/org/mpris/MediaPlayer2", "org.mpris.MediaPlayer2.Player");
        player->addProperty("PlaybackStatus", QStringLiteral("Playing"));
        for (const char* method : {"PlayPause", "Next", "Previous"})
            player->addMethod(method, "");
        players = std::make_unique<MprisPlayers>(scheduler, buses.session, tell);
        backlight = std::make_unique<Backlight>(scheduler, buses.system, *answers, tell, folder.path());
        mixer = std::make_unique<mixer::PulseMixer>(tell, "unix:/nowhere/at/all");
        keys = std::make_unique<LinuxSystemKeys>(*mixer, *players, *backlight);
    }

    void press(SystemKey key) const
    {
        keys->post(key, SystemKeyMotion::down);
        keys->post(key, SystemKeyMotion::up);
    }

    QTemporaryDir folder;
    std::unique_ptr<MockService> session;
    std::unique_ptr<MockService> player;
    std::unique_ptr<MprisPlayers> players;
    std::unique_ptr<Backlight> backlight;
    std::unique_ptr<mixer::PulseMixer> mixer;
    std::unique_ptr<LinuxSystemKeys> keys;
};

} // namespace

TEST_F(KeysOnBus, aPressOfABrightnessKeyIsOneStep)
{
    press(SystemKey::brightnessUp);
    ASSERT_TRUE(session->isCalled(1));
    press(SystemKey::brightnessDown);
    ASSERT_TRUE(session->isCalled(2));
    EXPECT_EQ(session->calls(),
        QStringList({QStringLiteral("SetBrightness backlight panel 900"),
            QStringLiteral("SetBrightness backlight panel 700")}));
}

TEST_F(KeysOnBus, aPressOfAMediaKeyIsOneCommand)
{
    press(SystemKey::play);
    ASSERT_TRUE(player->isCalled(1));
    press(SystemKey::next);
    ASSERT_TRUE(player->isCalled(2));
    press(SystemKey::previous);
    ASSERT_TRUE(player->isCalled(3));
    EXPECT_EQ(player->calls(),
        QStringList({QStringLiteral("PlayPause"), QStringLiteral("Next"), QStringLiteral("Previous")}));
}

TEST_F(KeysOnBus, aPressOfASoundKeyReachesTheSoundServerOnce)
{
    for (const SystemKey key : {SystemKey::soundUp, SystemKey::soundDown, SystemKey::mute})
        press(key);
    EXPECT_TRUE(eventually([this] { return told().size() == 3; })) << "there is no server, and each says so";
    static_cast<void>(eventually([] { return false; }, std::chrono::milliseconds(100)));
    EXPECT_EQ(told().size(), 3);
}

} // namespace tarvin::services
