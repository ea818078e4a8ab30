#pragma once

#include "platform/linux/evdev/PostingRoad.h"
#include "platform/linux/x11/PublishedKeys.h"
#include "platform/ports/InputTaps.h"
#include "tapd/protocol/FrameSocket.h"
#include "tapd/protocol/Frames.h"

#include <QSocketNotifier>
#include <QString>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace tarvin {
class Scheduler;
class Timer;
} // namespace tarvin

namespace tarvin::evdev {

/// The application's end of the connection to the tap daemon. Main thread only, which is how the daemon finds out that
/// the application hangs.
///
///     absent      nobody listens at the socket, as far as we have looked
///     connecting  somebody listens, but has not spoken yet
///     connected   the daemon takes what is published
///     lost        it was there and has gone; asked for again and again, ever more seldom
class TapClient
{
public:
    enum class State { absent, connecting, connected, lost };

    /// What the rest of the program is told.
    struct Handlers
    {
        std::function<void(const tapd::KeyTaken&)> keyTaken;
        std::function<void(tapd::KeyMotion)> summonTaken;
    };
    using LogHandler = std::function<void(const QString&)>;

    /// Connects, if somebody listens, and says in the log how it stands.
    TapClient(Scheduler& scheduler, std::string socketPath, LogHandler log);
    ~TapClient();
    TapClient(const TapClient&) = delete;
    TapClient& operator=(const TapClient&) = delete;
    TapClient(TapClient&&) = delete;
    TapClient& operator=(TapClient&&) = delete;

    /// Where the daemon is by the environment, else where it is by default.
    [[nodiscard]] static std::string defaultSocketPath();

    [[nodiscard]] State state() const { return m_state; }
    /// Whether the daemon may be counted on: it is there or is about to say so.
    [[nodiscard]] bool isPresent() const { return m_state == State::connected || m_state == State::connecting; }

    void setHandlers(Handlers handlers) { m_handlers = std::move(handlers); }
    /// Called when the user took the way out on the keyboard; the master switch is to be turned off. One that was taken
    /// before there was a handler is told at once.
    void setWayOutHandler(std::function<void()> handler);

    /// Somebody may listen at the socket now. Without effect while the daemon is there.
    void lookAgain();

    /// What the daemon is to take from now on, also after it was lost and found again.
    void publish(FKeySet keys, SummonShortcut summon);
    /// Posts a key event through the daemon's device for that.
    void post(std::uint16_t evdevCode, tapd::KeyMotion motion);
    /// The same for any thread; open while the daemon serves us. Outlives this object, closed.
    [[nodiscard]] std::shared_ptr<x11::KeyPosting> keyPosting() const { return m_postingRoad; }

private:
    void connect();
    void lose();
    void read();
    void handle(const tapd::Welcome& welcome);
    void handle(const tapd::KeyTaken& taken) const;
    void handle(const tapd::SummonTaken& taken) const;
    void handle(const tapd::Ping& ping);
    void handle(const tapd::WayOut& wayOut);
    void noteWayOut();
    void publishAgain();
    void send(const tapd::ApplicationFrame& frame);

    Scheduler& m_scheduler;
    std::string m_socketPath;
    LogHandler m_log;
    Handlers m_handlers;
    std::function<void()> m_wayOutHandler;
    tapd::FrameSocket m_socket;
    std::shared_ptr<PostingRoad> m_postingRoad = std::make_shared<PostingRoad>();
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::unique_ptr<Timer> m_retry;
    std::chrono::milliseconds m_retryDelay;
    x11::PublishedKeys m_published;
    std::uint32_t m_wayOutsSeen = 0;
    State m_state = State::absent;
    bool m_isWayOutUntold = false;
};

} // namespace tarvin::evdev
