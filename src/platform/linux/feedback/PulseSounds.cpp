#include "platform/linux/feedback/PulseSounds.h"

#include "platform/linux/feedback/ClickSound.h"
#include "platform/linux/pulse/PulseLibrary.h"

#include <chrono>
#include <deque>
#include <vector>

namespace tarvin::feedback {

namespace {

using namespace std::chrono_literals;
using pulse::PulseLibrary;
using Clock = std::chrono::steady_clock;

/// How soon after a failure the server is looked for again.
constexpr auto pauseBetweenAttempts = 5s;

struct MainLoopFree
{
    void operator()(pa_threaded_mainloop* loop) const { PulseLibrary::load()->threadedMainloopFree(loop); }
};
struct ContextFree
{
    void operator()(pa_context* context) const
    {
        PulseLibrary::load()->contextSetStateCallback(context, nullptr, nullptr);
        PulseLibrary::load()->contextDisconnect(context);
        PulseLibrary::load()->contextUnref(context);
    }
};
struct OperationFree
{
    void operator()(pa_operation* operation) const { PulseLibrary::load()->operationUnref(operation); }
};
using MainLoop = std::unique_ptr<pa_threaded_mainloop, MainLoopFree>;
using Context = std::unique_ptr<pa_context, ContextFree>;
using Operation = std::unique_ptr<pa_operation, OperationFree>;

/// Holds the lock of the library's thread, under which everything below it is called.
class LoopLock
{
public:
    explicit LoopLock(pa_threaded_mainloop* loop)
        : m_loop(loop)
    {
        PulseLibrary::load()->threadedMainloopLock(m_loop);
    }
    ~LoopLock() { PulseLibrary::load()->threadedMainloopUnlock(m_loop); }
    LoopLock(const LoopLock&) = delete;
    LoopLock& operator=(const LoopLock&) = delete;

private:
    pa_threaded_mainloop* m_loop;
};

/// The names of the sounds in the server's cache stay the same from run to run: a new run replaces what an earlier one
/// left there.
QByteArray cacheName(std::size_t position)
{
    return position == 0 ? QByteArray("tarvin-click") : "tarvin-sound-" + QByteArray::number(qulonglong(position));
}

} // namespace

/// The connection. The methods are called on the main thread, the callbacks come on the library's own; both hold the
/// lock of the loop while they touch a member.
class PulseSounds::Server
{
public:
    explicit Server(std::function<void(const QString&)> log)
        : m_log(std::move(log))
    {
        m_sounds.push_back(clickSound());
    }

