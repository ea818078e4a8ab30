#pragma once

#include "platform/ports/UserEnvironment.h"

namespace tarvin::simulated {

/// A user whose clocks show universal time at first.
class SimulatedUserEnvironment final : public UserEnvironment
{
public:
    [[nodiscard]] QString homeDirectory() const override { return m_home; }
    [[nodiscard]] QString desktopDirectory() const override { return m_home + u"/Desktop"_qs; }
    [[nodiscard]] std::chrono::seconds utcOffset(Scheduler::WallClock) const override { return m_utcOffset; }

    void setHomeDirectory(const QString& home) { m_home = home; }
    /// The same at every instant.
    void setUtcOffset(std::chrono::seconds offset) { m_utcOffset = offset; }

private:
    QString m_home = QStringLiteral("/Users/somebody");
    std::chrono::seconds m_utcOffset{};
};

} // namespace tarvin::simulated
