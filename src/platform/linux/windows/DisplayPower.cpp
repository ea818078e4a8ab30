#include "platform/linux/windows/DisplayPower.h"

#include "platform/linux/desktop/XConnection.h"

#include <xcb/dpms.h>
#include <xcb/xcb.h>

namespace tarvin::windows {

using desktop::XPointer;

bool switchDisplaysOff()
{
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(nullptr, nullptr), xcb_disconnect);
    xcb_connection_t* const server = connection.get();
    if (xcb_connection_has_error(server) != 0)
        return false;
    const auto* const extension = xcb_get_extension_data(server, &xcb_dpms_id);
    if (!extension || !extension->present)
        return false;
    const XPointer<xcb_dpms_capable_reply_t> capable(xcb_dpms_capable_reply(server, xcb_dpms_capable(server), nullptr));
    if (!capable || !capable->capable)
        return false;
    // A server that never switches displays off by itself refuses to do it on demand.
    xcb_dpms_enable(server);
    const XPointer<xcb_generic_error_t> error(
        xcb_request_check(server, xcb_dpms_force_level_checked(server, XCB_DPMS_DPMS_MODE_OFF)));
    return !error;
}

} // namespace tarvin::windows
