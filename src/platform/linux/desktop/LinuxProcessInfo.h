#pragma once

#include "platform/ports/ProcessInfo.h"

namespace tarvin::desktop {

class LinuxProcessInfo : public ProcessInfo
{
public:
    /// @param arguments as `main` got them
    explicit LinuxProcessInfo(QStringList arguments);

    [[nodiscard]] QString processName() const override;
    [[nodiscard]] QStringList arguments() const override { return m_arguments; }
    /// The folder of the executable, links resolved.
    [[nodiscard]] QString bundlePath() const override;
    [[nodiscard]] std::optional<QString> bundleIdentifier() const override;
    [[nodiscard]] std::optional<QString> bundleName() const override;
    [[nodiscard]] bool wasStartedAsLoginItem() const override { return false; }

    /// The absolute path of the executable, links resolved.
    [[nodiscard]] QString executable() const { return m_executable; }

private:
    const QStringList m_arguments;
    const QString m_executable;
};

} // namespace tarvin::desktop
