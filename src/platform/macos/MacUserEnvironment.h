#pragma once

#include "platform/posix/PosixUserEnvironment.h"

namespace tarvin::macos {

/// The user's folders as the system tells them; the time on the wall as on every Unix. Main thread only.
class MacUserEnvironment final : public posix::PosixUserEnvironment
{
public:
    [[nodiscard]] QString homeDirectory() const override;
    /// The home directory where the system knows no such folder.
    [[nodiscard]] QString desktopDirectory() const override;

    /// The folder of the program's own data, "Tarvin" included.
    [[nodiscard]] QString applicationSupportDirectory() const;
    /// A folder that only this user can look into, the same for all processes of the user.
    [[nodiscard]] QString temporaryDirectory() const;
};

} // namespace tarvin::macos
