#include "platform/linux/mixer/PulseMixer.h"

#include "platform/linux/mixer/PulseConnection.h"
#include "platform/linux/mixer/VolumeSteps.h"

#include <future>

namespace tarvin::mixer {

namespace {

const QString noServer = QStringLiteral("No Sound Server");
const QString noOutput = QStringLiteral("No Sound Output");
const QString noMicrophone = QStringLiteral("No Microphone");

bool isSilent(const SoundDevice& device)
{
    return device.isMuted || PulseLibrary::load()->cvolumeMax(&device.channels) == 0;
}

} // namespace

PulseMixer::PulseMixer(TellUser tellUser, std::string server)
    : m_tellUser(std::move(tellUser))
    , m_server(std::move(server))
{ }

PulseMixer::~PulseMixer()
{
    m_isEnding = true;
    {
        const std::lock_guard lock(m_mutex);
        m_entries.clear();
    }
    m_isAsked.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

void PulseMixer::changeOutputVolume(int points)
{
    ask([this, points](PulseConnection& server) {
        const std::optional<SoundDevice> output = server.read(Direction::output);
        if (!output) {
            m_tellUser(noOutput);
            return;
        }
        const int percent = percentOf(PulseLibrary::load()->cvolumeMax(&output->channels));
        const int wanted = steppedPercent(percent, points);
        bool isDone = wanted == percent || server.setVolume(Direction::output, *output, unitsOf(wanted));
        if (points > 0 && output->isMuted)
            isDone = server.setMuted(Direction::output, false) && isDone;
        if (!isDone)
            m_tellUser(noOutput);
    });
}

void PulseMixer::toggleOutputMute()
{
    ask([this](PulseConnection& server) {
        const std::optional<SoundDevice> output = server.read(Direction::output);
        if (!output || !server.setMuted(Direction::output, !output->isMuted))
            m_tellUser(noOutput);
    });
}

std::optional<PulseMixer::Microphone> PulseMixer::toggleMicrophone()
{
    auto promise = std::make_shared<std::promise<std::optional<Microphone>>>();
    auto outcome = promise->get_future();
    ask(
        [this, promise](PulseConnection& server) {
            const std::optional<SoundDevice> input = server.read(Direction::input);
            std::optional<Microphone> now;
            if (input && !input->isMonitor) {
                const bool isToBeActive = isSilent(*input);
                const VolumeUnits volume = isToBeActive ? unitsOf(activeMicrophonePercent) : 0;
                bool isDone = server.setVolume(Direction::input, *input, volume);
                if (isToBeActive && input->isMuted)
                    isDone = server.setMuted(Direction::input, false) && isDone;
                if (isDone)
                    now = isToBeActive ? Microphone::active : Microphone::muted;
            }
            if (!now)
                m_tellUser(noMicrophone);
            promise->set_value(now);
        },
        [promise] { promise->set_value(std::nullopt); });
    // A request dropped at the program's end takes its promise with it.
    promise.reset();
    try {
        return outcome.get();
    } catch (const std::future_error&) {
        return std::nullopt;
    }
}

void PulseMixer::ask(Request request, std::function<void()> onFailure)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_isEnding)
            return;
        m_entries.push_back({std::move(request), std::move(onFailure)});
        if (!m_thread.joinable())
            m_thread = std::thread([this] { work(); });
    }
    m_isAsked.notify_one();
}

void PulseMixer::work()
{
    std::unique_ptr<PulseConnection> connection;
    for (;;) {
        Entry entry;
        {
            std::unique_lock lock(m_mutex);
            m_isAsked.wait(lock, [this] { return m_isEnding || !m_entries.empty(); });
            if (m_isEnding)
                return;
            entry = std::move(m_entries.front());
            m_entries.pop_front();
        }
        const PulseLibrary* const library = PulseLibrary::load();
        if (library && !connection)
            connection = std::make_unique<PulseConnection>(*library, m_server, m_isEnding);
        if (connection && connection->connect()) {
            entry.request(*connection);
            continue;
        }
        m_tellUser(noServer);
        if (entry.onFailure)
            entry.onFailure();
    }
}

} // namespace tarvin::mixer
