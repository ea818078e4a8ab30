#include "platform/simulated/SimulatedPreferences.h"

namespace tarvin::simulated {

QJsonValue SimulatedPreferences::value(const QString& key) const
{
    m_log.expectMainThread("Preferences::value");
    const auto found = m_values.find(key);
    return found == m_values.end() ? QJsonValue(QJsonValue::Undefined) : found->second;
}

void SimulatedPreferences::setValue(const QString& key, const QJsonValue& value)
{
    m_log.expectMainThread("Preferences::setValue");
    stage(key, value);
    m_log.record(SettingStored{key, value});
}

void SimulatedPreferences::removeValue(const QString& key)
{
    m_log.expectMainThread("Preferences::removeValue");
    stage(key, QJsonValue(QJsonValue::Undefined));
    m_log.record(SettingStored{key, QJsonValue(QJsonValue::Undefined)});
}

void SimulatedPreferences::stage(const QString& key, const QJsonValue& value)
{
    if (value.isUndefined())
        m_values.erase(key);
    else
        m_values.insert_or_assign(key, value);
}

} // namespace tarvin::simulated
