#include "platform/linux/x11/X11Pointer.h"

#include <utility>

namespace tarvin::x11 {

X11Pointer::X11Pointer(InputThread& thread, std::function<double()> pixelsPerPoint)
    : m_thread(thread)
    , m_pixelsPerPoint(std::move(pixelsPerPoint))
{ }

Point X11Pointer::position() const
{
    if (const auto pixels = m_thread.pointerPosition()) {
        const double scale = m_pixelsPerPoint ? m_pixelsPerPoint() : 1.0;
        m_lastKnown = {.x = pixels->x / scale, .y = pixels->y / scale};
    }
    return m_lastKnown;
}

} // namespace tarvin::x11
