#include "platform/simulated/EffectLog.h"

#include "platform/simulated/SimulatedScheduler.h"

namespace tarvin::simulated {

EffectLog::EffectLog(const SimulatedScheduler& scheduler)
    : m_scheduler(scheduler)
{ }

void EffectLog::record(EffectKind what)
{
    m_effects.push_back({m_scheduler.virtualTime(), std::move(what)});
}

void EffectLog::expectMainThread(const char* call)
{
    if (!m_scheduler.isMainThread())
        record(PortMisused{QString::fromLatin1(call), QStringLiteral("main thread only")});
}

void EffectLog::expectBackgroundQueue(const char* call)
{
    if (m_scheduler.isMainThread())
        record(PortMisused{QString::fromLatin1(call), QStringLiteral("background queue only")});
}

} // namespace tarvin::simulated
