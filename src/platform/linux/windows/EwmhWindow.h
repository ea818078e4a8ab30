#pragma once

#include "platform/linux/desktop/XAtoms.h"
#include "platform/linux/windows/WindowPlacer.h"
#include "platform/ports/WindowControl.h"

namespace tarvin::windows {

/// A window of an X session, moved and changed by wishes to the window manager, which are granted a moment later.
///
/// There is no way to press a button in a title bar; what such buttons do is asked for directly.
class EwmhWindow : public ControlledWindow
{
public:
    /// @param placer outlives the window object
    EwmhWindow(desktop::XConnection& connection, WindowPlacer& placer, xcb_window_t window, double pixelsPerPoint);

    [[nodiscard]] std::optional<Point> position() const override;
    [[nodiscard]] std::optional<Size> size() const override;
    /// A maximised or full-screen window becomes an ordinary one first, as only such a window can be moved.
    bool setPosition(Point position) override;
    bool setSize(Size size) override;
    [[nodiscard]] std::optional<bool> isFullScreen() const override;
    bool setFullScreen(bool isFullScreen) override;
    bool setMinimized(bool isMinimized) override;
    bool pressFullScreenButton() override { return false; }
    bool pressMinimizeButton() override { return false; }

private:
    /// Whether the window is there and the manager grants such wishes.
    [[nodiscard]] bool canAsk(desktop::XAtom hint) const;

    desktop::XConnection& m_connection;
    WindowPlacer& m_placer;
    xcb_window_t m_window;
    double m_pixelsPerPoint;
};

} // namespace tarvin::windows
