#include "app/ResidentProgram.h"

#include "app/CommandAtWork.h"
#include "app/ControlPaths.h"
#include "app/DrawnToolPanels.h"
#include "app/LinuxDesktop.h"
#include "app/ProgramCommands.h"
#include "app/StudioEditors.h"
#include "app/StudioMaking.h"
#include "app/core/SharedObjects.h"
#include "interception/EventTapManager.h"
#include "interception/RuntimeLog.h"
#include "interception/TriggerNotice.h"
#include "menubar/MenuBarItem.h"
#include "platform/linux/desktop/ApplicationId.h"
#include "platform/linux/desktop/FieldPasting.h"
#include "platform/linux/desktop/InstanceRequest.h"
#include "platform/linux/desktop/KeyboardSettings.h"
#include "platform/linux/desktop/SingleInstance.h"
#include "platform/linux/desktop/TrayLookout.h"
#include "platform/linux/desktop/XServerProbe.h"
#include "platform/posix/TerminationSignals.h"
#include "profiles/KeyProfile.h"
#include "shell/AppDelegate.h"
#include "shell/BackgroundModeManager.h"
#include "shell/BatteryHelper.h"
#include "studio/StudioWindow.h"
#include "ui/InterfaceStyle.h"

#include <QApplication>
#include <QDBusConnection>
#include <QWindow>

#include <chrono>
#include <cstdio>
#include <memory>
#include <optional>

namespace tarvin {

using namespace std::chrono_literals;

namespace {

/// How long the end of the program waits for scripts and searches under way.
constexpr auto endGrace = 2s;

int fail(const char* message)
{
    std::fprintf(stderr, "tarvin: %s\n", message);
    return 1;
}

/// The program while it runs. The members are destroyed from the last to the first: the core before its platform, and
/// the application object's view of the window before the window.
class ResidentProgram
{
public:
    explicit ResidentProgram(const QStringList& arguments)
        : m_desktop(
            arguments, [this]() -> RuntimeLog& { return m_objects.runtimeLog(); },
            [this](const QString& line) { tellUser(line); })
        , m_panels(m_desktop.panelSurroundings())
        , m_objects(m_desktop.ports(), m_panels)
        , m_commands(m_objects, ControlPaths::fromEnvironment().control,
              {.settleKeys = [this] { m_desktop.inputThread.settle(); },
                  .installedApplications = [this] { return m_desktop.applications.index().catalog.entries().size(); }})
        , m_editors(m_desktop.ports(), m_objects)
        , m_fieldPasting(m_desktop.pasteboard)
    { }

    /// Until somebody asks the program to end.
    /// @return the exit code of the process
    [[nodiscard]] int run(const desktop::InstanceRequest& firstRequest)
    {
        const posix::TerminationSignals signals([this] { m_desktop.shell.terminate(); });
        QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, &m_desktop.shell,
            [this](const QWindow* window) { m_desktop.sessionTaps.setStudioActive(window != nullptr); });
        m_desktop.tapClient.setWayOutHandler([this] {
            m_objects.keyProfile().setInterceptionEnabled(false);
            m_objects.eventTapManager().recordTriggerDirectly(
                QStringLiteral("Keyboards given back: key interception is off"));
        });
        waitForCommandAtWork();
        // Before anything can change the mappings.
        static_cast<void>(m_objects.mappingArchive());
        m_objects.appDelegate().applicationDidFinishLaunching();
        m_objects.backgroundModeManager().setOpenWindowAction([this] { makeStudio(); });
        if (!firstRequest.urls.isEmpty())
            answer(firstRequest);
        watchForTray();
        // Keys click only for who sees them move.
        QObject::connect(&m_objects.backgroundModeManager(), &BackgroundModeManager::studioWindowVisibleChanged,
            &m_desktop.shell, [this] { m_desktop.sounds.prepare(); });
        // The footer need not wait for its next turn.
        QObject::connect(&m_desktop.powerSources, &feedback::UPowerSources::changed, &m_desktop.shell,
            [this] { m_objects.batteryHelper().refresh(); });
        const int code = QApplication::exec();
        if (!m_desktop.scheduler.shutDown(endGrace))
            std::_Exit(code);
        return code;
    }

