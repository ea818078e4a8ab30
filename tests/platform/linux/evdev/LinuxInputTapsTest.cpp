#include "platform/linux/evdev/LinuxInputTaps.h"

#include "platform/simulated/SimulatedScheduler.h"
#include "tapd/service/ServiceBench.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QStringList>
#include <QTemporaryDir>

#include <sys/un.h>
#include <unistd.h>

#include <cstring>

namespace tarvin::evdev::test {

using namespace std::chrono_literals;
using tapd::KeyBits;
using tapd::test::RecordedKeyboard;
using tapd::test::RecordedOutputs;

namespace {

class QuietTap final : public EventTap
{
public:
    explicit QuietTap(bool& isEnabled)
        : m_isEnabled(isEnabled)
    { }
    void attachToMainLoop() override { }
    void detachFromMainLoop() override { }
    void enable() override { m_isEnabled = true; }
    void disable() override { m_isEnabled = false; }
    [[nodiscard]] bool isEnabled() const override { return m_isEnabled; }

private:
    bool& m_isEnabled;
};

/// Paths of the session on which nobody types.
class QuietSession final : public InputTaps
{
public:
    std::unique_ptr<EventTap> createTap(TapLocation, TapHandler) override
    {
        return hasTap ? std::make_unique<QuietTap>(isTapEnabled) : nullptr;
    }
    std::unique_ptr<EventMonitor> addGlobalMonitor(MonitorHandler) override { return nullptr; }
    std::unique_ptr<EventMonitor> addLocalMonitor(LocalMonitorHandler) override { return nullptr; }
    std::unique_ptr<HidManager> openHidManager(HidHandler) override { return nullptr; }
    void publishConsumedKeys(FKeySet customKeys, SummonShortcut) override { published = customKeys; }

