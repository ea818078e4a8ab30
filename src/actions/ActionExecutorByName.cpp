// The dispatcher for an action that comes with nothing but its name.

#include "actions/ActionExecutor.h"
#include "actions/GuardedActions.h"
#include "actions/KeystrokeSynthesis.h"
#include "actions/LaunchActionTable.h"
#include "actions/TargetApplication.h"
#include "actions/seams/ContentActions.h"
#include "actions/seams/SystemActions.h"
#include "actions/seams/ToolPanel.h"
#include "interception/TriggerNotice.h"
#include "model/ConfiguredAction.h"
#include "platform/ports/Scheduler.h"

namespace tarvin {

namespace {

constexpr int volumeStep = 6; ///< percentage points
constexpr double brightnessStep = 0.0625; ///< one of the sixteen steps of the brightness keys

void toggle(ToolPanel& panel)
{
    if (panel.isVisible())
        panel.hide();
    else
        panel.show();
}

} // namespace

void ActionExecutor::execute(KeyAction action)
{
    switch (action) {
    case KeyAction::screenCapture:
    case KeyAction::screenshotArea:
        m_with.guarded.executeScreenCapture(ScreenCaptureMode::region, ScreenCaptureDestination::clipboard);
        return;
    case KeyAction::screenshotFull:
        m_with.guarded.executeScreenCapture(ScreenCaptureMode::screen, ScreenCaptureDestination::clipboard);
        return;
    case KeyAction::toggleMicMute:
        m_with.performers.system.toggleMicrophoneMute();
        return;
    case KeyAction::showActionsRing:
        toggle(m_with.performers.actionsRing);
        return;
    case KeyAction::clipboardHistory:
        toggle(m_with.performers.clipboardHistory);
        return;
    case KeyAction::floatingScratchpad:
        toggle(m_with.performers.floatingScratchpad);
        return;
    case KeyAction::keyboardShortcut:
        m_with.notice.recordTriggerDirectly(u"Shortcut triggered"_qs);
        return;
    case KeyAction::openApplication:
        m_with.guarded.executeOpenApplication(ConfiguredAction(KeyAction::openApplication));
        return;
    case KeyAction::openWebURL:
        m_with.guarded.openURL(std::nullopt);
        return;
    case KeyAction::aiAssistant:
        m_with.performers.content.triggerAIAssistant();
        return;
    case KeyAction::smartWorkFocus:
        m_with.performers.content.smartWorkFocus();
        return;
    case KeyAction::smartMeetingMute:
        m_with.performers.content.smartMeetingMute();
        return;
    case KeyAction::smartCleanDesk:
        m_with.performers.content.smartCleanDesk();
        return;
    case KeyAction::textSnippet:
        insertSnippet(QString());
        return;
    case KeyAction::quickAppFlip:
        m_with.guarded.quickFlip(std::nullopt);
        return;
    case KeyAction::actionChain:
        m_with.notice.recordTriggerDirectly(u"Action Chain triggered"_qs);
        return;
    case KeyAction::snapWindowLeft:
        snapLater(WindowSnapPosition::left);
        return;
    case KeyAction::snapWindowRight:
        snapLater(WindowSnapPosition::right);
        return;
    case KeyAction::snapWindowMaximize:
        snapLater(WindowSnapPosition::maximize);
        return;
    case KeyAction::minimizeWindow:
        m_with.scheduler.post([&windows = m_with.performers.windows] { windows.minimizeFrontWindow(); });
        return;
    case KeyAction::toggleFullscreen:
        m_with.scheduler.post([&windows = m_with.performers.windows] { windows.toggleFrontWindowFullscreen(); });
        return;
    case KeyAction::advancedClick:
        m_with.synthesis.simulateSecondaryClick();
        return;
    case KeyAction::brightnessDown:
        m_with.performers.system.adjustBrightness(-brightnessStep);
        return;
    case KeyAction::brightnessUp:
        m_with.performers.system.adjustBrightness(brightnessStep);
        return;
    case KeyAction::volumeDown:
        m_with.performers.system.adjustVolume(-volumeStep);
        return;
    case KeyAction::volumeUp:
        m_with.performers.system.adjustVolume(volumeStep);
        return;
    case KeyAction::mute:
        m_with.performers.system.toggleMute();
        return;
    case KeyAction::nextTrack:
        m_with.performers.system.executeMediaNext();
        return;
    case KeyAction::playPause:
        m_with.performers.system.executeMediaPlayPause();
        return;
    case KeyAction::previousTrack:
        m_with.performers.system.executeMediaPrevious();
        return;
    case KeyAction::forceQuit:
        m_with.guarded.forceQuitFrontmostApplication();
        return;
    case KeyAction::restart:
        m_with.guarded.executeSystemRestart();
        return;
    case KeyAction::shutDown:
        m_with.guarded.executeSystemShutDown();
        return;
    case KeyAction::sleepDevice:
        m_with.guarded.executeSystemSleep();
        return;
    case KeyAction::sleepDisplay:
        m_with.guarded.executeDisplaySleep();
        return;
    case KeyAction::calculator:
    case KeyAction::finder:
    case KeyAction::notes:
    case KeyAction::safari:
    case KeyAction::systemSettings:
    case KeyAction::terminal:
        launch(action);
        return;
    case KeyAction::missionControl:
        m_with.performers.content.openApplicationAt(u"/System/Applications/Mission Control.app"_qs);
        m_keystrokes.perform(action);
        return;
    case KeyAction::appExpose:
    case KeyAction::back:
    case KeyAction::closeBrowserTab:
    case KeyAction::closeWindow:
    case KeyAction::copy:
    case KeyAction::cut:
    case KeyAction::forwardDelete:
    case KeyAction::desktopLeft:
    case KeyAction::desktopRight:
    case KeyAction::dictation:
    case KeyAction::doNotDisturb:
    case KeyAction::lockScreen:
    case KeyAction::newBrowserTab:
    case KeyAction::newBrowserWindow:
    case KeyAction::paste:
    case KeyAction::redo:
    case KeyAction::refresh:
    case KeyAction::selectAll:
    case KeyAction::showDesktop:
    case KeyAction::spotlight:
    case KeyAction::undo:
        m_keystrokes.perform(action);
        return;
    // A key that is to behave as the factory made it never gets here by a press.
    case KeyAction::nativeCapsLock:
    case KeyAction::nativeRightOption:
    case KeyAction::nativeRightCommand:
    case KeyAction::nativeFnGlobe:
    case KeyAction::nativeSection:
    case KeyAction::unassigned:
        return;
    }
}

void ActionExecutor::insertSnippet(const QString& text)
{
    if (isRunningInTestEnvironment())
        return;
    const QString snippet = text.isEmpty() ? u"Sent from my MacBook Air via Tarvin"_qs : text;
    m_with.targets.prepareTargetAppIfTarvinActive(
        [&content = m_with.performers.content, snippet] { content.pasteText(snippet); });
}

void ActionExecutor::launch(KeyAction action)
{
    if (const LaunchActionRow* row = launchActionRow(action))
        m_with.guarded.launchApp(row->bundleId.toString(), row->path.toString());
}

void ActionExecutor::snapLater(WindowSnapPosition position)
{
    m_with.scheduler.post([&windows = m_with.performers.windows, position] { windows.snapFrontWindow(position); });
}

} // namespace tarvin
