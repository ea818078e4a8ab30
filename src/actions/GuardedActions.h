#pragma once

#include "actions/seams/Performers.h"
#include "model/ActionChainStep.h"
#include "model/ActionParameters.h"

#include <QList>
#include <QString>

#include <optional>

namespace tarvin {

class TestEnvironment;
class TriggerNotice;
struct ConfiguredAction;

/// The performers that hold back in test-safe mode. Whoever needs one of these operations calls it here and not behind
/// the seam. Main thread only.
class GuardedActions
{
public:
    GuardedActions(const Performers& performers, const TestEnvironment& testEnvironment, TriggerNotice& notice);

    // In test-safe mode these do nothing.

    void executeScreenCapture(ScreenCaptureMode mode, ScreenCaptureDestination destination);
    void openURL(const std::optional<QString>& address);
    void launchApp(const QString& bundleId, const QString& path);
    void executeOpenApplication(const ConfiguredAction& config);
    void executeActionChain(const QList<ActionChainStep>& steps);
    void quickFlip(const std::optional<QString>& companionBundleId);

    // In test-safe mode these give the notice and no command.

    void executeSystemSleep();
    void executeDisplaySleep();
    void executeSystemShutDown();
    void executeSystemRestart();

    // In test-safe mode these give a notice that says so, and nothing else.

    void forceQuitFrontmostApplication();
    void openSystemForceQuitDialog();

private:
    [[nodiscard]] bool mayAct() const;

    Performers m_performers;
    const TestEnvironment& m_testEnvironment;
    TriggerNotice& m_notice;
};

} // namespace tarvin
