#include "platform/linux/desktop/XProperties.h"

#include "platform/linux/desktop/WindowFacts.h"

#include <algorithm>

namespace tarvin::desktop {

namespace {

/// In units of four bytes; far above any list of windows or atoms, and names are cut here.
constexpr std::uint32_t longestProperty = 16384;

using PropertyReply = XPointer<xcb_get_property_reply_t>;

} // namespace

xcb_get_property_cookie_t askProperty(const XConnection& connection, xcb_window_t window, xcb_atom_t property)
{
    return xcb_get_property(connection.handle(), 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, longestProperty);
}

std::vector<std::uint32_t> numbersOf(const XConnection& connection, xcb_get_property_cookie_t cookie)
{
    const PropertyReply reply(xcb_get_property_reply(connection.handle(), cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto* values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {values, values + reply->value_len};
}

QByteArray textOf(const XConnection& connection, xcb_get_property_cookie_t cookie)
{
    const PropertyReply reply(xcb_get_property_reply(connection.handle(), cookie, nullptr));
    if (!reply || reply->format != 8)
        return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())), xcb_get_property_value_length(reply.get())};
}

std::vector<std::uint32_t> numbersOf(const XConnection& connection, xcb_window_t window, XAtom property)
{
    return numbersOf(connection, askProperty(connection, window, connection.atom(property)));
}

std::vector<std::uint32_t> rootNumbers(const XConnection& connection, XAtom property)
{
    return numbersOf(connection, connection.root(), property);
}

bool managerSupports(const XConnection& connection, XAtom hint)
{
    if (!windowManagerWindow(connection))
        return false;
    const std::vector<std::uint32_t> supported = rootNumbers(connection, XAtom::netSupported);
    return std::find(supported.begin(), supported.end(), connection.atom(hint)) != supported.end();
}

} // namespace tarvin::desktop
