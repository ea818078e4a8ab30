#pragma once

#include "platform/linux/x11/InputThread.h"
#include "platform/ports/Pointer.h"

#include <functional>

namespace tarvin::x11 {

/// The pointer of an X session. Main thread only.
class X11Pointer final : public Pointer
{
public:
    /// @param pixelsPerPoint how many pixels of the root window make one logical point; null for one
    explicit X11Pointer(InputThread& thread, std::function<double()> pixelsPerPoint = {});

    /// Where the server can't be asked, the last known position.
    [[nodiscard]] Point position() const override;

private:
    InputThread& m_thread;
    std::function<double()> m_pixelsPerPoint;
    mutable Point m_lastKnown;
};

} // namespace tarvin::x11
