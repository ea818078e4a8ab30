#pragma once

#include "interception/RuntimeLog.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "shell/BackgroundModeManager.h"
#include "support/QtPrinters.h"

#include <memory>

namespace tarvin::test {

/// A simulated desktop for the shell. The system has been up for a thousand seconds; no window exists at first.
class ShellDesktop
{
public:
    ShellDesktop();

    /// Made at the first call, so that a test can prepare the platform before.
    BackgroundModeManager& manager();
    /// Whether the manager has been made.
    [[nodiscard]] bool hasManager() const { return m_manager != nullptr; }
    simulated::SimulatedWindow& addStudio() { return platform.appShell().addWindow(QStringLiteral("Studio")); }
    simulated::SimulatedWindow& addPanel();
    void store(QStringView key, const QJsonValue& value) { platform.preferences().stage(key.toString(), value); }
    [[nodiscard]] QJsonValue stored(QStringView key) { return platform.preferences().value(key.toString()); }
    [[nodiscard]] ActivationPolicy policy() { return platform.appShell().activationPolicy(); }

    /// Runs everything that is due, and tells what happened since the last call, the log apart: "policy regular",
    /// "Studio set visible", "login item enabled", "set Tarvin_OpenAtStartup true", "remove …", "script enable Tarvin
    /// /apps/Tarvin", "open tarvin://…", "come forward", "come forward ignoring others".
    [[nodiscard]] QStringList whatHappened();
    /// The same for the lines of the log, without the brackets that each begins with.
    [[nodiscard]] QStringList newLogLines();

    simulated::SimulatedPlatform platform;
    Platform ports;
    RuntimeLog log;

private:
    std::unique_ptr<BackgroundModeManager> m_manager;
    qsizetype m_logLinesSeen = 0;
};

} // namespace tarvin::test
