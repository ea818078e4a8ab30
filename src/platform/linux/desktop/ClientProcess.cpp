#include "platform/linux/desktop/ClientProcess.h"

#include "platform/linux/desktop/XConnection.h"

#include <xcb/res.h>

namespace tarvin::desktop {

ProcessIdentifier localProcessOf(const XConnection& connection, xcb_window_t window)
{
    xcb_connection_t* const server = connection.handle();
    const xcb_query_extension_reply_t* const extension = xcb_get_extension_data(server, &xcb_res_id);
    if (!extension || !extension->present)
        return 0;
    const xcb_res_client_id_spec_t ofWindow{window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const XPointer<xcb_res_query_client_ids_reply_t> reply(
        xcb_res_query_client_ids_reply(server, xcb_res_query_client_ids(server, 1, &ofWindow), nullptr));
    if (!reply)
        return 0;
    for (auto id = xcb_res_query_client_ids_ids_iterator(reply.get()); id.rem > 0; xcb_res_client_id_value_next(&id)) {
        if (xcb_res_client_id_value_value_length(id.data) > 0)
            return static_cast<ProcessIdentifier>(*xcb_res_client_id_value_value(id.data));
    }
    return 0;
}

} // namespace tarvin::desktop
