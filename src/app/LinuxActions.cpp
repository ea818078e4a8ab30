#include "app/LinuxActions.h"

#include "platform/linux/desktop/ToolkitWindow.h"
#include "platform/linux/windows/DisplayPower.h"

namespace tarvin {

using services::Buses;
using services::TellUser;
using namespace std::chrono_literals;

namespace {

/// A process that was ended by force has left the list of processes by then.
constexpr auto timeToEnd = 200ms;

} // namespace

LinuxActions::LinuxActions(const Desktop& desktop, TellUser tellUser)
    : m_desktop(desktop)
    , m_tellUser(std::move(tellUser))
    , m_buses(Buses::ofEnvironment())
    , m_answers(m_tellUser)
    , m_mixer(m_tellUser)
    , m_players(desktop.scheduler, m_buses.session, m_tellUser)
    , m_screenSaver(desktop.scheduler, m_buses, m_answers, m_tellUser, &windows::switchDisplaysOff)
    , m_capture(m_buses.session, desktop.connection, m_tellUser)
    , m_launcher(desktop.scheduler, desktop.connection, m_buses.session, m_tellUser)
    , backlight(desktop.scheduler, m_buses.system, m_answers, m_tellUser)
    , systemKeys(m_mixer, m_players, backlight)
    , systemCommands(m_buses.system, m_answers, m_tellUser, m_screenSaver,
          [this](const CaptureScreen& wish) { m_capture.take(wish); })
    , sessionEnd(m_buses, m_answers, m_tellUser)
    , windowControl(desktop.connection, desktop.scheduler, desktop.pixelsPerPoint)
    , screens(desktop.connection, desktop.pixelsPerPoint)
    , applicationControl(desktop.applications, desktop.workspace, m_launcher, desktop.scheduler, m_tellUser)
    , functions(desktop.scheduler, desktop.connection, m_buses.session, m_tellUser,
          {.lockScreen = [this] { m_screenSaver.lock(); }, .showForceQuitDialog = [this] { showForceQuitDialog(); }})
{ }

std::optional<ScriptResult> LinuxActions::toggleMicrophone()
{
    const std::optional<mixer::PulseMixer::Microphone> now = m_mixer.toggleMicrophone();
    if (!now)
        return std::nullopt;
    const bool isActive = *now == mixer::PulseMixer::Microphone::active;
    return ScriptResult{.error = std::nullopt,
        .text = isActive ? QStringLiteral("Microphone Active (75%)") : QStringLiteral("Microphone Muted (0%)")};
}

void LinuxActions::activateFileManager()
{
    // One that was ended a moment ago is not gone yet.
    m_desktop.scheduler.postAfter(timeToEnd, [this] {
        if (const auto path = applicationControl.pathOfApplication(QStringLiteral("com.apple.finder")))
            applicationControl.openApplication(*path);
        else
            m_tellUser(services::notAvailable(QStringLiteral("file manager")));
    });
}

void LinuxActions::showForceQuitDialog()
{
    if (!m_forceQuitDialog)
        m_forceQuitDialog =
            std::make_unique<functions::ForceQuitDialog>(m_desktop.workspace, applicationControl, m_desktop.scheduler);
    m_forceQuitDialog->showList();
    desktop::bringToFront(*m_forceQuitDialog, m_desktop.connection);
}

} // namespace tarvin
