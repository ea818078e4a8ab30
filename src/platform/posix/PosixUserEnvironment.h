#pragma once

#include "platform/ports/UserEnvironment.h"

namespace tarvin::posix {

/// The user's folders as the environment and the XDG user directories tell them. Any thread.
class PosixUserEnvironment : public UserEnvironment
{
public:
    [[nodiscard]] QString homeDirectory() const override;
    /// The home directory where the user has no such folder.
    [[nodiscard]] QString desktopDirectory() const override;
    [[nodiscard]] std::chrono::seconds utcOffset(Scheduler::WallClock instant) const override;
};

} // namespace tarvin::posix