    FKeySet published;
    bool hasTap = false;
    bool isTapEnabled = false;
};

/// The daemon's own service behind a socket, without devices.
class DaemonHere
{
public:
    explicit DaemonHere(const std::string& path)
        : m_path(path)
        , m_listener(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_NONBLOCK | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::memcpy(address.sun_path, path.data(), path.size());
        EXPECT_EQ(::bind(m_listener.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        EXPECT_EQ(::listen(m_listener.get(), 4), 0);
    }
    ~DaemonHere() { ::unlink(m_path.c_str()); }
    DaemonHere(const DaemonHere&) = delete;
    DaemonHere& operator=(const DaemonHere&) = delete;
    DaemonHere(DaemonHere&&) = delete;
    DaemonHere& operator=(DaemonHere&&) = delete;

    /// Both sides work off what has come, until nothing more does.
    void settle()
    {
        for (int round = 0; round < 4; ++round) {
            tapd::FileDescriptor caller(::accept4(m_listener.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
            if (caller.isOpen())
                service.accept(tapd::FrameSocket(std::move(caller)), recorded.now());
            QCoreApplication::processEvents();
            if (service.hasApplication())
                service.readApplication(recorded.now());
        }
    }
    std::string play(std::string_view words)
    {
        service.handleEvents(keyboard, recorded.record(words));
        settle();
        return outputs.takeWritten();
    }
    void tick()
    {
        service.tick(recorded.now());
        settle();
    }

    RecordedOutputs outputs;
    tapd::TapService service{outputs};
    tapd::KeyboardId keyboard = service.attach(tapd::Output::external);
    RecordedKeyboard recorded;

private:
    std::string m_path;
    tapd::FileDescriptor m_listener;
};

class LinuxInputTapsTest : public testing::Test
{
protected:
    void startDaemon() { daemon = std::make_unique<DaemonHere>(path); }
    void startClient()
    {
        client = std::make_unique<TapClient>(scheduler, path, [this](const QString& line) { lines.append(line); });
        taps = std::make_unique<LinuxInputTaps>(session, *client);
        if (daemon)
            daemon->settle();
    }
    /// As the program does at its start.
    void createTap(EventVerdict verdict = EventVerdict::consume)
    {
        tap = taps->createTap(TapLocation::hid, [this, verdict](const InputEvent& event) {
            seen.push_back(event);
            return verdict;
        });
        if (!tap)
            return;
        tap->attachToMainLoop();
        tap->enable();
        hidManager = taps->openHidManager([this](const HidValue& value) { values.push_back(value); });
    }
    void publish(FKeySet keys, SummonShortcut summon = SummonShortcut::released)
    {
        taps->publishConsumedKeys(keys, summon);
        daemon->settle();
    }

    int argumentCount = 1;
    std::array<char, 7> name{'t', 'a', 'r', 'v', 'i', 'n', '\0'};
    char* arguments = name.data();
    QCoreApplication application{argumentCount, &arguments};
    QTemporaryDir folder;
    std::string path = folder.filePath(QStringLiteral("socket")).toStdString();
    simulated::SimulatedScheduler scheduler;
    QuietSession session;
    QStringList lines;
    std::vector<InputEvent> seen;
    std::vector<HidValue> values;
    std::unique_ptr<DaemonHere> daemon;
    std::unique_ptr<TapClient> client;
    std::unique_ptr<LinuxInputTaps> taps;
    std::unique_ptr<EventTap> tap;
    std::unique_ptr<HidManager> hidManager;
};

} // namespace

TEST_F(LinuxInputTapsTest, withoutADaemonThereIsNoHidTapAndTheLogSaysSo)
{
    startClient();
    createTap();
    EXPECT_EQ(tap, nullptr);
    EXPECT_EQ(client->state(), TapClient::State::absent);
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines.first().contains(QStringLiteral("Tap daemon absent")));
    hidManager = taps->openHidManager([](const HidValue&) {});
    EXPECT_FALSE(hidManager->isOpen());
    taps->publishConsumedKeys({FKey::f5}, SummonShortcut::released);
    EXPECT_EQ(session.published, FKeySet{FKey::f5}) << "the session goes on as before";
}

TEST_F(LinuxInputTapsTest, aDaemonThatComesLaterFeedsTheTapOfTheSession)
{
    session.hasTap = true;
    startClient();
    createTap();
    EXPECT_EQ(tap, nullptr);
    tap = taps->createTap(TapLocation::session, [this](const InputEvent& event) {
        seen.push_back(event);
        return EventVerdict::consume;
    });
    ASSERT_NE(tap, nullptr);
    tap->attachToMainLoop();
    tap->enable();
    EXPECT_TRUE(session.isTapEnabled);
    hidManager = taps->openHidManager([this](const HidValue& value) { values.push_back(value); });
    taps->publishConsumedKeys({FKey::f5}, SummonShortcut::released);
    client->lookAgain();
    EXPECT_EQ(client->state(), TapClient::State::absent) << "nothing is there yet";

    startDaemon();
    client->lookAgain();
    daemon->settle();
    EXPECT_EQ(client->state(), TapClient::State::connected);
    EXPECT_TRUE(lines.last().contains(QStringLiteral("Tap daemon connected")));
    EXPECT_EQ(daemon->play("+f5 -f5"), "");
    EXPECT_EQ(seen.size(), 2U);
    EXPECT_EQ(values.size(), 2U);
    tap->disable();
    daemon->settle();
    EXPECT_FALSE(session.isTapEnabled);
    EXPECT_EQ(daemon->play("+f5 -f5"), "+f5 -f5");
}

TEST_F(LinuxInputTapsTest, aSocketThatNobodyAnswersYetIsTriedAgain)
{
    startClient();
    const tapd::FileDescriptor early(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.data(), path.size());
    ASSERT_EQ(::bind(early.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    client->lookAgain();
    EXPECT_EQ(client->state(), TapClient::State::lost);
    ::unlink(path.c_str());
    startDaemon();
    scheduler.advance(500ms);
    daemon->settle();
    EXPECT_EQ(client->state(), TapClient::State::connected);
}

TEST_F(LinuxInputTapsTest, keysArePostedThroughTheDaemonWhileItServes)
{
    startClient();
    const auto posting = client->keyPosting();
    constexpr x11::Keycode keyA = 30 + 8;
    EXPECT_FALSE(posting->isOpen());
    EXPECT_FALSE(posting->post({keyA, x11::FakeMotion::press}));
    startDaemon();
    client->lookAgain();
    daemon->settle();
    EXPECT_TRUE(posting->isOpen());
    EXPECT_TRUE(posting->post({keyA, x11::FakeMotion::press}));
    EXPECT_TRUE(posting->post({keyA, x11::FakeMotion::release}));
    daemon->settle();
    EXPECT_EQ(daemon->outputs.takePosted(), "+a -a");
    EXPECT_TRUE(posting->post({keyA, x11::FakeMotion::press}));
    daemon->settle();
    taps.reset();
    client.reset();
    EXPECT_FALSE(posting->isOpen());
    daemon->settle();
    EXPECT_EQ(daemon->outputs.takePosted(), "+a -a") << "nothing stays down";
}

TEST_F(LinuxInputTapsTest, aTakenKeyReachesTheHidTapInItsForm)
{
    startDaemon();
    startClient();
    createTap();
    ASSERT_NE(tap, nullptr);
    publish({FKey::f5, FKey::f10, FKey::rightOption});
    EXPECT_EQ(daemon->play("+a +f5 ~f5 -f5 +mute -mute +rightOption -rightOption -a"), "+a -a");
    ASSERT_EQ(seen.size(), 7U);
    EXPECT_EQ(seen[0].type, InputEventType::keyDown);
    EXPECT_EQ(seen[0].keyCode, 96);
    EXPECT_EQ(seen[1].autorepeat, 1);
    EXPECT_EQ(seen[2].type, InputEventType::keyUp);
    EXPECT_EQ(seen[3].type, InputEventType::systemDefined);
    EXPECT_EQ(seen[3].systemDefined->keyType(), 7);
    EXPECT_TRUE(seen[3].systemDefined->isDown());
    EXPECT_FALSE(seen[4].systemDefined->isDown());
    EXPECT_EQ(seen[5].type, InputEventType::flagsChanged);
    EXPECT_EQ(seen[5].flags, EventFlags::option);
    EXPECT_EQ(seen[6].flags, EventFlags::none);
}

TEST_F(LinuxInputTapsTest, whileAShortcutIsRecordedEveryKeyGoesToTheSession)
{
    startDaemon();
    startClient();
    createTap();
    publish({FKey::f5});
    taps->setRecording(true);
    daemon->settle();
    EXPECT_EQ(daemon->play("+f5 -f5"), "+f5 -f5");
    publish({FKey::f5, FKey::f6});
    EXPECT_EQ(daemon->play("+f6 -f6"), "+f6 -f6");
    EXPECT_TRUE(seen.empty());
    taps->setRecording(false);
    daemon->settle();
    EXPECT_EQ(daemon->play("+f5 -f5 +f6 -f6"), "");
    EXPECT_EQ(seen.size(), 4U);
}

TEST_F(LinuxInputTapsTest, theHidManagerHearsPageAndUsage)
{
    startDaemon();
    startClient();
    createTap();
    EXPECT_TRUE(hidManager->isOpen());
    publish({FKey::f5, FKey::f12});
    daemon->play("+f5 ~f5 -f5 +volumeUp");
    ASSERT_EQ(values.size(), 3U);
    EXPECT_EQ(values[0].page, 0x07U);
    EXPECT_EQ(values[0].usage, 0x3EU);
    EXPECT_EQ(values[0].value, 1);
    EXPECT_EQ(values[1].value, 0);
    EXPECT_EQ(values[2].page, 0x0CU);
    EXPECT_EQ(values[2].usage, 0xE9U);
}

TEST_F(LinuxInputTapsTest, theSummonShortcutComesAsItsKeyWithItsModifiers)
{
    startDaemon();
    startClient();
    createTap();
    publish({}, SummonShortcut::taken);
    daemon->play("+leftCommand +leftOption +k -k");
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].keyCode, 40);
    EXPECT_TRUE(containsAll(seen[0].flags, EventFlags::option | EventFlags::command));
}

TEST_F(LinuxInputTapsTest, nothingIsTakenWhileTheTapIsOff)
{
    startDaemon();
    startClient();
    createTap();
    publish({FKey::f5});
    tap->disable();
    daemon->settle();
    EXPECT_EQ(daemon->play("+f5 -f5"), "+f5 -f5");
    tap->enable();
    daemon->settle();
    EXPECT_EQ(daemon->play("+f5 -f5"), "");
    tap.reset();
    daemon->settle();
    EXPECT_EQ(daemon->play("+f5 -f5"), "+f5 -f5");
}

TEST_F(LinuxInputTapsTest, aPressThatTheTapLetsPassIsPostedAgain)
{
    startDaemon();
    startClient();
    createTap(EventVerdict::pass);
    publish({FKey::f5});
    EXPECT_EQ(daemon->play("+f5 ~f5 -f5"), "");
    EXPECT_EQ(daemon->outputs.takePosted(), "+f5 -f5");
}

TEST_F(LinuxInputTapsTest, theDaemonIsAnsweredWhenItAsks)
{
    startDaemon();
    startClient();
    createTap();
    publish({FKey::f5});
    for (int i = 0; i < 10; ++i) {
        daemon->play("400ms");
        daemon->tick();
    }
    EXPECT_EQ(daemon->play("+f5 -f5"), "");
}

TEST_F(LinuxInputTapsTest, theWayOutIsToldAndKnownFromThenOn)
{
    startDaemon();
    startClient();
    createTap();
    int told = 0;
    client->setWayOutHandler([&] {
        ++told;
        taps->publishConsumedKeys({}, SummonShortcut::taken);
    });
    publish({FKey::f5});
    daemon->play("+backspace +escape +return 500ms");
    daemon->tick();
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(daemon->service.takeWayOut());
    EXPECT_FALSE(daemon->service.wantsKeyboards());
    publish({FKey::f5});
    EXPECT_TRUE(daemon->service.wantsKeyboards()) << "the user switched the program on again";
}

TEST_F(LinuxInputTapsTest, aWayOutFromBeforeIsToldAtTheConnection)
{
    startDaemon();
    startClient();
    createTap();
    publish({FKey::f5});
    tap.reset();
    hidManager.reset();
    taps.reset();
    client.reset();
    daemon->play("+backspace +escape +return 500ms");
    daemon->tick();
    startClient();
    int told = 0;
    client->setWayOutHandler([&told] { ++told; });
    EXPECT_EQ(told, 1) << "also where nobody was there to be told when it was heard of";
}

TEST_F(LinuxInputTapsTest, aDaemonThatComesBackIsToldWhatToTake)
{
    startDaemon();
    startClient();
    createTap();
    publish({FKey::f5});
    daemon.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(client->state(), TapClient::State::lost);
    EXPECT_FALSE(tap->isEnabled());
    scheduler.advance(500ms);
    EXPECT_EQ(client->state(), TapClient::State::lost) << "it is not back yet";
    startDaemon();
    scheduler.advance(1s);
    daemon->settle();
    EXPECT_EQ(client->state(), TapClient::State::connected);
    EXPECT_TRUE(tap->isEnabled());
    EXPECT_EQ(daemon->play("+f5 -f5"), "");
    EXPECT_EQ(seen.size(), 2U);
}

TEST_F(LinuxInputTapsTest, aClientThatIsRefusedSaysSo)
{
    startDaemon();
    client = std::make_unique<TapClient>(scheduler, path, [this](const QString& line) { lines.append(line); });
    EXPECT_EQ(client->state(), TapClient::State::connecting);
    daemon.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(client->state(), TapClient::State::lost);
    ASSERT_FALSE(lines.isEmpty());
    EXPECT_TRUE(lines.last().contains(QStringLiteral("refused")));
}

} // namespace tarvin::evdev::test
