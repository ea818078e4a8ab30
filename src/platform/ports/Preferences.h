#pragma once

#include <QJsonValue>
#include <QString>

namespace tarvin {

/// The user's settings: one flat store of keys with Boolean, text or JSON values. Main thread only.
class Preferences
{
public:
    virtual ~Preferences() = default;
    /// @return `QJsonValue::Undefined` where nothing is stored under the key
    [[nodiscard]] virtual QJsonValue value(const QString& key) const = 0;
    /// Holds from now on, and is on disk soon, at the latest at the end of the program. A failure to write is logged by
    /// the platform and changes nothing else.
    virtual void setValue(const QString& key, const QJsonValue& value) = 0;
    virtual void removeValue(const QString& key) = 0;
};

} // namespace tarvin
