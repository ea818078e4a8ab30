#pragma once

#include "platform/linux/desktop/XConnection.h"

#include "platform/ports/Workspace.h"

#include <QString>

#include <optional>
#include <vector>

namespace tarvin::desktop {

/// What the session shows of one window.
struct WindowFacts
{
    xcb_window_t window = XCB_NONE;
    ProcessIdentifier process = 0; ///< 0 where the window names none of this machine
    QString instanceName; ///< first part of `WM_CLASS`
    QString className; ///< second part of `WM_CLASS`
    QString desktopFile; ///< id or path that the toolkit put on the window, empty if none
    int layer = 0; ///< 0 for ordinary windows, below for the desktop, above for docks and floating windows
    bool isDesktop = false; ///< the picture behind all windows
    bool isMinimized = false;
    bool isOnScreen = false; ///< neither minimised nor on a virtual desktop that is not shown
    bool isSkippedByTaskbar = false; ///< by its own wish or by its kind
    Size size; ///< in pixels, without frame
};

/// Reads all windows in two round trips, however many there are; a window that has gone is left out.
[[nodiscard]] std::vector<WindowFacts> readWindows(
    const XConnection& connection, const std::vector<xcb_window_t>& windows);

/// A property of the root window that lists windows; empty if there is none.
[[nodiscard]] std::vector<xcb_window_t> windowList(const XConnection& connection, XAtom property);

/// The active window by the running window manager. Nothing where no window is active, and where the property is a
/// left-over: of a window that was closed, or of a manager that went.
[[nodiscard]] std::optional<xcb_window_t> activeWindow(const XConnection& connection);

/// The window by which the running window manager shows its presence; nothing without such a manager.
[[nodiscard]] std::optional<xcb_window_t> windowManagerWindow(const XConnection& connection);

} // namespace tarvin::desktop
