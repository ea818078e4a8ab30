#include "actions/ActionExecutor.h"

#include "actions/GuardedActions.h"
#include "actions/KeystrokeSynthesis.h"
#include "actions/TargetApplication.h"
#include "actions/TestEnvironment.h"
#include "interception/TriggerNotice.h"
#include "model/ConfiguredAction.h"
#include "model/OptionalText.h"

#include <utility>

namespace tarvin {

ActionExecutor::ActionExecutor(Collaborators collaborators)
    : m_with(std::move(collaborators))
    , m_keystrokes(m_with.synthesis, m_with.targets, m_with.scripts, m_with.notice)
{ }

bool ActionExecutor::isRunningInTestEnvironment() const
{
    return m_with.testEnvironment.isRunningInTestEnvironment();
}

void ActionExecutor::execute(const ConfiguredAction& config)
{
    m_with.recordUsage(config.action);
    switch (config.action) {
    case KeyAction::screenCapture:
    case KeyAction::screenshotArea:
    case KeyAction::screenshotFull:
        // The record decides: the names of the last two choose no mode here.
        m_with.guarded.executeScreenCapture(config.screenCaptureMode, config.screenCaptureDestination);
        return;
    case KeyAction::keyboardShortcut:
        playShortcuts(config);
        return;
    case KeyAction::openApplication:
        openConfiguredApplication(config);
        return;
    case KeyAction::openWebURL:
        m_with.guarded.openURL(config.customURL);
        return;
    case KeyAction::textSnippet:
        insertSnippet(config.textSnippet.value_or(QString()));
        return;
    case KeyAction::quickAppFlip:
        m_with.guarded.quickFlip(config.quickFlipCompanionBundleId);
        return;
    case KeyAction::actionChain:
        m_with.guarded.executeActionChain(config.chainSteps);
        return;
    case KeyAction::forceQuit:
        forceQuit(config);
        return;
    // No parameter of the record concerns these.
    case KeyAction::toggleMicMute:
    case KeyAction::showActionsRing:
    case KeyAction::aiAssistant:
    case KeyAction::smartWorkFocus:
    case KeyAction::smartMeetingMute:
    case KeyAction::smartCleanDesk:
    case KeyAction::clipboardHistory:
    case KeyAction::floatingScratchpad:
    case KeyAction::snapWindowLeft:
    case KeyAction::snapWindowRight:
    case KeyAction::snapWindowMaximize:
    case KeyAction::advancedClick:
    case KeyAction::appExpose:
    case KeyAction::back:
    case KeyAction::brightnessDown:
    case KeyAction::brightnessUp:
    case KeyAction::calculator:
    case KeyAction::closeBrowserTab:
    case KeyAction::closeWindow:
    case KeyAction::copy:
    case KeyAction::cut:
    case KeyAction::forwardDelete:
    case KeyAction::desktopLeft:
    case KeyAction::desktopRight:
    case KeyAction::dictation:
    case KeyAction::doNotDisturb:
    case KeyAction::finder:
    case KeyAction::lockScreen:
    case KeyAction::minimizeWindow:
    case KeyAction::missionControl:
    case KeyAction::mute:
    case KeyAction::newBrowserTab:
    case KeyAction::newBrowserWindow:
    case KeyAction::nextTrack:
    case KeyAction::notes:
    case KeyAction::paste:
    case KeyAction::playPause:
    case KeyAction::previousTrack:
    case KeyAction::redo:
    case KeyAction::refresh:
    case KeyAction::restart:
    case KeyAction::safari:
    case KeyAction::selectAll:
    case KeyAction::showDesktop:
    case KeyAction::shutDown:
    case KeyAction::sleepDevice:
    case KeyAction::sleepDisplay:
    case KeyAction::spotlight:
    case KeyAction::systemSettings:
    case KeyAction::terminal:
    case KeyAction::toggleFullscreen:
    case KeyAction::undo:
    case KeyAction::volumeDown:
    case KeyAction::volumeUp:
    case KeyAction::nativeCapsLock:
    case KeyAction::nativeRightOption:
    case KeyAction::nativeRightCommand:
    case KeyAction::nativeFnGlobe:
    case KeyAction::nativeSection:
    case KeyAction::unassigned:
        execute(config.action);
        return;
    }
}

void ActionExecutor::playShortcuts(const ConfiguredAction& config)
{
    // A lone shortcut that names a key is among these, so an empty list means that there is nothing to play.
    const QList<CustomShortcut> shortcuts = config.allShortcuts();
    if (shortcuts.isEmpty()) {
        m_with.notice.recordTriggerDirectly(u"No shortcut configured"_qs);
        return;
    }
    m_with.targets.prepareTargetAppIfTarvinActive(
        [this, shortcuts, mode = config.multiKeyMode] { m_with.synthesis.executeMultiKeyShortcuts(shortcuts, mode); });
}

void ActionExecutor::openConfiguredApplication(const ConfiguredAction& config)
{
    if (hasText(config.customAppBundleId))
        m_with.guarded.launchApp(*config.customAppBundleId, QString());
    else
        m_with.notice.recordTriggerDirectly(u"No application configured"_qs);
}

void ActionExecutor::forceQuit(const ConfiguredAction& config)
{
    switch (config.forceQuitMode) {
    case ForceQuitMode::activeApp:
        m_with.guarded.forceQuitFrontmostApplication();
        return;
    case ForceQuitMode::systemDialog:
        m_with.guarded.openSystemForceQuitDialog();
        return;
    }
}

} // namespace tarvin
