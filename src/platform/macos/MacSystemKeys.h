#pragma once

#include "platform/ports/SystemKeys.h"

namespace tarvin::macos {

/// Presses the system's own keys by system-defined events in the session, which carry no marker. Main thread only.
class MacSystemKeys final : public SystemKeys
{
public:
    void post(SystemKey key, SystemKeyMotion motion) override;
};

} // namespace tarvin::macos
