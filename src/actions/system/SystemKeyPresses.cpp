#include "actions/system/SystemKeyPresses.h"

#include "platform/ports/Scheduler.h"

namespace tarvin {

SystemKeyPresses::SystemKeyPresses(SystemKeys& keys, Scheduler& scheduler)
    : m_keys(keys)
    , m_scheduler(scheduler)
{ }

void SystemKeyPresses::sendSystemKey(SystemKey key)
{
    m_keys.post(key, SystemKeyMotion::down);
    m_scheduler.postAfter(releaseDelay, [&keys = m_keys, key] { keys.post(key, SystemKeyMotion::up); });
}

} // namespace tarvin
