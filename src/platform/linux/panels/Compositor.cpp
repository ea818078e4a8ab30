#include "platform/linux/panels/Compositor.h"

#include "platform/linux/desktop/XConnection.h"

#include <string_view>

namespace tarvin::panels {

namespace {

/// Who owns this selection is the compositor, by the conventions of desktops.
constexpr std::string_view compositorSelection = "_NET_WM_CM_S0";

} // namespace

bool compositorRuns(const desktop::XConnection& connection)
{
    if (!connection.isConnected())
        return false;
    using desktop::XPointer;
    const XPointer<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(connection.handle(),
        xcb_intern_atom(connection.handle(), 1, compositorSelection.size(), compositorSelection.data()), nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return false;
    const XPointer<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        connection.handle(), xcb_get_selection_owner(connection.handle(), atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

} // namespace tarvin::panels
