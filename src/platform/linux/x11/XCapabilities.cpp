#include "platform/linux/x11/XCapabilities.h"

#include <cstdlib>
#include <memory>
#include <string_view>

#include <xcb/xcb.h>
#include <xcb/xinput.h>

namespace tarvin::x11 {

namespace {

struct Disconnect
{
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};
struct Free
{
    void operator()(void* memory) const { std::free(memory); } // NOLINT(cppcoreguidelines-no-malloc)
};

bool hasExtension(xcb_connection_t* connection, std::string_view name)
{
    const std::unique_ptr<xcb_query_extension_reply_t, Free> reply(xcb_query_extension_reply(
        connection, xcb_query_extension(connection, static_cast<std::uint16_t>(name.size()), name.data()), nullptr));
    return reply && reply->present != 0;
}

bool hasTray(xcb_connection_t* connection)
{
    constexpr std::string_view selection = "_NET_SYSTEM_TRAY_S0";
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> atom(xcb_intern_atom_reply(connection,
        xcb_intern_atom(connection, 1, static_cast<std::uint16_t>(selection.size()), selection.data()), nullptr));
    if (!atom || atom->atom == XCB_NONE)
        return false;
    const std::unique_ptr<xcb_get_selection_owner_reply_t, Free> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, atom->atom), nullptr));
    return owner && owner->owner != XCB_NONE;
}

bool isKeyboardTaken(xcb_connection_t* connection)
{
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const std::unique_ptr<xcb_grab_keyboard_reply_t, Free> reply(xcb_grab_keyboard_reply(connection,
        xcb_grab_keyboard(connection, 1, root, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC), nullptr));
    if (!reply || reply->status != XCB_GRAB_STATUS_SUCCESS)
        return reply && reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
    xcb_ungrab_keyboard(connection, XCB_CURRENT_TIME);
    xcb_flush(connection);
    return false;
}

std::optional<std::pair<int, int>> xInputVersion(xcb_connection_t* connection)
{
    if (!hasExtension(connection, "XInputExtension"))
        return std::nullopt;
    const std::unique_ptr<xcb_input_xi_query_version_reply_t, Free> reply(xcb_input_xi_query_version_reply(
        connection, xcb_input_xi_query_version(connection, XCB_INPUT_MAJOR_VERSION, XCB_INPUT_MINOR_VERSION), nullptr));
    if (!reply)
        return std::nullopt;
    return std::pair<int, int>(reply->major_version, reply->minor_version);
}

} // namespace

std::optional<XCapabilities> askXServer()
{
    const std::unique_ptr<xcb_connection_t, Disconnect> connection(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get()) != 0)
        return std::nullopt;
    return XCapabilities{.xInputVersion = xInputVersion(connection.get()),
        .hasTestExtension = hasExtension(connection.get(), "XTEST"),
        .hasKeyboardExtension = hasExtension(connection.get(), "XKEYBOARD"),
        .hasTray = hasTray(connection.get()),
        .isKeyboardTaken = isKeyboardTaken(connection.get()),
        .isInsideWayland = hasExtension(connection.get(), "XWAYLAND")};
}

} // namespace tarvin::x11
