#pragma once

#include "platform/ports/Scheduler.h"

#include <QString>

#include <chrono>

namespace tarvin {

/// What belongs to the user who is logged in: folders and the time on the wall.
class UserEnvironment
{
public:
    virtual ~UserEnvironment() = default;
    /// Absolute, without a slash at the end.
    [[nodiscard]] virtual QString homeDirectory() const = 0;
    /// The folder that the desktop shows; absolute, without a slash at the end.
    [[nodiscard]] virtual QString desktopDirectory() const = 0;
    /// How far the user's clocks are ahead of universal time at the instant.
    [[nodiscard]] virtual std::chrono::seconds utcOffset(Scheduler::WallClock instant) const = 0;
};

} // namespace tarvin
