#pragma once

#include "platform/ports/Preferences.h"
#include "platform/simulated/EffectLog.h"

#include <map>

namespace tarvin::simulated {

/// The settings store in memory.
class SimulatedPreferences final : public Preferences
{
public:
    explicit SimulatedPreferences(EffectLog& log)
        : m_log(log)
    { }

    [[nodiscard]] QJsonValue value(const QString& key) const override;
    void setValue(const QString& key, const QJsonValue& value) override;
    void removeValue(const QString& key) override;

    /// Puts a value there as if it had been stored before; no effect is recorded. Undefined takes it away.
    void stage(const QString& key, const QJsonValue& value);

private:
    EffectLog& m_log;
    std::map<QString, QJsonValue> m_values;
};

} // namespace tarvin::simulated
