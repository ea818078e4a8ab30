#pragma once

#include "platform/ports/Workspace.h"

#include <xcb/xproto.h>

namespace tarvin::desktop {

class XConnection;

/// The process of this machine that made the window, by the X-Resource extension, which knows it for every client; old
/// programs do not put their process on their windows. One round trip. 0 where the server can't tell.
[[nodiscard]] ProcessIdentifier localProcessOf(const XConnection& connection, xcb_window_t window);

} // namespace tarvin::desktop
