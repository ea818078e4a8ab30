#include "actions/GuardedActions.h"

#include "actions/TestEnvironment.h"
#include "actions/seams/ActionChains.h"
#include "actions/seams/ContentActions.h"
#include "actions/seams/QuickFlip.h"
#include "actions/seams/SystemActions.h"
#include "interception/TriggerNotice.h"

namespace tarvin {

GuardedActions::GuardedActions(
    const Performers& performers, const TestEnvironment& testEnvironment, TriggerNotice& notice)
    : m_performers(performers)
    , m_testEnvironment(testEnvironment)
    , m_notice(notice)
{ }

bool GuardedActions::mayAct() const
{
    return !m_testEnvironment.isRunningInTestEnvironment();
}

void GuardedActions::executeScreenCapture(ScreenCaptureMode mode, ScreenCaptureDestination destination)
{
    if (mayAct())
        m_performers.content.executeScreenCapture(mode, destination);
}

void GuardedActions::openURL(const std::optional<QString>& address)
{
    if (mayAct())
        m_performers.content.openURL(address);
}

void GuardedActions::launchApp(const QString& bundleId, const QString& path)
{
    if (mayAct())
        m_performers.content.launchApp(bundleId, path);
}

void GuardedActions::executeOpenApplication(const ConfiguredAction& config)
{
    if (mayAct())
        m_performers.content.executeOpenApplication(config);
}

void GuardedActions::executeActionChain(const QList<ActionChainStep>& steps)
{
    if (mayAct())
        m_performers.chains.executeActionChain(steps);
}

void GuardedActions::quickFlip(const std::optional<QString>& companionBundleId)
{
    if (mayAct())
        m_performers.quickFlip.quickFlip(companionBundleId);
}

void GuardedActions::executeSystemSleep()
{
    m_notice.recordTriggerDirectly(u"Sleeping Mac..."_qs);
    if (mayAct())
        m_performers.system.sleepSystem();
}

void GuardedActions::executeDisplaySleep()
{
    m_notice.recordTriggerDirectly(u"Display Sleeping..."_qs);
    if (mayAct())
        m_performers.system.sleepDisplay();
}

void GuardedActions::executeSystemShutDown()
{
    m_notice.recordTriggerDirectly(u"Shutting Down Mac..."_qs);
    if (mayAct())
        m_performers.system.shutDownSystem();
}

void GuardedActions::executeSystemRestart()
{
    m_notice.recordTriggerDirectly(u"Restarting Mac..."_qs);
    if (mayAct())
        m_performers.system.restartSystem();
}

void GuardedActions::forceQuitFrontmostApplication()
{
    if (mayAct())
        m_performers.system.forceQuitFrontmostApplication();
    else
        m_notice.recordTriggerDirectly(u"Force Quit (Test Mode Simulated)"_qs);
}

void GuardedActions::openSystemForceQuitDialog()
{
    if (mayAct())
        m_performers.system.openSystemForceQuitDialog();
    else
        m_notice.recordTriggerDirectly(u"[Test Safe] Open Force Quit dialog simulated"_qs);
}

} // namespace tarvin
