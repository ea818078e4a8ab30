#include "actions/system/SystemPerformer.h"

#include "actions/ScriptRunner.h"
#include "actions/system/ForceQuit.h"
#include "actions/system/PowerCommands.h"
#include "actions/system/SystemKeyPresses.h"
#include "interception/TriggerNotice.h"
#include "platform/ports/DisplayBrightness.h"
#include "platform/ports/Scheduler.h"

#include <algorithm>
#include <cmath>

namespace tarvin {

namespace {

/// What a display is taken for that does not tell.
constexpr double usualBrightness = 0.5;
/// One of the sixteen steps of the brightness keys.
constexpr double brightnessStep = 0.0625;

long percentOf(double brightness)
{
    return brightness >= 1.0 ? 100 : std::lround(std::max(0.0, brightness) * 100.0);
}

} // namespace

SystemPerformer::SystemPerformer(const Collaborators& collaborators)
    : m_with(collaborators)
{ }

void SystemPerformer::adjustVolume(int delta)
{
    const bool isQuieter = delta < 0;
    m_with.scripts.runAsyncAppleScript(AdjustOutputVolume{delta});
    m_with.keys.sendSystemKey(isQuieter ? SystemKey::soundDown : SystemKey::soundUp);
    m_with.notice.recordTriggerDirectly(isQuieter ? u"Volume Down"_qs : u"Volume Up"_qs);
}

void SystemPerformer::toggleMute()
{
    m_with.scripts.runAsyncAppleScript(ToggleOutputMute{});
    m_with.keys.sendSystemKey(SystemKey::mute);
    m_with.notice.recordTriggerDirectly(u"Mute Toggled"_qs);
}

void SystemPerformer::adjustBrightness(double delta)
{
    const bool isDarker = delta < 0;
    // The key alone changes the brightness, and not before this turn has ended: the notice tells what will come of it.
    m_with.keys.sendSystemKey(isDarker ? SystemKey::brightnessDown : SystemKey::brightnessUp);
    const double current = m_with.brightness.current().value_or(usualBrightness);
    const double value = current + (isDarker ? -brightnessStep : brightnessStep);
    m_with.notice.recordTriggerDirectly(
        u"Brightness %1 (%2%)"_qs.arg(isDarker ? u"Down"_qs : u"Up"_qs, QString::number(percentOf(value))));
}

void SystemPerformer::executeMediaPlayPause()
{
    control(SystemKey::play, MediaCommand::playPause, u"Play / Pause");
}

void SystemPerformer::executeMediaNext()
{
    control(SystemKey::next, MediaCommand::next, u"Next Track");
}

void SystemPerformer::executeMediaPrevious()
{
    control(SystemKey::previous, MediaCommand::previous, u"Previous Track");
}

void SystemPerformer::control(SystemKey key, MediaCommand command, QStringView title)
{
    m_with.keys.sendSystemKey(key);
    m_with.scripts.runAsyncAppleScript(ControlMediaPlayer{command});
    m_with.notice.recordTriggerDirectly(title.toString());
}

void SystemPerformer::toggleMicrophoneMute()
{
    m_with.scheduler.runInBackground(BackgroundQueue::userInitiated,
        [&scripts = m_with.unguardedScripts, &scheduler = m_with.scheduler, &notice = m_with.notice] {
            const std::optional<ScriptResult> result = scripts.run(ToggleMicrophone{});
            if (!result)
                return;
            const QString title = result->text.value_or(u"Microphone Toggled"_qs);
            scheduler.post([&notice, title] { notice.recordTriggerDirectly(title); });
        });
}

void SystemPerformer::sleepSystem()
{
    m_with.power.sleepSystem();
}

void SystemPerformer::sleepDisplay()
{
    m_with.power.sleepDisplay();
}

void SystemPerformer::shutDownSystem()
{
    m_with.power.shutDownSystem();
}

void SystemPerformer::restartSystem()
{
    m_with.power.restartSystem();
}

void SystemPerformer::forceQuitFrontmostApplication()
{
    m_with.forceQuit.forceQuitFrontmostApplication();
}

void SystemPerformer::openSystemForceQuitDialog()
{
    m_with.forceQuit.openSystemForceQuitDialog();
}

} // namespace tarvin
