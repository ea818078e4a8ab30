#pragma once

#include "platform/ports/ProcessInfo.h"

namespace tarvin::simulated {

/// An installed program, started by hand. No part of it holds the word that makes actions hold back.
class SimulatedProcessInfo final : public ProcessInfo
{
public:
    [[nodiscard]] QString processName() const override { return m_processName; }
    [[nodiscard]] QStringList arguments() const override { return m_arguments; }
    [[nodiscard]] QString bundlePath() const override { return m_bundlePath; }
    [[nodiscard]] std::optional<QString> bundleIdentifier() const override { return m_bundleIdentifier; }
    [[nodiscard]] std::optional<QString> bundleName() const override { return m_bundleName; }
    [[nodiscard]] bool wasStartedAsLoginItem() const override { return m_startedAsLoginItem; }

    void setProcessName(const QString& name) { m_processName = name; }
    /// @param arguments the path of the executable first
    void setArguments(const QStringList& arguments) { m_arguments = arguments; }
    void setBundlePath(const QString& path) { m_bundlePath = path; }
    void setBundleIdentifier(std::optional<QString> identifier) { m_bundleIdentifier = std::move(identifier); }
    void setBundleName(std::optional<QString> name) { m_bundleName = std::move(name); }
    void setStartedAsLoginItem(bool started) { m_startedAsLoginItem = started; }

private:
    QString m_processName = QStringLiteral("tarvin");
    QStringList m_arguments{QStringLiteral("/apps/Tarvin/tarvin")};
    QString m_bundlePath = QStringLiteral("/apps/Tarvin");
    std::optional<QString> m_bundleIdentifier = QStringLiteral("com.velmor.Tarvin");
    std::optional<QString> m_bundleName = QStringLiteral("Tarvin");
    bool m_startedAsLoginItem = false;
};

} // namespace tarvin::simulated
