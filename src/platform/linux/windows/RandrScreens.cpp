#include "platform/linux/windows/RandrScreens.h"

#include "platform/linux/desktop/WindowFacts.h"
#include "platform/linux/desktop/XConnection.h"
#include "platform/linux/desktop/XProperties.h"
#include "platform/linux/windows/WindowFrame.h"

#include <algorithm>
#include <string>

#include <xcb/randr.h>

namespace tarvin::windows {

using desktop::XAtom;
using desktop::XPointer;

namespace {

PixelRect rectangleAt(const std::vector<std::uint32_t>& numbers, std::size_t index)
{
    const auto number = [&](std::size_t offset) { return static_cast<int>(numbers[index + offset]); };
    return {number(0), number(1), number(2), number(3)};
}

constexpr std::size_t numbersOfRectangle = 4;

} // namespace

RandrScreens::RandrScreens(desktop::XConnection& connection, double pixelsPerPoint)
    : m_connection(connection)
    , m_pixelsPerPoint(pixelsPerPoint)
{ }

std::vector<Screen> RandrScreens::screens() const
{
    if (!m_connection.isConnected())
        return {};
    const std::vector<PixelRect> frames = monitors();
    const std::vector<PixelRect> areas = freeAreas(frames);
    std::vector<Screen> screens;
    for (std::size_t i = 0; i < frames.size(); ++i)
        screens.push_back({.frame = inPoints(frames[i]), .visibleFrame = inPoints(areas[i])});
    return screens;
}

std::optional<Screen> RandrScreens::mainScreen() const
{
    const std::vector<Screen> all = screens();
    if (all.empty())
        return std::nullopt;
    const std::optional<xcb_window_t> active = desktop::activeWindow(m_connection);
    const std::optional<WindowFrame> frame = active ? readFrame(m_connection, *active) : std::nullopt;
    if (!frame)
        return all.front();
    const PixelRect outer = frame->outer();
    const std::vector<PixelRect> frames = monitors();
    for (std::size_t i = 0; i < std::min(frames.size(), all.size()); ++i) {
        if (frames[i].contains(outer.x + outer.width / 2, outer.y + outer.height / 2))
            return all[i];
    }
    return all.front();
}

std::vector<PixelRect> RandrScreens::monitors() const
{
    const auto* const extension = xcb_get_extension_data(m_connection.handle(), &xcb_randr_id);
    std::vector<PixelRect> monitors;
    if (extension && extension->present) {
        const XPointer<xcb_randr_get_monitors_reply_t> reply(xcb_randr_get_monitors_reply(
            m_connection.handle(), xcb_randr_get_monitors(m_connection.handle(), m_connection.root(), 1), nullptr));
        if (reply) {
            auto monitor = xcb_randr_get_monitors_monitors_iterator(reply.get());
            for (; monitor.rem > 0; xcb_randr_monitor_info_next(&monitor)) {
                const PixelRect frame{monitor.data->x, monitor.data->y, monitor.data->width, monitor.data->height};
                monitors.insert(monitor.data->primary != 0 ? monitors.begin() : monitors.end(), frame);
            }
        }
    }
    // A server that knows no monitors is one big one.
    if (monitors.empty())
        monitors.push_back(wholeScreen());
    return monitors;
}

std::vector<PixelRect> RandrScreens::freeAreas(const std::vector<PixelRect>& monitors) const
{
    std::vector<PixelRect> areas = monitors;
    const std::vector<PixelRect> ofMonitors = areasOfMonitors();
    const std::optional<PixelRect> ofAll =
        ofMonitors.empty() && monitors.size() == 1 ? workArea() : std::optional<PixelRect>();
    if (ofAll) {
        const PixelRect common = intersected(monitors.front(), *ofAll);
        if (common.width > 0 && common.height > 0)
            areas.front() = common;
        return areas;
    }
    const PixelRect whole = wholeScreen();
    const std::vector<Strut> allStruts = ofMonitors.empty() ? struts(whole) : std::vector<Strut>();
    for (PixelRect& area : areas) {
        area = freeArea(area, allStruts, whole);
        for (const PixelRect& candidate : ofMonitors) {
            const PixelRect common = intersected(area, candidate);
            if (common.width > 0 && common.height > 0) {
                area = common;
                break;
            }
        }
    }
    return areas;
}

std::vector<PixelRect> RandrScreens::areasOfMonitors() const
{
    const std::string name = "_GTK_WORKAREAS_D" + std::to_string(currentDesktop());
    const XPointer<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(m_connection.handle(),
        xcb_intern_atom(m_connection.handle(), 1, static_cast<std::uint16_t>(name.size()), name.data()), nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return {};
    const std::vector<std::uint32_t> numbers =
        desktop::numbersOf(m_connection, desktop::askProperty(m_connection, m_connection.root(), atom->atom));
    std::vector<PixelRect> areas;
    for (std::size_t i = 0; i + numbersOfRectangle <= numbers.size(); i += numbersOfRectangle)
        areas.push_back(rectangleAt(numbers, i));
    return areas;
}

std::optional<PixelRect> RandrScreens::workArea() const
{
    if (!desktop::windowManagerWindow(m_connection))
        return std::nullopt;
    const std::vector<std::uint32_t> numbers = desktop::rootNumbers(m_connection, XAtom::netWorkarea);
    std::size_t index = currentDesktop() * numbersOfRectangle;
    if (index + numbersOfRectangle > numbers.size())
        index = 0;
    if (index + numbersOfRectangle > numbers.size())
        return std::nullopt;
    return rectangleAt(numbers, index);
}

std::vector<Strut> RandrScreens::struts(const PixelRect& wholeScreen) const
{
    std::vector<Strut> struts;
    for (const xcb_window_t window : desktop::windowList(m_connection, XAtom::netClientList)) {
        std::vector<std::uint32_t> numbers = desktop::numbersOf(m_connection, window, XAtom::netWmStrutPartial);
        if (numbers.empty())
            numbers = desktop::numbersOf(m_connection, window, XAtom::netWmStrut);
        const std::vector<Strut> ofWindow = strutsOf(numbers, wholeScreen);
        struts.insert(struts.end(), ofWindow.begin(), ofWindow.end());
    }
    return struts;
}

std::uint32_t RandrScreens::currentDesktop() const
{
    const std::vector<std::uint32_t> current = desktop::rootNumbers(m_connection, XAtom::netCurrentDesktop);
    return current.empty() ? 0 : current.front();
}

PixelRect RandrScreens::wholeScreen() const
{
    const XPointer<xcb_get_geometry_reply_t> root(xcb_get_geometry_reply(
        m_connection.handle(), xcb_get_geometry(m_connection.handle(), m_connection.root()), nullptr));
    return root ? PixelRect{0, 0, root->width, root->height} : PixelRect{};
}

Rect RandrScreens::inPoints(const PixelRect& rect) const
{
    return {.origin = {rect.x / m_pixelsPerPoint, rect.y / m_pixelsPerPoint},
        .size = {rect.width / m_pixelsPerPoint, rect.height / m_pixelsPerPoint}};
}

} // namespace tarvin::windows
