#include "app/LinuxDesktop.h"

#include "interception/RuntimeLog.h"
#include "platform/linux/panels/Compositor.h"
#include "platform/linux/panels/QtFloatingPanel.h"
#include "platform/posix/XdgDirectories.h"

#include <QDBusConnection>
#include <QFileInfo>
#include <QGuiApplication>

#include <utility>

namespace tarvin {

namespace {

QFileInfo socketFile()
{
    return QFileInfo(QString::fromStdString(evdev::TapClient::defaultSocketPath()));
}

} // namespace

LinuxDesktop::LinuxDesktop(
    const QStringList& arguments, std::function<RuntimeLog&()> runtimeLog, std::function<void(const QString&)> tellUser)
    : log([this, runtimeLog = std::move(runtimeLog)](
              const QString& line) { scheduler.post([runtimeLog, line] { runtimeLog().log(line); }); })
    , files(posix::applicationSupportDirectory())
    , preferences(files, posix::settingsFile(), log, &scheduler)
    , processInfo(arguments)
    , scripts(desktop::LinuxScripts::accessPageCandidates(processInfo.executable()),
          {.toggleMicrophone = [this] { return actions.toggleMicrophone(); },
              .activateFileManager = [this] { actions.activateFileManager(); }})
    , loginItem(processInfo.executable(), desktop::AutostartLoginItem::defaultDirectories())
    , inputThread(scheduler, {}, log)
    , sessionTaps(inputThread)
    , tapClient(scheduler, evdev::TapClient::defaultSocketPath(), log)
    , tapSocketWatch([](const QString& name) { return name == socketFile().fileName(); },
          [this] {
              watchTapSocket();
              tapClient.lookAgain();
          },
          desktop::DirectoryWatch::NewFile::atOnce)
    , inputTaps(sessionTaps, tapClient)
    , keyRecording(inputThread, {}, [this](bool isRecording) { inputTaps.setRecording(isRecording); })
    , connection(scheduler, console)
    , shell(scheduler, connection)
    , applications(scheduler, desktop::ApplicationLocations::fromEnvironment())
    , applicationFolders(desktop::ApplicationLocations::fromEnvironment(), desktop::IconPlaces::ofSession())
    , workspace(
          connection, applications, scheduler, [this](const QString& url) { shell.openUrls({url}, {}); },
          qGuiApp->devicePixelRatio())
    , poster(inputThread,
          {.isTerminalInFront = [this] { return workspace.isTerminalInFront(); },
              .perform =
                  [this](x11::DesktopFunction function) {
                      actions.functions.perform(function);
                      return true;
                  },
              .log = log},
          [] { return qGuiApp->devicePixelRatio(); })
    , pointer(inputThread, [] { return qGuiApp->devicePixelRatio(); })
    , permission([this] { return sessionTaps.isAvailable() || tapClient.isPresent(); })
    , sounds(log)
    , powerSources(QDBusConnection::systemBus())
    , pasteboard(scheduler)
    , actions({.scheduler = scheduler,
                  .connection = connection,
                  .applications = applications,
                  .workspace = workspace,
                  .pixelsPerPoint = qGuiApp->devicePixelRatio()},
          std::move(tellUser))
{
    inputThread.setKeyPosting(tapClient.keyPosting());
    watchTapSocket();
}

/// The daemon may be installed or started while we run; then its folder may be new as well.
void LinuxDesktop::watchTapSocket()
{
    tapSocketWatch.setDirectories({socketFile().path()});
}

Platform LinuxDesktop::ports()
{
    return {
        .scheduler = scheduler,
        .inputTaps = inputTaps,
        .eventPoster = poster,
        .pointer = pointer,
        .permission = permission,
        .workspace = workspace,
        .preferences = preferences,
        .files = files,
        .console = console,
        .processInfo = processInfo,
        .scripts = scripts,
        .loginItem = loginItem,
        .functionKeySetting = functionKeySetting,
        .appShell = shell,
        .sounds = sounds,
        .haptics = haptics,
        .powerSources = powerSources,
        .uuids = uuids,
        .systemKeys = actions.systemKeys,
        .displayBrightness = actions.backlight,
        .systemCommands = actions.systemCommands,
        .loginWindow = actions.sessionEnd,
        .appleMenu = actions.appleMenu,
        .windowControl = actions.windowControl,
        .screens = actions.screens,
        .applicationControl = actions.applicationControl,
        .pasteboard = pasteboard,
        .userEnvironment = userEnvironment,
        .keyRecording = keyRecording,
        .applicationFolders = applicationFolders,
        .applicationChooser = applicationChooser,
    };
}

DrawnToolPanels::Surroundings LinuxDesktop::panelSurroundings()
{
    return {
        .makePanel =
            [this](PanelWindow& view, const PanelTraits& traits, std::function<void()> onCloseRequested) {
                auto panel = std::make_unique<panels::QtFloatingPanel>(view, traits, shell, connection);
                QObject::connect(
                    panel.get(), &panels::QtFloatingPanel::closeRequested, panel.get(), std::move(onCloseRequested));
                return panel;
            },
        .hasCompositor = [this] { return panels::compositorRuns(connection); },
        .views = views,
    };
}

} // namespace tarvin
