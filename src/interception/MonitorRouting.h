#pragma once

#include "platform/ports/InputTaps.h"

namespace tarvin {

class KeyFunnel;
class StudioPresence;

/// What happens to a keyboard event in the two monitors. The global one sees what goes to other applications and
/// matters when no tap delivers; the local one sees what goes to the program's own windows. Main thread only.
class MonitorRouting
{
public:
    MonitorRouting(KeyFunnel& funnel, StudioPresence& studio);

    void handleGlobalNSEvent(const InputEvent& event);

    /// With the master switch on, the presses and releases of every customisable key are swallowed, customised or not:
    /// inside the program's windows they type and steer nothing.
    [[nodiscard]] EventVerdict handleLocalNSEvent(const InputEvent& event);

private:
    [[nodiscard]] bool openStudioIfSummoned(const InputEvent& event);

    KeyFunnel& m_funnel;
    StudioPresence& m_studio;
};

} // namespace tarvin
