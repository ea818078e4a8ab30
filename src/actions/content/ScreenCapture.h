#pragma once

#include "model/ActionParameters.h"

#include <QString>

namespace tarvin {

class Scheduler;
class SystemCommands;
class UserEnvironment;

/// Takes pictures of the screen. Main thread only.
class ScreenCapture
{
public:
    ScreenCapture(SystemCommands& commands, const UserEnvironment& user, Scheduler& scheduler);

    /// Returns before the picture is taken; nothing tells whether it was.
    void executeScreenCapture(ScreenCaptureMode mode, ScreenCaptureDestination destination);

private:
    [[nodiscard]] QString pathForNow() const;

    SystemCommands& m_commands;
    const UserEnvironment& m_user;
    Scheduler& m_scheduler;
};

} // namespace tarvin
