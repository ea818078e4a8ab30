#pragma once

#include "platform/linux/x11/InputEngine.h"
#include "platform/linux/x11/InputShared.h"
#include "platform/linux/x11/KeyPosting.h"
#include "platform/linux/x11/PressRouter.h"
#include "platform/linux/x11/StrokePlayer.h"
#include "platform/ports/Scheduler.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace tarvin::x11 {

/// The thread that talks to the X server about the keyboard, over a connection of its own. It decides by itself and
/// hands over what happened, so a busy main thread delays no key.
///
/// Where the server goes the thread lives on, and goes on when the server is back. All members are for the main thread.
class InputThread final : private InputOutbox
{
public:
    using DeliveryHandler = std::function<void(const Delivery&)>;
    using LogHandler = std::function<void(const QString&)>;

    /// Returns once the first attempt to reach the server has ended; `isConnected` tells how.
    /// @param display as in DISPLAY; empty for the environment's
    /// @param log called on the main thread
    InputThread(Scheduler& scheduler, QByteArray display, LogHandler log);
    /// Ends the thread. Grabs end, keys that we put down go up, and nothing is delivered any more.
    ~InputThread() override;
    InputThread(const InputThread&) = delete;
    InputThread& operator=(const InputThread&) = delete;
    InputThread(InputThread&&) = delete;
    InputThread& operator=(InputThread&&) = delete;

    [[nodiscard]] bool isConnected() const { return m_shared.isConnected; }
    [[nodiscard]] InputShared& shared() { return m_shared; }

    /// Called on the main thread with each event.
    void setDeliveryHandler(DeliveryHandler handler);
    void publish(const PublishedKeys& published);
    void setTapEnabled(bool enabled);
    /// Whether a recorder holds the keyboard; the tap takes nothing meanwhile.
    void setRecording(bool recording);
    void setHasGlobalMonitor(bool has) { m_shared.hasGlobalMonitor = has; }
    void setStudioActive(bool active) { m_shared.isStudioActive = active; }

    /// Where keystrokes are posted from now on, as far as it goes; null for at the server only.
    void setKeyPosting(std::shared_ptr<KeyPosting> posting);
    /// Gives a press that was taken from the applications to them after all.
    void repost(PressId press, Keycode keycode);
    void play(const Stroke& stroke);
    void clickSecondary(RootPosition position, KeyState state);

    /// Waits for the server's answer; empty where there is none.
    [[nodiscard]] std::optional<RootPosition> pointerPosition();
    /// Waits until everything asked for so far has been done.
    void settle();

private:
    using Task = std::function<void(InputEngine* engine)>; ///< the engine is null while there is no server

    /// What the main thread still wants of us; gone before we are.
    struct MainSide
    {
        DeliveryHandler deliver;
        LogHandler log;
    };

    void run(std::promise<void> firstAttempt);
    void connect();
    void attend();
    void enqueue(Task task);
    void wake() const;
    /// @return whether the thread is to go on
    [[nodiscard]] bool runTasks();
    void wait();
    void deliver(const Delivery& delivery) override;
    void log(const QString& line) override;

    Scheduler& m_scheduler;
    QByteArray m_display;
    InputShared m_shared;
    std::shared_ptr<MainSide> m_mainSide;
    const std::weak_ptr<MainSide> m_weakMainSide; ///< the thread's view of it

    std::mutex m_mutex;
    std::vector<Task> m_tasks; ///< guarded by the mutex
    bool m_isEnding = false; ///< guarded by the mutex
    int m_wakeDescriptor = -1;

    // Of the thread alone.
    std::unique_ptr<InputEngine> m_engine;
    std::chrono::steady_clock::time_point m_nextAttempt;
    QString m_lastFailure;
    std::shared_ptr<KeyPosting> m_keyPosting;

    std::thread m_thread;
};

} // namespace tarvin::x11