    ~Server()
    {
        if (!m_loop)
            return;
        {
            const LoopLock lock(m_loop.get());
            m_context.reset();
        }
        m_pulse->threadedMainloopStop(m_loop.get());
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    /// @return where the sound stands in the table; 0 is the click
    std::size_t add(PcmSound sound)
    {
        if (!m_loop) {
            m_sounds.push_back(std::move(sound));
            return m_sounds.size() - 1;
        }
        const LoopLock lock(m_loop.get());
        m_sounds.push_back(std::move(sound));
        if (isConnected())
            upload(m_sounds.size() - 1);
        return m_sounds.size() - 1;
    }

    void connectSoon()
    {
        if (!startLoop())
            return;
        const LoopLock lock(m_loop.get());
        connectIfLost();
    }

    void play(std::size_t position)
    {
        if (!startLoop())
            return;
        const LoopLock lock(m_loop.get());
        if (!isConnected()) {
            connectIfLost();
            return;
        }
        const std::size_t known = position < m_sounds.size() ? position : 0;
        const Operation started(m_pulse->contextPlaySample(
            m_context.get(), cacheName(known).constData(), nullptr, PA_VOLUME_INVALID, nullptr, nullptr));
    }

    [[nodiscard]] bool isReady() const
    {
        if (!m_loop)
            return false;
        const LoopLock lock(m_loop.get());
        return isConnected() && m_uploaded == m_sounds.size();
    }

private:
    bool startLoop()
    {
        if (m_loop)
            return true;
        m_pulse = PulseLibrary::load();
        if (m_pulse == nullptr) {
            complainOf(QStringLiteral("the library libpulse0 is not installed"));
            return false;
        }
        MainLoop loop(m_pulse->threadedMainloopNew());
        if (!loop || m_pulse->threadedMainloopStart(loop.get()) < 0)
            return false;
        m_loop = std::move(loop);
        return true;
    }

    [[nodiscard]] bool isConnected() const
    {
        return m_context && m_pulse->contextGetState(m_context.get()) == PA_CONTEXT_READY;
    }

    /// Does nothing while a connection stands or is being made.
    void connectIfLost()
    {
        if (m_context && PA_CONTEXT_IS_GOOD(m_pulse->contextGetState(m_context.get())))
            return;
        const Clock::time_point now = Clock::now();
        if (m_lastAttempt && now - *m_lastAttempt < pauseBetweenAttempts)
            return;
        m_lastAttempt = now;
        m_context.reset();
        m_uploads.clear();
        m_uploaded = 0;
        m_context.reset(m_pulse->contextNew(m_pulse->threadedMainloopGetApi(m_loop.get()), "Tarvin"));
        if (!m_context)
            return;
        m_pulse->contextSetStateCallback(m_context.get(), &Server::contextChanged, this);
        if (m_pulse->contextConnect(m_context.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
            complain();
    }

    static void contextChanged(pa_context* context, void* self)
    {
        auto* const server = static_cast<Server*>(self);
        switch (server->m_pulse->contextGetState(context)) {
        case PA_CONTEXT_READY:
            server->m_lastComplaint.clear();
            for (std::size_t position = 0; position < server->m_sounds.size(); ++position)
                server->upload(position);
            break;
        case PA_CONTEXT_FAILED:
            server->complain();
            break;
        case PA_CONTEXT_UNCONNECTED:
        case PA_CONTEXT_CONNECTING:
        case PA_CONTEXT_AUTHORIZING:
        case PA_CONTEXT_SETTING_NAME:
        case PA_CONTEXT_TERMINATED:
            break;
        }
    }

    void complain() { complainOf(QString::fromUtf8(m_pulse->strerror(m_pulse->contextErrno(m_context.get())))); }

    void complainOf(const QString& reason)
    {
        if (reason == m_lastComplaint)
            return;
        m_lastComplaint = reason;
        m_log(QStringLiteral("No key click: the sound server can't be reached (%1).").arg(reason));
    }

    struct Upload
    {
        Server* server;
        std::size_t position;
    };

    void upload(std::size_t position)
    {
        const PcmSound& sound = m_sounds[position];
        const pa_sample_spec format{.format = PA_SAMPLE_S16NE, .rate = sound.rate, .channels = sound.channels};
        pa_stream* const stream =
            m_pulse->streamNew(m_context.get(), cacheName(position).constData(), &format, nullptr);
        if (!stream)
            return;
        m_uploads.push_back(std::make_unique<Upload>(Upload{this, position}));
        m_pulse->streamSetStateCallback(stream, &Server::uploadChanged, m_uploads.back().get());
        if (m_pulse->streamConnectUpload(stream, bytesOf(sound)) < 0)
            m_pulse->streamUnref(stream);
    }

    static void uploadChanged(pa_stream* stream, void* data)
    {
        const auto* const upload = static_cast<const Upload*>(data);
        const PcmSound& sound = upload->server->m_sounds[upload->position];
        const PulseLibrary& pulse = *upload->server->m_pulse;
        switch (pulse.streamGetState(stream)) {
        case PA_STREAM_READY:
            pulse.streamWrite(stream, sound.samples.data(), bytesOf(sound), nullptr, 0, PA_SEEK_RELATIVE);
            pulse.streamFinishUpload(stream);
            break;
        case PA_STREAM_TERMINATED:
            // The server has taken it into its cache.
            ++upload->server->m_uploaded;
            pulse.streamUnref(stream);
            break;
        case PA_STREAM_FAILED:
            pulse.streamUnref(stream);
            break;
        case PA_STREAM_UNCONNECTED:
        case PA_STREAM_CREATING:
            break;
        }
    }

    static std::size_t bytesOf(const PcmSound& sound) { return sound.samples.size() * sizeof(std::int16_t); }

    std::function<void(const QString&)> m_log;
    const PulseLibrary* m_pulse = nullptr; ///< there as soon as there is a loop
    QString m_lastComplaint;
    std::deque<PcmSound> m_sounds; ///< what is uploaded keeps its place; the click is first
    std::vector<std::unique_ptr<Upload>> m_uploads; ///< of this connection, under way or done
    std::size_t m_uploaded = 0;
    std::optional<Clock::time_point> m_lastAttempt;
    MainLoop m_loop;
    Context m_context;
};

PulseSounds::PulseSounds(std::function<void(const QString&)> log)
    : m_server(std::make_unique<Server>(std::move(log)))
{ }

PulseSounds::~PulseSounds() = default;

void PulseSounds::prepare()
{
    m_server->connectSoon();
}

std::optional<SoundId> PulseSounds::create(const QString& path)
{
    std::optional<PcmSound> sound = readSoundFile(path);
    if (!sound)
        return std::nullopt;
    return static_cast<SoundId>(m_server->add(std::move(*sound)));
}

void PulseSounds::play(SoundId sound)
{
    m_server->play(sound);
}

bool PulseSounds::isReady() const
{
    return m_server->isReady();
}

} // namespace tarvin::feedback
