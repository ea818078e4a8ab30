#include "platform/linux/feedback/PulseSounds.h"

#include "endtoend/support/ChildProcess.h"
#include "platform/linux/feedback/ClickSound.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <chrono>
#include <cstdlib>
#include <mutex>
#include <thread>

namespace tarvin::feedback {

namespace {

using namespace std::chrono_literals;
using endtoend::ChildProcess;
using endtoend::eventually;

constexpr int rate = 44100;
/// What a user takes for at once, with room for a machine that is busy with other tests.
constexpr auto noticeableDelay = 250ms;

/// A sound server of the test's own whose only loudspeaker is a file.
class SoundServer
{
public:
    explicit SoundServer(const QString& folder)
        : m_socket((folder + QStringLiteral("/pulse.socket")).toStdString())
        , m_recording(folder + QStringLiteral("/recording"))
        , m_server({"pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
                       "--load=module-native-protocol-unix auth-anonymous=1 socket=" + m_socket,
                       "--load=module-null-sink sink_name=loudspeaker rate=44100 channels=1"},
              environment(folder))
    {
        qputenv("PULSE_SERVER", "unix:" + QByteArray::fromStdString(m_socket));
    }
    ~SoundServer() { qunsetenv("PULSE_SERVER"); }
    SoundServer(const SoundServer&) = delete;
    SoundServer& operator=(const SoundServer&) = delete;

    /// From now on everything that would be heard is kept.
    void record(const QString& folder)
    {
        m_recorder = std::make_unique<ChildProcess>(
            std::vector<std::string>{"parec", "--raw", "--device=loudspeaker.monitor", "--format=s16le", "--channels=1",
                "--rate=44100", "--latency-msec=5", m_recording.toStdString()},
            environment(folder));
        ASSERT_TRUE(eventually([this] { return samples().size() > rate / 20; }));
    }

    [[nodiscard]] std::vector<std::int16_t> samples() const
    {
        QFile file(m_recording);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        const QByteArray bytes = file.readAll();
        std::vector<std::int16_t> values(static_cast<std::size_t>(bytes.size() / 2));
        if (!values.empty())
            std::memcpy(values.data(), bytes.constData(), values.size() * 2);
        return values;
    }

    /// Where each sound begins that more than 60 milliseconds of silence stand before.
    [[nodiscard]] std::vector<std::size_t> beginnings() const
    {
        std::vector<std::size_t> places;
        std::size_t silence = rate;
        const std::vector<std::int16_t> heard = samples();
        for (std::size_t i = 0; i < heard.size(); ++i) {
            if (std::abs(int{heard[i]}) < 200) {
                ++silence;
                continue;
            }
            if (silence > rate * 60 / 1000)
                places.push_back(i);
            silence = 0;
        }
        return places;
    }

private:
    static ChildProcess::Environment environment(const QString& folder)
    {
        const std::string path = folder.toStdString();
        return {{"HOME", path}, {"XDG_RUNTIME_DIR", path}, {"XDG_CONFIG_HOME", path}, {"PULSE_RUNTIME_PATH", path},
            {"PULSE_SERVER", "unix:" + path + "/pulse.socket"}, {"DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere"}};
    }

    std::string m_socket;
    QString m_recording;
    ChildProcess m_server;
    std::unique_ptr<ChildProcess> m_recorder;
};

class PulseSoundsTest : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const char* program : {"pulseaudio", "parec"}) {
            if (!ChildProcess::isInstalled(program))
                GTEST_SKIP() << program << " is not installed";
        }
        qputenv("PULSE_SERVER", "unix:" + folder.filePath(QStringLiteral("pulse.socket")).toLocal8Bit());
        qputenv("PULSE_COOKIE", folder.filePath(QStringLiteral("cookie")).toLocal8Bit());
    }

    void startServer() { server = std::make_unique<SoundServer>(folder.path()); }

    [[nodiscard]] std::unique_ptr<PulseSounds> makeSounds()
    {
        auto sounds = std::make_unique<PulseSounds>([this](const QString& line) {
            const std::scoped_lock lock(mutex);
            lines += line;
        });
        sounds->prepare();
        return sounds;
    }
    /// Sounds that the server has taken.
    [[nodiscard]] std::unique_ptr<PulseSounds> makeReadySounds()
    {
        std::unique_ptr<PulseSounds> sounds;
        // The server needs a moment until it listens; a connection refused is tried again only seconds later.
        EXPECT_TRUE(eventually([&] {
            if (!QFile::exists(folder.filePath(QStringLiteral("pulse.socket"))))
                return false;
            if (!sounds)
                sounds = makeSounds();
            return sounds->isReady();
        }));
        return sounds;
    }
    [[nodiscard]] QStringList logged()
    {
        const std::scoped_lock lock(mutex);
        return lines;
    }

    QTemporaryDir folder{QStringLiteral("/tmp/tarvin-sound-XXXXXX")};
    std::unique_ptr<SoundServer> server;
    std::mutex mutex;
    QStringList lines;
};

} // namespace

