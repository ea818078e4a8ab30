#include "interception/MonitorRouting.h"

#include "interception/KeyFunnel.h"
#include "interception/StudioPresence.h"
#include "interception/SummonGesture.h"

namespace tarvin {

MonitorRouting::MonitorRouting(KeyFunnel& funnel, StudioPresence& studio)
    : m_funnel(funnel)
    , m_studio(studio)
{ }

void MonitorRouting::handleGlobalNSEvent(const InputEvent& event)
{
    if (event.isSelfPosted() || openStudioIfSummoned(event) || !m_funnel.isInterceptionEnabled())
        return;
    if (const std::optional<FKey> key = keyOf(event)) {
        m_funnel.report(
            *key, motionOf(event, *key, m_funnel.ledger().pressedPhysicalKeys()), globalMonitorSources.of(event.type));
    }
}

EventVerdict MonitorRouting::handleLocalNSEvent(const InputEvent& event)
{
    if (event.isSelfPosted() || openStudioIfSummoned(event))
        return EventVerdict::consume;
    if (!m_funnel.isInterceptionEnabled())
        return EventVerdict::pass;
    const std::optional<FKey> key = keyOf(event);
    if (!key)
        return EventVerdict::pass;
    m_funnel.report(
        *key, motionOf(event, *key, m_funnel.ledger().pressedPhysicalKeys()), localMonitorSources.of(event.type));
    // The windows must go on knowing which modifiers are held, so only a customised one is kept from them.
    if (event.type == InputEventType::flagsChanged && !m_funnel.isCustom(*key))
        return EventVerdict::pass;
    return EventVerdict::consume;
}

bool MonitorRouting::openStudioIfSummoned(const InputEvent& event)
{
    if (!isSummonGesture(event) || !m_studio.isGlobalSummonShortcutEnabled())
        return false;
    m_studio.openStudioWindow();
    return true;
}

} // namespace tarvin
