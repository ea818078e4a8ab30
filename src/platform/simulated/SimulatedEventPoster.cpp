#include "platform/simulated/SimulatedEventPoster.h"

#include "platform/simulated/SimulatedPermission.h"

namespace tarvin::simulated {

SimulatedEventPoster::SimulatedEventPoster(EffectLog& log, const SimulatedPermission& permission)
    : m_log(log)
    , m_permission(permission)
{ }

bool SimulatedEventPoster::canMakeKey(KeyCode keyCode) const
{
    return !m_impossibleKeys.contains(keyCode);
}

void SimulatedEventPoster::postKey(const SyntheticKey& key, TapLocation location)
{
    m_log.expectMainThread("EventPoster::postKey");
    if (!canMakeKey(key.keyCode))
        m_log.record(PortMisused{QStringLiteral("EventPoster::postKey"), QStringLiteral("canMakeKey was false")});
    m_log.record(KeyPosted{
        key.keyCode, key.state, key.flags, key.userData, location, key.origin, !m_permission.isProcessTrusted()});
}

void SimulatedEventPoster::postSecondaryClick(const SyntheticClick& click, TapLocation location)
{
    m_log.expectMainThread("EventPoster::postSecondaryClick");
    if (!canMakeClick()) {
        m_log.record(
            PortMisused{QStringLiteral("EventPoster::postSecondaryClick"), QStringLiteral("canMakeClick was false")});
    }
    m_log.record(ClickPosted{click.position, click.state, location, !m_permission.isProcessTrusted()});
}

void SimulatedEventPoster::setCanMakeKey(KeyCode keyCode, bool canMake)
{
    if (canMake)
        m_impossibleKeys.erase(keyCode);
    else
        m_impossibleKeys.insert(keyCode);
}

} // namespace tarvin::simulated