TEST_F(PulseSoundsTest, aClickIsHeardAtOnceAndOnce)
{
    startServer();
    const auto sounds = makeReadySounds();
    server->record(folder.path());
    const auto asked = std::chrono::steady_clock::now();
    sounds->play(1104);
    ASSERT_TRUE(eventually([&] { return !server->beginnings().empty(); }));
    EXPECT_LT(std::chrono::steady_clock::now() - asked, noticeableDelay);
    EXPECT_FALSE(eventually([&] { return server->beginnings().size() > 1; }, 300ms));
    // What is heard is the click and nothing longer.
    const std::vector<std::int16_t> heard = server->samples();
    const std::size_t begin = server->beginnings().front();
    const auto isLoud = [](std::int16_t sample) { return std::abs(int{sample}) > 200; };
    const auto last = std::find_if(heard.rbegin(), heard.rend(), isLoud);
    EXPECT_LE(static_cast<std::size_t>(heard.rend() - last) - begin, clickSound().samples.size() + 200);
}

TEST_F(PulseSoundsTest, clicksKeepTheRhythmOfTheKeys)
{
    startServer();
    const auto sounds = makeReadySounds();
    server->record(folder.path());
    for (int i = 0; i < 4; ++i) {
        sounds->play(0);
        std::this_thread::sleep_for(200ms); // the rhythm is what is measured
    }
    ASSERT_TRUE(eventually([&] { return server->beginnings().size() == 4; }));
    const std::vector<std::size_t> places = server->beginnings();
    for (std::size_t i = 1; i < places.size(); ++i) {
        const double milliseconds = static_cast<double>(places[i] - places[i - 1]) * 1000.0 / rate;
        EXPECT_NEAR(milliseconds, 200.0, 80.0);
    }
}

TEST_F(PulseSoundsTest, aSoundFileIsLoadedAndPlayed)
{
    // 200 milliseconds of a loud tone, unlike the click.
    QFile file(folder.filePath(QStringLiteral("tone.wav")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    constexpr int count = rate / 5;
    const auto number = [&file](auto value) { file.write(reinterpret_cast<const char*>(&value), sizeof value); };
    file.write("RIFF");
    number(std::uint32_t{36 + 2 * count});
    file.write("WAVEfmt ");
    number(std::uint32_t{16});
    number(std::uint16_t{1});
    number(std::uint16_t{1});
    number(std::uint32_t{rate});
    number(std::uint32_t{2 * rate});
    number(std::uint16_t{2});
    number(std::uint16_t{16});
    file.write("data");
    number(std::uint32_t{2 * count});
    for (int i = 0; i < count; ++i)
        number(static_cast<std::int16_t>(i % 40 < 20 ? 9000 : -9000));
    file.close();

    startServer();
    const auto sounds = makeReadySounds();
    const std::optional<SoundId> tone = sounds->create(file.fileName());
    ASSERT_TRUE(tone);
    EXPECT_NE(*tone, 0U);
    ASSERT_TRUE(eventually([&] { return sounds->isReady(); }));
    server->record(folder.path());
    sounds->play(*tone);
    EXPECT_TRUE(eventually([&] {
        const std::vector<std::int16_t> heard = server->samples();
        return std::ranges::count_if(heard, [](int sample) { return std::abs(sample) > 5000; }) > count * 9 / 10;
    }));
}

TEST_F(PulseSoundsTest, nothingIsConnectedUntilSoundsAreNeeded)
{
    PulseSounds sounds([this](const QString& line) {
        const std::scoped_lock lock(mutex);
        lines += line;
    });
    EXPECT_FALSE(sounds.create(QStringLiteral("/System/Library/Sounds/Tink.aiff")));
    EXPECT_FALSE(eventually([&] { return !logged().isEmpty(); }, 300ms));
    sounds.prepare();
    EXPECT_TRUE(eventually([&] { return !logged().isEmpty(); }));
}

TEST_F(PulseSoundsTest, aMissingFileIsNoSound)
{
    EXPECT_FALSE(makeSounds()->create(QStringLiteral("/System/Library/Sounds/Tink.aiff")));
}

TEST_F(PulseSoundsTest, withoutAServerAClickDoesNothingAndIsExplainedOnce)
{
    const auto sounds = makeSounds();
    for (int i = 0; i < 20; ++i)
        sounds->play(1104);
    ASSERT_TRUE(eventually([&] { return !logged().isEmpty(); }));
    EXPECT_EQ(logged().size(), 1);
    EXPECT_TRUE(logged().first().startsWith(u"No key click: the sound server can't be reached ("))
        << logged().first().toStdString();
    EXPECT_FALSE(sounds->isReady());
}

TEST_F(PulseSoundsTest, aServerThatComesBackIsFoundByALaterClick)
{
    startServer();
    const auto sounds = makeReadySounds();
    server.reset();
    ASSERT_TRUE(eventually([&] { return !sounds->isReady(); }));
    QFile::remove(folder.filePath(QStringLiteral("pulse.socket")));
    startServer();
    EXPECT_TRUE(eventually(
        [&] {
            sounds->play(1104);
            return sounds->isReady();
        },
        20s));
}

} // namespace tarvin::feedback
