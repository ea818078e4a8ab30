#include "platform/linux/mixer/PulseMixer.h"

#include "endtoend/support/Patience.h"
#include "platform/linux/mixer/support/SoundServer.h"

#include <chrono>

namespace tarvin::mixer {

using namespace std::chrono_literals;
using endtoend::eventually;
using endtoend::SoundServer;

namespace {

/// A mixer on a real sound server of its own.
class MixerOnServer : public testing::Test
{
protected:
    void SetUp() override
    {
        if (const auto lack = SoundServer::lack())
            GTEST_SKIP() << *lack;
        begin(SoundServer::Devices::outputAndMicrophone);
    }

    void begin(SoundServer::Devices devices)
    {
        mixer.reset();
        server = std::make_unique<SoundServer>(devices);
        makeMixer(server->address());
    }

    void makeMixer(const std::string& address)
    {
        mixer = std::make_unique<PulseMixer>(
            [this](const QString& text) {
                const std::lock_guard lock(mutex);
                m_told += text;
            },
            address);
    }

    [[nodiscard]] QStringList told()
    {
        const std::lock_guard lock(mutex);
        return m_told;
    }

    void expectPercent(const std::string& kind, int percent) const
    {
        EXPECT_TRUE(eventually([&] { return server->percent(kind) == percent; }, 3s));
        EXPECT_EQ(server->percent(kind), percent);
    }

    void set(const std::string& kind, const std::string& what, const std::string& value) const
    {
        (void)server->ask(
            {"set-" + kind + "-" + what, std::string("@DEFAULT_") + (kind == "sink" ? "SINK" : "SOURCE") + "@", value});
    }

    std::unique_ptr<SoundServer> server;
    std::unique_ptr<PulseMixer> mixer;
    std::mutex mutex;

private:
    QStringList m_told;
};

} // namespace

TEST_F(MixerOnServer, theVolumeMovesBySixPoints)
{
    set("sink", "volume", "50%");
    mixer->changeOutputVolume(6);
    expectPercent("sink", 56);
    mixer->changeOutputVolume(-6);
    mixer->changeOutputVolume(-6);
    expectPercent("sink", 44);
    EXPECT_EQ(told(), QStringList());
}

TEST_F(MixerOnServer, theVolumeEndsAtFullAndAtSilence)
{
    set("sink", "volume", "98%");
    mixer->changeOutputVolume(6);
    expectPercent("sink", 100);
    set("sink", "volume", "4%");
    mixer->changeOutputVolume(-6);
    expectPercent("sink", 0);
    mixer->changeOutputVolume(6);
    expectPercent("sink", 6);
}

TEST_F(MixerOnServer, theBalanceOfTheChannelsIsKept)
{
    set("sink", "volume", "40%");
    (void)server->ask({"set-sink-volume", "speaker", "20%", "40%"});
    mixer->changeOutputVolume(20);
    EXPECT_TRUE(eventually([&] {
        return server->ask({"get-sink-volume", "speaker"}).find("60%") != std::string::npos;
    }));
    EXPECT_NE(server->ask({"get-sink-volume", "speaker"}).find("30%"), std::string::npos);
}

TEST_F(MixerOnServer, muteSwitchesThereAndBack)
{
    mixer->toggleOutputMute();
    EXPECT_TRUE(eventually([&] { return server->isMuted("sink"); }));
    mixer->toggleOutputMute();
    EXPECT_TRUE(eventually([&] { return !server->isMuted("sink"); }));
}

TEST_F(MixerOnServer, louderEndsTheSilenceAndQuieterDoesNot)
{
    set("sink", "volume", "50%");
    set("sink", "mute", "1");
    mixer->changeOutputVolume(-6);
    expectPercent("sink", 44);
    EXPECT_TRUE(server->isMuted("sink"));
    mixer->changeOutputVolume(6);
    expectPercent("sink", 50);
    EXPECT_TRUE(eventually([&] { return !server->isMuted("sink"); }));
}

TEST_F(MixerOnServer, theMicrophoneGoesToNothingAndBackToThreeQuarters)
{
    set("source", "volume", "30%");
    EXPECT_EQ(mixer->toggleMicrophone(), PulseMixer::Microphone::muted);
    EXPECT_EQ(server->percent("source"), 0);
    EXPECT_EQ(mixer->toggleMicrophone(), PulseMixer::Microphone::active);
    EXPECT_EQ(server->percent("source"), 75);
}

TEST_F(MixerOnServer, aMicrophoneThatSomebodyElseMutedIsHeardAgain)
{
    set("source", "volume", "30%");
    set("source", "mute", "1");
    EXPECT_EQ(mixer->toggleMicrophone(), PulseMixer::Microphone::active);
    EXPECT_EQ(server->percent("source"), 75);
    EXPECT_FALSE(server->isMuted("source"));
}

TEST_F(MixerOnServer, withoutAMicrophoneTheUserIsToldAndNoOutputIsTouched)
{
    begin(SoundServer::Devices::outputOnly);
    EXPECT_EQ(mixer->toggleMicrophone(), std::nullopt);
    EXPECT_EQ(told(), QStringList(QStringLiteral("No Microphone")));
    EXPECT_EQ(server->percent("source"), 100) << "the one input there is hears what the output plays";
}

TEST_F(MixerOnServer, aServerThatWasStartedAgainIsFoundAgain)
{
    set("sink", "volume", "50%");
    mixer->changeOutputVolume(6);
    expectPercent("sink", 56);
    server->end();
    mixer->changeOutputVolume(6);
    EXPECT_TRUE(eventually([&] { return told() == QStringList(QStringLiteral("No Sound Server")); }));
    server->start();
    set("sink", "volume", "20%");
    mixer->changeOutputVolume(6);
    expectPercent("sink", 26);
}

TEST_F(MixerOnServer, withoutAServerTheUserIsToldAndNobodyWaits)
{
    makeMixer("unix:/nowhere/at/all");
    const auto start = std::chrono::steady_clock::now();
    mixer->toggleOutputMute();
    EXPECT_LT(std::chrono::steady_clock::now() - start, 20ms);
    EXPECT_EQ(mixer->toggleMicrophone(), std::nullopt);
    EXPECT_EQ(told(), QStringList({QStringLiteral("No Sound Server"), QStringLiteral("No Sound Server")}));
}

} // namespace tarvin::mixer
