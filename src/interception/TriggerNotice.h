#pragma once

#include "model/FKey.h"

#include <QObject>
#include <QString>

#include <chrono>
#include <memory>
#include <optional>

namespace tarvin {

class Scheduler;
class Timer;

/// The one-line notice of what fired last, which goes away by itself. Main thread only.
class TriggerNotice : public QObject
{
    Q_OBJECT
    Q_PROPERTY(std::optional<QString> lastTriggeredInfo READ lastTriggeredInfo NOTIFY lastTriggeredInfoChanged)

public:
    explicit TriggerNotice(Scheduler& scheduler);
    ~TriggerNotice() override;

    [[nodiscard]] const std::optional<QString>& lastTriggeredInfo() const { return m_lastTriggeredInfo; }

    /// The notice of a key that fired, shown for 3.5 seconds.
    void recordTrigger(FKey key, const QString& title);
    /// The notice of an action about itself, shown as it is for 3.0 seconds.
    void recordTriggerDirectly(const QString& title);

Q_SIGNALS:
    void lastTriggeredInfoChanged();

private:
    void show(const QString& info, std::chrono::milliseconds duration);
    void setLastTriggeredInfo(const std::optional<QString>& info);

    Scheduler& m_scheduler;
    std::optional<QString> m_lastTriggeredInfo;
    std::unique_ptr<Timer> m_clearTriggerTimer;
};

} // namespace tarvin
