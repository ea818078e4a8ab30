#pragma once

#include "platform/ports/Preferences.h"

namespace tarvin::macos {

/// The user defaults of the program. The system writes them to the disk by itself. Main thread only.
class MacPreferences final : public Preferences
{
public:
    [[nodiscard]] QJsonValue value(const QString& key) const override;
    /// A value that cannot be stored removes the key.
    void setValue(const QString& key, const QJsonValue& value) override;
    void removeValue(const QString& key) override;
};

} // namespace tarvin::macos
