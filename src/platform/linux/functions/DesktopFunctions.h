#pragma once

#include "platform/linux/functions/FunctionRoads.h"
#include "platform/linux/services/UserNotice.h"
#include "platform/ports/Scheduler.h"

#include <functional>

namespace tarvin::desktop {
class XConnection;
}

namespace tarvin::functions {

/// Asks the desktop that runs for its own functions, by the first road of the table that is there. Where there is none
/// the user is told which function is missing.
class DesktopFunctions
{
public:
    /// What the program does itself.
    struct Means
    {
        std::function<void()> lockScreen; ///< called in the background
        std::function<void()> showForceQuitDialog; ///< called on the main thread
    };

    DesktopFunctions(Scheduler& scheduler, desktop::XConnection& connection, services::Buses::Provider sessionBus,
        services::TellUser tellUser, Means means);

    /// Returns at once. Main thread.
    void perform(x11::DesktopFunction function);

private:
    void performOnMain(x11::DesktopFunction function);
    void performInBackground(x11::DesktopFunction function) const;
    void tellMissing(x11::DesktopFunction function) const;

    Scheduler& m_scheduler;
    desktop::XConnection& m_connection;
    services::Buses::Provider m_sessionBus;
    services::TellUser m_tellUser;
    Means m_means;
};

} // namespace tarvin::functions
