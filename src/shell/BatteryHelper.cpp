#include "shell/BatteryHelper.h"

#include "platform/ports/PowerSources.h"
#include "platform/ports/Scheduler.h"

#include <utility>

namespace tarvin {

BatteryHelper::BatteryHelper(const PowerSources& powerSources, Scheduler& scheduler)
    : m_powerSources(powerSources)
{
    refresh();
    m_timer = scheduler.startRepeating(pollInterval, [this] { refresh(); });
}

BatteryHelper::~BatteryHelper() = default;

QStringView BatteryHelper::batteryIcon() const
{
    if (m_isCharging)
        return u"battery.100.bolt";
    if (m_percentage >= 75 && m_percentage <= 100)
        return u"battery.100";
    if (m_percentage >= 50 && m_percentage < 75)
        return u"battery.75";
    if (m_percentage >= 25 && m_percentage < 50)
        return u"battery.50";
    return u"battery.25";
}

void BatteryHelper::refresh()
{
    const auto sources = m_powerSources.read();
    if (!sources || sources->empty())
        return;
    const PowerSource& first = sources->front();
    const int oldPercentage = std::exchange(m_percentage, first.currentCapacity.value_or(m_percentage));
    const bool wasCharging = std::exchange(m_isCharging, first.isCharging.value_or(m_isCharging));
    const bool levelChanged = oldPercentage != m_percentage;
    const bool chargeChanged = wasCharging != m_isCharging;
    if (levelChanged)
        Q_EMIT percentageChanged();
    if (chargeChanged)
        Q_EMIT chargingChanged();
    if (levelChanged || chargeChanged)
        Q_EMIT batteryIconChanged();
}

} // namespace tarvin
