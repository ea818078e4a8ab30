#include "interception/TriggerNotice.h"

#include "platform/ports/Scheduler.h"

namespace tarvin {

using namespace std::chrono_literals;

TriggerNotice::TriggerNotice(Scheduler& scheduler)
    : m_scheduler(scheduler)
{ }

TriggerNotice::~TriggerNotice() = default;

void TriggerNotice::recordTrigger(FKey key, const QString& title)
{
    show(QStringLiteral("Pressed physical %1 → Executing %2").arg(rawValue(key), title), 3500ms);
}

void TriggerNotice::recordTriggerDirectly(const QString& title)
{
    show(title, 3000ms);
}

void TriggerNotice::show(const QString& info, std::chrono::milliseconds duration)
{
    setLastTriggeredInfo(info);
    m_clearTriggerTimer = m_scheduler.startOneShot(duration, [this] { setLastTriggeredInfo(std::nullopt); });
}

void TriggerNotice::setLastTriggeredInfo(const std::optional<QString>& info)
{
    if (m_lastTriggeredInfo == info)
        return;
    m_lastTriggeredInfo = info;
    Q_EMIT lastTriggeredInfoChanged();
}

} // namespace tarvin
