#include "actions/windows/SnapGeometry.h"

#include "platform/ports/Screens.h"

#include <algorithm>
#include <cmath>

namespace tarvin {

namespace {

constexpr double unseenDifference = 16.0;

/// The left and the top edge belong to a rectangle, the others don't.
bool contains(const Rect& rect, const Point& point)
{
    return point.x >= rect.origin.x && point.x < rect.origin.x + rect.size.width && point.y >= rect.origin.y
        && point.y < rect.origin.y + rect.size.height;
}

Point centreOf(const Rect& rect)
{
    return {rect.origin.x + rect.size.width * 0.5, rect.origin.y + rect.size.height * 0.5};
}

bool isClose(double a, double b)
{
    return std::abs(a - b) < unseenDifference;
}

} // namespace

Rect visibleFrameFor(const Screens& screens, const Rect& window)
{
    const std::vector<Screen> all = screens.screens();
    for (const Point& point : {centreOf(window), window.origin}) {
        const auto found =
            std::ranges::find_if(all, [&](const Screen& screen) { return contains(screen.frame, point); });
        if (found != all.end())
            return found->visibleFrame;
    }
    if (const std::optional<Screen> main = screens.mainScreen())
        return main->visibleFrame;
    return all.empty() ? Rect{} : all.front().visibleFrame;
}

Rect snapFrame(WindowSnapPosition position, const Rect& visibleFrame) noexcept
{
    const double half = visibleFrame.size.width * 0.5;
    switch (position) {
    case WindowSnapPosition::left:
        return {visibleFrame.origin, {half, visibleFrame.size.height}};
    case WindowSnapPosition::right:
        return {{visibleFrame.origin.x + half, visibleFrame.origin.y}, {half, visibleFrame.size.height}};
    case WindowSnapPosition::maximize:
        break;
    }
    return visibleFrame;
}

bool fills(const Rect& window, const Rect& visibleFrame) noexcept
{
    return isClose(window.origin.x, visibleFrame.origin.x) && isClose(window.origin.y, visibleFrame.origin.y)
        && isClose(window.size.width, visibleFrame.size.width) && isClose(window.size.height, visibleFrame.size.height);
}

} // namespace tarvin
