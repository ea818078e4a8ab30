#include "platform/linux/windows/WindowFrame.h"

#include "platform/linux/desktop/XConnection.h"
#include "platform/linux/desktop/XProperties.h"

namespace tarvin::windows {

using desktop::XAtom;
using desktop::XPointer;

namespace {

/// Left, right, top and bottom, as both properties have them.
FrameExtents extentsOf(const std::vector<std::uint32_t>& numbers)
{
    if (numbers.size() != 4)
        return {};
    const auto number = [&](std::size_t index) { return static_cast<int>(numbers[index]); };
    return {.left = number(0), .right = number(1), .top = number(2), .bottom = number(3)};
}

} // namespace

std::optional<WindowFrame> readFrame(const desktop::XConnection& connection, xcb_window_t window)
{
    if (!connection.isConnected())
        return std::nullopt;
    xcb_connection_t* const server = connection.handle();
    const auto geometryCookie = xcb_get_geometry(server, window);
    const auto placeCookie = xcb_translate_coordinates(server, window, connection.root(), 0, 0);
    const auto byManagerCookie = desktop::askProperty(connection, window, connection.atom(XAtom::netFrameExtents));
    const auto shadowCookie = desktop::askProperty(connection, window, connection.atom(XAtom::gtkFrameExtents));

    const XPointer<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(server, geometryCookie, nullptr));
    const XPointer<xcb_translate_coordinates_reply_t> place(
        xcb_translate_coordinates_reply(server, placeCookie, nullptr));
    const FrameExtents byManager = extentsOf(desktop::numbersOf(connection, byManagerCookie));
    const FrameExtents shadow = extentsOf(desktop::numbersOf(connection, shadowCookie));
    if (!geometry || !place)
        return std::nullopt;
    return WindowFrame{.inner = {place->dst_x, place->dst_y, geometry->width, geometry->height},
        .byManager = byManager,
        .shadow = shadow};
}

} // namespace tarvin::windows
