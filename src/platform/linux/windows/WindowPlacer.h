#pragma once

#include "platform/linux/windows/WindowFrame.h"
#include "platform/ports/Geometry.h"
#include "platform/ports/Scheduler.h"

#include <memory>
#include <optional>

namespace tarvin::windows {

/// Asks the window manager to move and size windows, and looks once more a moment later: a maximised window has no
/// frame with some managers, so the frame that comes back with the ordinary state was not counted in the first wish.
///
/// A window that refuses, or that has a smallest size, keeps its will. Main thread only.
class WindowPlacer
{
public:
    WindowPlacer(desktop::XConnection& connection, Scheduler& scheduler);

    /// @param position,size of the visible frame in pixels; only what is given is changed
    /// @return false where the window has gone or nobody manages windows
    bool place(xcb_window_t window, std::optional<Point> position, std::optional<Size> size);

private:
    /// The wishes about one window that belong together.
    struct Wish
    {
        xcb_window_t window = XCB_NONE;
        std::optional<Point> position;
        std::optional<Size> size;
        FrameExtents extents; ///< that the first wish counted on
    };

    void giveOrdinaryState(xcb_window_t window) const;
    void send(const Wish& wish, const WindowFrame& frame) const;
    void lookAgain();

    desktop::XConnection& m_connection;
    Scheduler& m_scheduler;
    Wish m_wish;
    std::unique_ptr<Timer> m_secondLook;
};

} // namespace tarvin::windows
