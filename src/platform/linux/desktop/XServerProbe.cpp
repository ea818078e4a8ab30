#include "platform/linux/desktop/XServerProbe.h"

#include <xcb/xcb.h>

#include <memory>

namespace tarvin::desktop {

bool xServerAnswers()
{
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(nullptr, nullptr), xcb_disconnect);
    return xcb_connection_has_error(connection.get()) == 0;
}

} // namespace tarvin::desktop
