#include "interception/HidRouting.h"

#include "interception/KeyFunnel.h"

namespace tarvin {

HidRouting::HidRouting(KeyFunnel& funnel)
    : m_funnel(funnel)
{ }

void HidRouting::handleHidValue(const HidValue& value)
{
    if (value.value == 0 || value.value == 1)
        handleHIDKey(value.page, value.usage, value.value == 1);
}

void HidRouting::handleHIDKey(std::uint32_t page, std::uint32_t usage, bool isDown)
{
    if (!m_funnel.isInterceptionEnabled())
        return;
    if (const std::optional<FKey> key = fromPageUsage(page, usage))
        m_funnel.report(*key, isDown ? KeyMotion::down : KeyMotion::up, TriggerSource::ioHid);
}

} // namespace tarvin
