#pragma once

#include "platform/ports/Preferences.h"

namespace tarvin {

/// The Boolean setting under @p key, or @p unset where nothing is stored. A number counts as true unless it is 0, as
/// settings written by hand have it; anything else that is no Boolean counts as false.
[[nodiscard]] inline bool storedBoolean(const Preferences& preferences, const QString& key, bool unset)
{
    const QJsonValue value = preferences.value(key);
    if (value.isUndefined())
        return unset;
    return value.toBool() || value.toDouble() != 0.0;
}

} // namespace tarvin
