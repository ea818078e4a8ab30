#pragma once

#include <QString>

#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace tarvin::mixer {

class PulseConnection;

/// The volume of the session's sound server, by the PulseAudio protocol, which PipeWire speaks too.
///
/// Works on a thread of its own that is started, and connects, at the first request; one request after the other, in
/// the order of the calls. Any thread may call.
class PulseMixer
{
public:
    /// Gets a sentence for the user when something could not be done; called on the mixer's thread.
    using TellUser = std::function<void(const QString&)>;

    /// What the microphone was set to.
    enum class Microphone { active, muted };

    /// @param server as the protocol's library names servers; empty for the session's own
    explicit PulseMixer(TellUser tellUser, std::string server = {});
    /// Lets the request at hand end and drops the others.
    ~PulseMixer();
    PulseMixer(const PulseMixer&) = delete;
    PulseMixer& operator=(const PulseMixer&) = delete;

    /// Makes the default output louder or quieter; louder also ends its silence. Returns at once.
    /// @param points of the full volume's hundred
    void changeOutputVolume(int points);
    /// Returns at once.
    void toggleOutputMute();
    /// Sets the default input to nothing or, if it is silent already, to three quarters. Waits for the outcome, so not
    /// for the main thread.
    /// @return nothing where there is no microphone; the user has been told
    [[nodiscard]] std::optional<Microphone> toggleMicrophone();

private:
    using Request = std::function<void(PulseConnection&)>;

    void ask(Request request, std::function<void()> onFailure = {});
    void work();

    const TellUser m_tellUser;
    const std::string m_server;
    std::mutex m_mutex;
    std::condition_variable m_isAsked;
    struct Entry
    {
        Request request;
        std::function<void()> onFailure; ///< no server
    };
    std::deque<Entry> m_entries; ///< guarded by the mutex
    std::atomic<bool> m_isEnding = false;
    std::thread m_thread; ///< guarded by the mutex until it runs
};

} // namespace tarvin::mixer
