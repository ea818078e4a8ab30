#include "platform/linux/capture/OwnGrab.h"

#include "platform/linux/desktop/WindowFacts.h"
#include "platform/linux/desktop/XConnection.h"
#include "platform/linux/windows/WindowFrame.h"

#include <algorithm>
#include <cstring>

namespace tarvin::capture {

using desktop::XConnection;
using desktop::XPointer;

QImage grabScreen(XConnection& connection)
{
    if (!connection.isConnected())
        return {};
    const XPointer<xcb_get_geometry_reply_t> root(
        xcb_get_geometry_reply(connection.handle(), xcb_get_geometry(connection.handle(), connection.root()), nullptr));
    if (!root)
        return {};
    const XPointer<xcb_get_image_reply_t> image(xcb_get_image_reply(connection.handle(),
        xcb_get_image(
            connection.handle(), XCB_IMAGE_FORMAT_Z_PIXMAP, connection.root(), 0, 0, root->width, root->height, ~0U),
        nullptr));
    // Four bytes for a pixel: what servers of today use for the screen.
    QImage picture(root->width, root->height, QImage::Format_RGB32);
    if (!image || xcb_get_image_data_length(image.get()) != picture.sizeInBytes())
        return {};
    std::memcpy(picture.bits(), xcb_get_image_data(image.get()), static_cast<std::size_t>(picture.sizeInBytes()));
    return picture;
}

std::vector<QRect> windowAreas(XConnection& connection)
{
    std::vector<xcb_window_t> numbers = desktop::windowList(connection, desktop::XAtom::netClientListStacking);
    std::reverse(numbers.begin(), numbers.end());
    std::vector<QRect> areas;
    for (const desktop::WindowFacts& facts : desktop::readWindows(connection, numbers)) {
        const auto frame = windows::readFrame(connection, facts.window);
        if (!frame || !facts.isOnScreen || facts.isDesktop)
            continue;
        const windows::PixelRect outer = frame->outer();
        areas.emplace_back(outer.x, outer.y, outer.width, outer.height);
    }
    return areas;
}

} // namespace tarvin::capture