    /// What a later start of the program asks of this one.
    void answer(const desktop::InstanceRequest& request)
    {
        if (request.urls.isEmpty())
            m_desktop.shell.reopen(request.startupId);
        else
            m_desktop.shell.openUrls(request.urls, request.startupId);
    }

private:
    void watchForTray()
    {
        m_trayLookout.emplace(m_desktop.scheduler, QDBusConnection::sessionBus(), desktop::hasXTray);
        QObject::connect(
            &*m_trayLookout, &desktop::TrayLookout::found, &m_desktop.shell, [this](desktop::TrayKind kind) {
                m_menuBarItem.emplace(m_objects.menuBarExtraView());
                m_objects.runtimeLog().log(kind == desktop::TrayKind::statusNotifier
                        ? QStringLiteral("The menu bar item is shown by the panel on the session bus.")
                        : QStringLiteral("The menu bar item is shown in the X tray."));
            });
        QObject::connect(&*m_trayLookout, &desktop::TrayLookout::nothingYet, &m_desktop.shell, [this] {
            m_objects.runtimeLog().log(QStringLiteral(
                "The menu bar item has no place: neither a panel with status notifier items nor an X tray is there. "
                "Option+Command+K and a second start open the Studio all the same; the item appears when a panel "
                "does."));
        });
    }

    /// Any thread. Comes after what the action itself says in the same turn.
    void tellUser(const QString& line)
    {
        m_desktop.scheduler.post([this, line] {
            m_objects.runtimeLog().log(QStringLiteral("[Tarvin] ") + line);
            m_objects.triggerNotice().recordTriggerDirectly(line);
        });
    }

    void makeStudio()
    {
        m_studioWindow = makeStudioWindow(m_objects, m_editors.surfaces(), [this] {
            if (!desktop::openKeyboardSettings())
                m_objects.triggerNotice().recordTriggerDirectly(
                    QStringLiteral("No keyboard settings are installed on this desktop"));
        });
        AppWindow& window = m_desktop.shell.addWindow(*m_studioWindow, desktop::AppWindowKind::ordinary);
        m_objects.backgroundModeManager().setMainWindow(&window);
        window.makeKeyAndOrderFront();
    }

    std::unique_ptr<StudioWindow> m_studioWindow;
    LinuxDesktop m_desktop;
    DrawnToolPanels m_panels;
    SharedObjects m_objects;
    ProgramCommands m_commands;
    StudioEditors m_editors;
    desktop::FieldPasting m_fieldPasting;
    std::optional<desktop::TrayLookout> m_trayLookout;
    std::optional<MenuBarItem> m_menuBarItem;
};

} // namespace

int runResidentProgram(int& argumentCount, char** arguments)
{
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return fail(
            "there is no display: DISPLAY is not set. Tarvin needs a desktop session; ./run shows it without one.");
    if (!desktop::xServerAnswers())
        return fail("the display does not answer: no X server can be reached at the place that DISPLAY names.");

    const QByteArray startupId = desktop::takeStartupId();
    QStringList argumentTexts;
    for (int i = 0; i < argumentCount; ++i)
        argumentTexts.append(QString::fromLocal8Bit(arguments[i]));

    const QApplication application(argumentCount, arguments);
    QApplication::setApplicationName(desktop::applicationName.toString());
    QGuiApplication::setDesktopFileName(desktop::applicationId.toString());
    QApplication::setQuitOnLastWindowClosed(false);
    InterfaceStyle::install();

    const auto request = desktop::requestOfCommandLine(argumentTexts, startupId);
    ResidentProgram* program = nullptr;
    desktop::SingleInstance instance(desktop::SingleInstance::defaultRuntimeDirectory(), QDBusConnection::sessionBus());
    switch (instance.claim(request, [&program](const desktop::InstanceRequest& later) { program->answer(later); })) {
    case desktop::SingleInstance::Outcome::first:
        break;
    case desktop::SingleInstance::Outcome::forwarded:
        return 0;
    case desktop::SingleInstance::Outcome::unreachable:
        return fail("Tarvin runs already, but does not answer. End it, then start again.");
    case desktop::SingleInstance::Outcome::unguarded:
        return fail(
            "neither a session bus nor a private run-time folder can be had, so nobody knows whether Tarvin runs "
            "already. Set XDG_RUNTIME_DIR to a folder of your own.");
    }

    ResidentProgram resident(argumentTexts);
    program = &resident;
    return resident.run(request.value_or(desktop::InstanceRequest{}));
}

} // namespace tarvin
