#include "platform/linux/windows/EwmhWindow.h"

#include "platform/linux/desktop/Ewmh.h"
#include "platform/linux/desktop/WindowFacts.h"
#include "platform/linux/desktop/XProperties.h"

#include <algorithm>

namespace tarvin::windows {

using desktop::XAtom;

EwmhWindow::EwmhWindow(
    desktop::XConnection& connection, WindowPlacer& placer, xcb_window_t window, double pixelsPerPoint)
    : m_connection(connection)
    , m_placer(placer)
    , m_window(window)
    , m_pixelsPerPoint(pixelsPerPoint)
{ }

std::optional<Point> EwmhWindow::position() const
{
    const std::optional<WindowFrame> frame = readFrame(m_connection, m_window);
    if (!frame)
        return std::nullopt;
    return Point{frame->outer().x / m_pixelsPerPoint, frame->outer().y / m_pixelsPerPoint};
}

std::optional<Size> EwmhWindow::size() const
{
    const std::optional<WindowFrame> frame = readFrame(m_connection, m_window);
    if (!frame)
        return std::nullopt;
    return Size{frame->outer().width / m_pixelsPerPoint, frame->outer().height / m_pixelsPerPoint};
}

bool EwmhWindow::setPosition(Point position)
{
    return m_placer.place(m_window, Point{position.x * m_pixelsPerPoint, position.y * m_pixelsPerPoint}, std::nullopt);
}

bool EwmhWindow::setSize(Size size)
{
    return m_placer.place(m_window, std::nullopt, Size{size.width * m_pixelsPerPoint, size.height * m_pixelsPerPoint});
}

std::optional<bool> EwmhWindow::isFullScreen() const
{
    if (!canAsk(XAtom::netWmStateFullscreen))
        return std::nullopt;
    const std::vector<std::uint32_t> states = desktop::numbersOf(m_connection, m_window, XAtom::netWmState);
    return std::find(states.begin(), states.end(), m_connection.atom(XAtom::netWmStateFullscreen)) != states.end();
}

bool EwmhWindow::setFullScreen(bool isFullScreen)
{
    if (!canAsk(XAtom::netWmStateFullscreen))
        return false;
    desktop::requestStates(m_connection, m_connection.handle(), m_window,
        isFullScreen ? desktop::StateChange::add : desktop::StateChange::remove, XAtom::netWmStateFullscreen);
    return true;
}

bool EwmhWindow::setMinimized(bool isMinimized)
{
    if (!readFrame(m_connection, m_window) || !desktop::windowManagerWindow(m_connection))
        return false;
    if (isMinimized)
        desktop::requestMinimizing(m_connection, m_connection.handle(), m_window);
    else
        desktop::requestActivation(m_connection, m_connection.handle(), m_window, m_connection.serverTime());
    return true;
}

bool EwmhWindow::canAsk(XAtom hint) const
{
    return readFrame(m_connection, m_window).has_value() && desktop::managerSupports(m_connection, hint);
}

} // namespace tarvin::windows
