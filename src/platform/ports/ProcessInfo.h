#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace tarvin {

/// What the program knows about itself as a process. Constant while it runs, except the uptime that the `Scheduler`
/// tells.
class ProcessInfo
{
public:
    virtual ~ProcessInfo() = default;
    [[nodiscard]] virtual QString processName() const = 0;
    /// All arguments, the path of the executable first.
    [[nodiscard]] virtual QStringList arguments() const = 0;
    /// Where the application is installed: its bundle, or the folder of the executable.
    [[nodiscard]] virtual QString bundlePath() const = 0;
    [[nodiscard]] virtual std::optional<QString> bundleIdentifier() const = 0;
    /// The application's name from its bundle, absent where the bundle does not tell.
    [[nodiscard]] virtual std::optional<QString> bundleName() const = 0;
    /// Whether the system says by itself that this start is one of the login items. Linux never does: there the
    /// autostart entry passes an argument.
    [[nodiscard]] virtual bool wasStartedAsLoginItem() const = 0;
};

} // namespace tarvin
