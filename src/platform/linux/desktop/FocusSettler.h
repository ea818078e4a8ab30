#pragma once

#include "platform/ports/Scheduler.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace tarvin::desktop {

/// When the focus goes from one window to another, X servers and window managers report "no window" in between, for up
/// to 8 ms as measured. Only after this time is nothing in front; the margin is for a busy machine.
inline constexpr std::chrono::milliseconds focusSettleTime(25);

/// Takes the moments without focus out of a stream of focus changes.
///
/// States: a window has the focus (a value, no timer), it may have lost it (a value, the timer runs), no window has it
/// (no value, no timer). A window reported in any state takes the focus at once.
class FocusSettler
{
public:
    using WindowId = std::uint64_t;
    using Handler = std::function<void(std::optional<WindowId>)>;

    /// @param onSettled called for each change of `current`, after it
    FocusSettler(Scheduler& scheduler, Handler onSettled)
        : m_scheduler(scheduler)
        , m_onSettled(std::move(onSettled))
    { }

    /// The window that has the focus, or had it a moment ago.
    [[nodiscard]] std::optional<WindowId> current() const { return m_current; }

    void focusMoved(std::optional<WindowId> window)
    {
        if (window) {
            m_leaving.reset();
            settle(window);
        } else if (m_current && !m_leaving) {
            m_leaving = m_scheduler.startOneShot(focusSettleTime, [this] {
                m_leaving.reset();
                settle(std::nullopt);
            });
        }
    }

private:
    void settle(std::optional<WindowId> window)
    {
        if (window == m_current)
            return;
        m_current = window;
        m_onSettled(window);
    }

    Scheduler& m_scheduler;
    Handler m_onSettled;
    std::optional<WindowId> m_current;
    std::unique_ptr<Timer> m_leaving;
};

} // namespace tarvin::desktop
