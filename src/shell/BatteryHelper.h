#pragma once

#include <QObject>
#include <QStringView>

#include <chrono>
#include <memory>

namespace tarvin {

class PowerSources;
class Scheduler;
class Timer;

/// The battery's level and whether it charges, read again and again. A machine without a battery reads as full. Main
/// thread only.
class BatteryHelper : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int percentage READ percentage NOTIFY percentageChanged)
    Q_PROPERTY(bool isCharging READ isCharging NOTIFY chargingChanged)
    Q_PROPERTY(QString batteryIcon READ batteryIconText NOTIFY batteryIconChanged)

public:
    static constexpr std::chrono::milliseconds pollInterval = std::chrono::seconds(30);

    /// Reads once, then every 30 seconds.
    BatteryHelper(const PowerSources& powerSources, Scheduler& scheduler);
    ~BatteryHelper() override;
    Q_DISABLE_COPY_MOVE(BatteryHelper)

    /// Percent of the full charge.
    [[nodiscard]] int percentage() const { return m_percentage; }
    [[nodiscard]] bool isCharging() const { return m_isCharging; }
    /// Name in the symbol font.
    [[nodiscard]] QStringView batteryIcon() const;

    /// Reads once. What the system does not tell stays as it was; only its first source counts.
    void refresh();

Q_SIGNALS:
    void percentageChanged();
    void chargingChanged();
    /// After either of the others; the icon may be the same as before.
    void batteryIconChanged();

private:
    [[nodiscard]] QString batteryIconText() const { return batteryIcon().toString(); }

    const PowerSources& m_powerSources;
    int m_percentage = 100;
    bool m_isCharging = false;
    std::unique_ptr<Timer> m_timer;
};

} // namespace tarvin
