#pragma once

#include "platform/linux/windows/WorkArea.h"

#include <optional>

#include <xcb/xproto.h>

namespace tarvin::desktop {
class XConnection;
}

namespace tarvin::windows {

/// Distances from the four edges of a window.
struct FrameExtents
{
    int left = 0;
    int right = 0;
    int top = 0;
    int bottom = 0;
    friend bool operator==(const FrameExtents&, const FrameExtents&) = default;
};

/// Where a window lies, in pixels of the root window.
struct WindowFrame
{
    PixelRect inner; ///< what the application draws, with the shadow that it may draw
    FrameExtents byManager; ///< title bar and borders around it
    FrameExtents shadow; ///< what of it is shadow

    /// How far the visible frame stands out from what the application draws.
    [[nodiscard]] FrameExtents extents() const
    {
        return {byManager.left - shadow.left, byManager.right - shadow.right, byManager.top - shadow.top,
            byManager.bottom - shadow.bottom};
    }

    /// What the user sees as the window: title bar and borders belong to it, shadows do not.
    [[nodiscard]] PixelRect outer() const
    {
        const FrameExtents out = extents();
        return {inner.x - out.left, inner.y - out.top, inner.width + out.left + out.right,
            inner.height + out.top + out.bottom};
    }
};

/// In a few round trips. Nothing where the window has gone.
[[nodiscard]] std::optional<WindowFrame> readFrame(const desktop::XConnection& connection, xcb_window_t window);

} // namespace tarvin::windows
