#include "platform/linux/services/MprisPlayers.h"

#include "platform/linux/services/ServicesOnBus.h"

namespace tarvin::services {

namespace {

class PlayersOnBus : public ServicesOnBus
{
protected:
    void SetUp() override
    {
        ServicesOnBus::SetUp();
        if (!IsSkipped())
            players = std::make_unique<MprisPlayers>(scheduler, buses.session, tell);
    }

    [[nodiscard]] std::unique_ptr<MockService> player(const char* service, const char* status) const
    {
        auto player = std::make_unique<MockService>(
            *sessionBus, service, "/org/mpris/MediaPlayer2", "org.mpris.MediaPlayer2.Player");
        player->addProperty("PlaybackStatus", QString::fromLatin1(status));
        for (const char* method : {"PlayPause", "Next", "Previous"})
            player->addMethod(method, "");
        return player;
    }

    std::unique_ptr<MprisPlayers> players;
};

} // namespace

TEST_F(PlayersOnBus, thePlayerThatPlaysGetsTheCommands)
{
    const auto paused = player("org.mpris.MediaPlayer2.aaa", "Paused");
    const auto playing = player("org.mpris.MediaPlayer2.bbb", "Playing");
    players->send(MediaCommand::playPause);
    ASSERT_TRUE(playing->isCalled(1));
    players->send(MediaCommand::next);
    ASSERT_TRUE(playing->isCalled(2));
    players->send(MediaCommand::previous);
    ASSERT_TRUE(playing->isCalled(3));
    EXPECT_EQ(playing->calls(),
        QStringList({QStringLiteral("PlayPause"), QStringLiteral("Next"), QStringLiteral("Previous")}));
    EXPECT_EQ(paused->calls(), QStringList());
    EXPECT_EQ(told(), QStringList());
}

TEST_F(PlayersOnBus, aPlayerThatWasPausedByTheKeyIsStartedByTheKeyAgain)
{
    const auto other = player("org.mpris.MediaPlayer2.aaa", "Paused");
    const auto mine = player("org.mpris.MediaPlayer2.bbb", "Playing");
    players->send(MediaCommand::playPause);
    ASSERT_TRUE(mine->isCalled(1));
    mine->setProperty("PlaybackStatus", QStringLiteral("Paused"));
    players->send(MediaCommand::playPause);
    ASSERT_TRUE(mine->isCalled(2));
    EXPECT_EQ(other->calls(), QStringList());
}

TEST_F(PlayersOnBus, aPlayerThatPlaysNowIsBetterThanTheOneAskedLast)
{
    const auto asked = player("org.mpris.MediaPlayer2.aaa", "Playing");
    players->send(MediaCommand::playPause);
    ASSERT_TRUE(asked->isCalled(1));
    asked->setProperty("PlaybackStatus", QStringLiteral("Paused"));
    const auto playing = player("org.mpris.MediaPlayer2.bbb", "Playing");
    players->send(MediaCommand::next);
    ASSERT_TRUE(playing->isCalled(1));
    EXPECT_EQ(asked->calls(), QStringList(QStringLiteral("PlayPause")));
}

TEST_F(PlayersOnBus, whereNobodyPlaysAPausedPlayerIsBetterThanAStoppedOne)
{
    const auto stopped = player("org.mpris.MediaPlayer2.aaa", "Stopped");
    const auto paused = player("org.mpris.MediaPlayer2.bbb", "Paused");
    players->send(MediaCommand::playPause);
    ASSERT_TRUE(paused->isCalled(1));
    EXPECT_EQ(stopped->calls(), QStringList());
}

TEST_F(PlayersOnBus, withoutAPlayerTheUserIsTold)
{
    players->send(MediaCommand::next);
    EXPECT_TRUE(tells("No Media Player"));
}

TEST_F(PlayersOnBus, withoutABusTheUserIsTold)
{
    players = std::make_unique<MprisPlayers>(scheduler, noBus, tell);
    players->send(MediaCommand::next);
    EXPECT_TRUE(tells("No Media Player"));
}

} // namespace tarvin::services
