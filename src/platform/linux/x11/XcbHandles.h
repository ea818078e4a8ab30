#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace tarvin::x11 {

struct XcbDisconnect
{
    void operator()(xcb_connection_t* connection) const noexcept { xcb_disconnect(connection); }
};

/// A connection to the server. Never null; whether it works, `xcb_connection_has_error` tells.
using XcbConnection = std::unique_ptr<xcb_connection_t, XcbDisconnect>;

struct XcbFree
{
    // What xcb hands out comes from malloc.
    void operator()(void* memory) const noexcept { std::free(memory); } // NOLINT(cppcoreguidelines-no-malloc)
};

/// A reply, an event or an error that xcb handed out; null where the request failed.
template <typename Type> using XcbOwned = std::unique_ptr<Type, XcbFree>;

} // namespace tarvin::x11
