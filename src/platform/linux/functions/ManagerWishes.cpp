#include "platform/linux/functions/ManagerWishes.h"

#include "platform/linux/desktop/Ewmh.h"
#include "platform/linux/desktop/WindowFacts.h"
#include "platform/linux/desktop/XProperties.h"

namespace tarvin::functions {

using desktop::XAtom;
using desktop::XConnection;

namespace {

void askAll(XConnection& connection, XAtom what, std::uint32_t first, std::uint32_t second = 0)
{
    desktop::sendToManager(connection, connection.handle(), connection.root(), what, {first, second, 0, 0, 0});
}

std::uint32_t rootNumber(const XConnection& connection, XAtom property)
{
    const std::vector<std::uint32_t> numbers = desktop::rootNumbers(connection, property);
    return numbers.empty() ? 0 : numbers.front();
}

bool showDesktop(XConnection& connection)
{
    if (!desktop::managerSupports(connection, XAtom::netShowingDesktop))
        return false;
    askAll(connection, XAtom::netShowingDesktop, rootNumber(connection, XAtom::netShowingDesktop) == 0 ? 1 : 0);
    return true;
}

/// The first and the last desktop are the ends.
bool switchDesktop(XConnection& connection, int step)
{
    const auto count = static_cast<std::int64_t>(rootNumber(connection, XAtom::netNumberOfDesktops));
    if (!desktop::managerSupports(connection, XAtom::netCurrentDesktop) || count < 2)
        return false;
    const std::int64_t wanted = std::int64_t{rootNumber(connection, XAtom::netCurrentDesktop)} + step;
    if (wanted >= 0 && wanted < count)
        askAll(connection, XAtom::netCurrentDesktop, static_cast<std::uint32_t>(wanted), connection.serverTime());
    return true;
}

bool hideOthers(XConnection& connection)
{
    const std::optional<xcb_window_t> active = desktop::activeWindow(connection);
    if (!desktop::windowManagerWindow(connection))
        return false;
    const std::vector<desktop::WindowFacts> all =
        desktop::readWindows(connection, desktop::windowList(connection, XAtom::netClientList));
    ProcessIdentifier front = 0;
    for (const desktop::WindowFacts& window : all) {
        if (active == window.window)
            front = window.process;
    }
    for (const desktop::WindowFacts& window : all) {
        const bool isOfFront = active == window.window || (front != 0 && window.process == front);
        if (!isOfFront && window.isOnScreen && !window.isDesktop && !window.isSkippedByTaskbar)
            desktop::requestMinimizing(connection, connection.handle(), window.window);
    }
    return true;
}

} // namespace

bool askManager(XConnection& connection, ManagerWish wish)
{
    if (!connection.isConnected())
        return false;
    switch (wish) {
    case ManagerWish::showDesktop:
        return showDesktop(connection);
    case ManagerWish::previousDesktop:
        return switchDesktop(connection, -1);
    case ManagerWish::nextDesktop:
        return switchDesktop(connection, 1);
    case ManagerWish::hideOtherApplications:
        return hideOthers(connection);
    }
    return false;
}

} // namespace tarvin::functions
