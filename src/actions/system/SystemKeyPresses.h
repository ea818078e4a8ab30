#pragma once

#include "platform/ports/SystemKeys.h"

#include <chrono>

namespace tarvin {

class Scheduler;

/// Presses the system's own keys, in test-safe mode too. Main thread only; outlives what is still to be released.
class SystemKeyPresses
{
public:
    static constexpr std::chrono::milliseconds releaseDelay{30};

    SystemKeyPresses(SystemKeys& keys, Scheduler& scheduler);

    /// One press, released by itself; returns before the release.
    void sendSystemKey(SystemKey key);

private:
    SystemKeys& m_keys;
    Scheduler& m_scheduler;
};

} // namespace tarvin
