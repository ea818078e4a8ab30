#pragma once

#include "platform/linux/services/AnswerWatch.h"
#include "platform/linux/services/Buses.h"
#include "platform/ports/Scheduler.h"

namespace tarvin::services {

/// Locks the session and switches its displays off, by whatever the running desktop has for it. All calls are for
/// background threads.
class ScreenSaver
{
public:
    /// Switches the displays off by the display server; false where it can't.
    using SwitchDisplaysOff = std::function<bool()>;

    ScreenSaver(Scheduler& scheduler, Buses buses, AnswerWatch& answers, TellUser tellUser,
        SwitchDisplaysOff switchDisplaysOff);

    /// Asks the desktop's screen saver, else a locker that runs or is installed, else the login manager.
    void lock();
    /// A moment later, since the release of the key that was pressed would switch the displays on again.
    void blankDisplays();

private:
    void blankNow();

    Scheduler& m_scheduler;
    Buses m_buses;
    AnswerWatch& m_answers;
    TellUser m_tellUser;
    SwitchDisplaysOff m_switchDisplaysOff;
};

} // namespace tarvin::services
