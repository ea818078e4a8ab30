#include "app/ResidentProgram.h"

#include "app/CommandAtWork.h"
#include "app/CommandLine.h"
#include "app/ControlPaths.h"
#include "app/DrawnToolPanels.h"
#include "app/MacDesktop.h"
#include "app/ProgramCommands.h"
#include "app/StudioEditors.h"
#include "app/StudioMaking.h"
#include "app/core/SharedObjects.h"
#include "menubar/MenuBarItem.h"
#include "platform/posix/InstanceLock.h"
#include "platform/posix/TerminationSignals.h"
#include "profiles/KeyProfile.h"
#include "shell/AppDelegate.h"
#include "shell/BackgroundModeManager.h"
#include "studio/StudioWindow.h"
#include "ui/InterfaceStyle.h"

#include <QApplication>

#include <chrono>
#include <cstdlib>
#include <memory>
#include <optional>

namespace tarvin {

using namespace std::chrono_literals;

namespace {

/// How long the end of the program waits for scripts and searches under way.
constexpr auto endGrace = 2s;

const QString keyboardSettings = QStringLiteral("x-apple.systempreferences:com.apple.Keyboard-Settings.extension");
const QString studioAddress = QStringLiteral("tarvin://open-studio");

/// The program while it runs. The members are destroyed from the last to the first: the core before its platform, and
/// the application object's view of the window before the window.
class ResidentProgram
{
public:
    ResidentProgram()
        : m_panels(m_desktop.panelSurroundings())
        , m_objects(m_desktop.ports(), m_panels)
        // The taps ask about each event, so what is customised holds at once.
        , m_commands(m_objects, ControlPaths::fromEnvironment().control,
              {.settleKeys = [] {},
                  .installedApplications = [this] { return m_desktop.applicationFolders.installedApplications(); }})
        , m_editors(m_desktop.ports(), m_objects)
    { }

    /// Until somebody asks the program to end.
    /// @param urls to open once it runs
    /// @return the exit code of the process
    [[nodiscard]] int run(const QStringList& urls)
    {
        const posix::TerminationSignals signals([this] { m_desktop.shell.terminate(); });
        waitForCommandAtWork();
        // Before anything can change the mappings.
        static_cast<void>(m_objects.mappingArchive());
        // Not before: only then does the system tell whether it opened the program at login.
        m_desktop.shell.whenLaunched([this, urls] { launched(urls); });
        const int code = QApplication::exec();
        if (!m_desktop.scheduler.shutDown(endGrace))
            std::_Exit(code);
        return code;
    }

private:
    void launched(const QStringList& urls)
    {
        m_objects.appDelegate().applicationDidFinishLaunching();
        m_objects.backgroundModeManager().setOpenWindowAction([this] { makeStudio(); });
        m_menuBarItem.emplace(m_objects.menuBarExtraView());
        if (!urls.isEmpty())
            m_desktop.shell.openUrls(urls);
    }

    void makeStudio()
    {
        m_studioWindow = makeStudioWindow(
            m_objects, m_editors.surfaces(), [this] { m_desktop.workspace.openUrl(keyboardSettings); });
        AppWindow& window = m_desktop.shell.addWindow(*m_studioWindow, macos::AppWindowKind::ordinary);
        m_objects.backgroundModeManager().setMainWindow(&window);
        window.makeKeyAndOrderFront();
    }

    std::unique_ptr<StudioWindow> m_studioWindow;
    MacDesktop m_desktop;
    DrawnToolPanels m_panels;
    SharedObjects m_objects;
    ProgramCommands m_commands;
    StudioEditors m_editors;
    std::optional<MenuBarItem> m_menuBarItem;
};

/// The system keeps a bundle to one running copy, but not who starts the program file itself. The copy that runs gets
/// the request by the program's own scheme.
void handOver(const QStringList& arguments, const QStringList& urls)
{
    macos::MacWorkspace workspace;
    for (const QString& url : urls)
        workspace.openUrl(url);
    if (urls.isEmpty() && !asksForQuietStart(arguments))
        workspace.openUrl(studioAddress);
}

} // namespace

int runResidentProgram(int& argumentCount, char** arguments)
{
    QStringList words;
    for (int i = 1; i < argumentCount; ++i)
        words.append(QString::fromLocal8Bit(arguments[i]));
    const Command command = parseCommandLine(words);
    const auto* const run = std::get_if<RunProgram>(&command);
    const QStringList urls = run ? run->urls : QStringList();

    const posix::InstanceLock instance(
        macos::MacUserEnvironment().temporaryDirectory() + QStringLiteral("/tarvin.lock"));
    if (instance.state() == posix::InstanceLock::State::heldByAnother) {
        handOver(words, urls);
        return 0;
    }

    const QApplication application(argumentCount, arguments);
    QApplication::setApplicationName(QStringLiteral("Tarvin"));
    QApplication::setQuitOnLastWindowClosed(false);
    InterfaceStyle::install();
    ResidentProgram resident;
    return resident.run(urls);
}

} // namespace tarvin
