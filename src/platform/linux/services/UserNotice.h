#pragma once

#include <QString>

#include <functional>

namespace tarvin::services {

/// Shows the user one line of text. May be called on any thread.
using TellUser = std::function<void(const QString&)>;

/// What the user reads where the desktop has no such function.
[[nodiscard]] inline QString notAvailable(const QString& function)
{
    return QStringLiteral("Not available on this desktop: %1").arg(function);
}

/// What the user reads where somebody with the right to say so said no.
[[nodiscard]] inline QString refused(const QString& function, const QString& reason)
{
    return reason.isEmpty() ? QStringLiteral("%1 refused").arg(function)
                            : QStringLiteral("%1 refused: %2").arg(function, reason);
}

} // namespace tarvin::services
