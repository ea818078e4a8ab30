#include "platform/linux/feedback/PulseSounds.h"

#include "platform/linux/feedback/ClickSound.h"

#include <pulse/pulseaudio.h>

#include <chrono>
#include <deque>
#include <vector>

namespace tarvin::feedback {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// How soon after a failure the server is looked for again.
constexpr auto pauseBetweenAttempts = 5s;

struct MainLoopFree
{
    void operator()(pa_threaded_mainloop* loop) const { pa_threaded_mainloop_free(loop); }
};
struct ContextFree
{
    void operator()(pa_context* context) const
    {
        pa_context_set_state_callback(context, nullptr, nullptr);
        pa_context_disconnect(context);
        pa_context_unref(context);
    }
};
struct OperationFree
{
    void operator()(pa_operation* operation) const { pa_operation_unref(operation); }
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
        pa_threaded_mainloop_lock(m_loop);
    }
    ~LoopLock() { pa_threaded_mainloop_unlock(m_loop); }
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
        pa_threaded_mainloop_stop(m_loop.get());
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
        const Operation started(pa_context_play_sample(
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
        MainLoop loop(pa_threaded_mainloop_new());
        if (!loop || pa_threaded_mainloop_start(loop.get()) < 0)
            return false;
        m_loop = std::move(loop);
        return true;
    }

    [[nodiscard]] bool isConnected() const
    {
        return m_context && pa_context_get_state(m_context.get()) == PA_CONTEXT_READY;
    }

    /// Does nothing while a connection stands or is being made.
    void connectIfLost()
    {
        if (m_context && PA_CONTEXT_IS_GOOD(pa_context_get_state(m_context.get())))
            return;
        const Clock::time_point now = Clock::now();
        if (m_lastAttempt && now - *m_lastAttempt < pauseBetweenAttempts)
            return;
        m_lastAttempt = now;
        m_context.reset();
        m_uploads.clear();
        m_uploaded = 0;
        m_context.reset(pa_context_new(pa_threaded_mainloop_get_api(m_loop.get()), "Tarvin"));
        if (!m_context)
            return;
        pa_context_set_state_callback(m_context.get(), &Server::contextChanged, this);
        if (pa_context_connect(m_context.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
            complain();
    }

    static void contextChanged(pa_context* context, void* self)
    {
        auto* const server = static_cast<Server*>(self);
        switch (pa_context_get_state(context)) {
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

    void complain()
    {
        const QString reason = QString::fromUtf8(pa_strerror(pa_context_errno(m_context.get())));
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
        pa_stream* const stream = pa_stream_new(m_context.get(), cacheName(position).constData(), &format, nullptr);
        if (!stream)
            return;
        m_uploads.push_back(std::make_unique<Upload>(Upload{this, position}));
        pa_stream_set_state_callback(stream, &Server::uploadChanged, m_uploads.back().get());
        if (pa_stream_connect_upload(stream, bytesOf(sound)) < 0)
            pa_stream_unref(stream);
    }

    static void uploadChanged(pa_stream* stream, void* data)
    {
        const auto* const upload = static_cast<const Upload*>(data);
        const PcmSound& sound = upload->server->m_sounds[upload->position];
        switch (pa_stream_get_state(stream)) {
        case PA_STREAM_READY:
            pa_stream_write(stream, sound.samples.data(), bytesOf(sound), nullptr, 0, PA_SEEK_RELATIVE);
            pa_stream_finish_upload(stream);
            break;
        case PA_STREAM_TERMINATED:
            // The server has taken it into its cache.
            ++upload->server->m_uploaded;
            pa_stream_unref(stream);
            break;
        case PA_STREAM_FAILED:
            pa_stream_unref(stream);
            break;
        case PA_STREAM_UNCONNECTED:
        case PA_STREAM_CREATING:
            break;
        }
    }

    static std::size_t bytesOf(const PcmSound& sound) { return sound.samples.size() * sizeof(std::int16_t); }

    std::function<void(const QString&)> m_log;
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
