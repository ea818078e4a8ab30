#include "platform/linux/windows/WindowPlacer.h"

#include "platform/linux/desktop/Ewmh.h"
#include "platform/linux/desktop/WindowFacts.h"
#include "platform/linux/desktop/XProperties.h"

#include <algorithm>
#include <cmath>

namespace tarvin::windows {

using desktop::XAtom;
using namespace std::chrono_literals;

namespace {

/// A manager that gives a frame back has done so by then; measured with openbox: within 10 ms.
constexpr auto timeForNewFrame = 120ms;

/// The bits of `_NET_MOVERESIZE_WINDOW` that say which numbers count; the gravity is in the lowest byte.
constexpr std::uint32_t hasX = 1U << 8U;
constexpr std::uint32_t hasY = 1U << 9U;
constexpr std::uint32_t hasWidth = 1U << 10U;
constexpr std::uint32_t hasHeight = 1U << 11U;
constexpr std::uint32_t sourceShift = 12U;

int pixel(double value)
{
    return static_cast<int>(std::lround(value));
}

} // namespace

WindowPlacer::WindowPlacer(desktop::XConnection& connection, Scheduler& scheduler)
    : m_connection(connection)
    , m_scheduler(scheduler)
{ }

bool WindowPlacer::place(xcb_window_t window, std::optional<Point> position, std::optional<Size> size)
{
    const std::optional<WindowFrame> frame = readFrame(m_connection, window);
    if (!frame || !desktop::windowManagerWindow(m_connection))
        return false;
    giveOrdinaryState(window);
    // The frame may change between two wishes, so the one that the first counted on is kept to compare with.
    if (m_wish.window != window || !m_secondLook)
        m_wish = {.window = window, .position = {}, .size = {}, .extents = frame->extents()};
    if (position)
        m_wish.position = position;
    if (size)
        m_wish.size = size;
    send({.window = window, .position = position, .size = size, .extents = frame->extents()}, *frame);
    m_secondLook = m_scheduler.startOneShot(timeForNewFrame, [this] { lookAgain(); });
    return true;
}

void WindowPlacer::giveOrdinaryState(xcb_window_t window) const
{
    const std::vector<std::uint32_t> states = desktop::numbersOf(m_connection, window, XAtom::netWmState);
    const auto has = [&](XAtom state) {
        return std::find(states.begin(), states.end(), m_connection.atom(state)) != states.end();
    };
    if (has(XAtom::netWmStateMaximizedVert) || has(XAtom::netWmStateMaximizedHorz))
        desktop::requestStates(m_connection, m_connection.handle(), window, desktop::StateChange::remove,
            XAtom::netWmStateMaximizedVert, XAtom::netWmStateMaximizedHorz);
    if (has(XAtom::netWmStateFullscreen))
        desktop::requestStates(
            m_connection, m_connection.handle(), window, desktop::StateChange::remove, XAtom::netWmStateFullscreen);
}

void WindowPlacer::send(const Wish& wish, const WindowFrame& frame) const
{
    const FrameExtents extents = frame.extents();
    // The corner of the manager's frame; counted from the window itself, managers disagree on its old border.
    std::uint32_t flags = desktop::sourcePager << sourceShift | XCB_GRAVITY_NORTH_WEST;
    PixelRect place = frame.inner;
    if (wish.position) {
        flags |= hasX | hasY;
        place.x = pixel(wish.position->x) - frame.shadow.left;
        place.y = pixel(wish.position->y) - frame.shadow.top;
    }
    if (wish.size) {
        flags |= hasWidth | hasHeight;
        place.width = std::max(1, pixel(wish.size->width) - extents.left - extents.right);
        place.height = std::max(1, pixel(wish.size->height) - extents.top - extents.bottom);
    }
    const auto number = [](int value) { return static_cast<std::uint32_t>(value); };
    desktop::sendToManager(m_connection, m_connection.handle(), wish.window, XAtom::netMoveresizeWindow,
        {flags, number(place.x), number(place.y), number(place.width), number(place.height)});
}

void WindowPlacer::lookAgain()
{
    m_secondLook.reset();
    const std::optional<WindowFrame> frame = readFrame(m_connection, m_wish.window);
    if (frame && frame->extents() != m_wish.extents)
        send(m_wish, *frame);
}

} // namespace tarvin::windows
