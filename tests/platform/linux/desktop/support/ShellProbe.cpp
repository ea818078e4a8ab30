// The application shell alone: a program with a plain window in the place of the Studio, driven by lines on the
// standard input, that tells on the standard output what reaches its delegate. It opens, hides and comes back by the
// rules of the program.

#include "platform/linux/desktop/EwmhWorkspace.h"
#include "platform/linux/desktop/QtAppShell.h"
#include "platform/linux/desktop/QtScheduler.h"
#include "platform/linux/desktop/SingleInstance.h"
#include "platform/posix/StdoutConsole.h"
#include "platform/posix/TerminationSignals.h"

#include <QApplication>
#include <QFile>
#include <QSocketNotifier>
#include <QWidget>

#include <unistd.h>

namespace {

using namespace tarvin;
using namespace tarvin::desktop;

class Probe : public AppShellDelegate
{
public:
    Probe(QtAppShell& shell, Console& console, Workspace& workspace)
        : m_shell(shell)
        , m_console(console)
        , m_workspace(workspace)
    {
        shell.setDelegate(this);
        shell.observeDidBecomeActive([this] { say("observer: active"); });
        QObject::connect(&shell, &QtAppShell::activeChanged, &shell, [this](bool isActive) {
            if (!isActive)
                say("inactive");
        });
    }

    void applicationDidBecomeActive() override { say("active"); }
    void applicationShouldHandleReopen(bool hasVisibleWindows) override
    {
        say(hasVisibleWindows ? "reopen with windows" : "reopen without windows");
        open();
    }
    void applicationOpenUrls(const QStringList& urls) override
    {
        m_console.printLine(QStringLiteral("urls ") + urls.join(u' '));
        open();
    }
    void windowShouldClose(AppWindow& window) override
    {
        say("should close");
        window.orderOut();
    }
    void windowDidBecomeKey(AppWindow& window) override
    {
        m_console.printLine(QStringLiteral("key ") + window.title());
    }
    void applicationWillTerminate() override { say("will terminate"); }

    void open()
    {
        if (!m_studio) {
            m_studio = std::make_unique<QWidget>();
            m_studio->setWindowTitle(QStringLiteral("Tarvin — MacBook Air Keyboard Studio"));
            m_studio->resize(900, 600);
            m_shell.addWindow(*m_studio, AppWindowKind::ordinary);
        }
        m_shell.setActivationPolicy(ActivationPolicy::regular);
        m_shell.activateAllWindows();
        m_shell.activateIgnoringOtherApps();
        for (AppWindow* window : m_shell.windows()) {
            window->setVisible();
            if (window->isMiniaturized())
                window->deminiaturize();
            window->makeKeyAndOrderFront();
            window->orderFrontRegardless();
        }
    }

    void obey(const QString& line)
    {
        if (line == u"open") {
            open();
        } else if (line == u"hide") {
            for (AppWindow* window : m_shell.windows())
                window->orderOut();
        } else if (line == u"accessory") {
            m_shell.setActivationPolicy(ActivationPolicy::accessory);
        } else if (line == u"regular") {
            m_shell.setActivationPolicy(ActivationPolicy::regular);
        } else if (line == u"show") {
            m_shell.windows().front()->setVisible();
        } else if (line == u"quick") {
            m_shell.windows().front()->orderOut();
            m_shell.windows().front()->setVisible();
        } else if (line == u"state") {
            const AppWindow& window = *m_shell.windows().front();
            m_console.printLine(QStringLiteral("state %1 %2 %3")
                                    .arg(window.isVisible() ? u"visible" : u"hidden",
                                        window.isMiniaturized() ? u"miniaturized" : u"restored",
                                        m_shell.isActive() ? u"active" : u"inactive"));
        } else if (line == u"quit") {
            QCoreApplication::quit();
        } else if (line == u"terminate") {
            m_shell.terminate();
            m_shell.terminate();
        } else if (line == u"memory") {
            QFile file(QStringLiteral("/proc/self/smaps_rollup"));
            if (file.open(QIODevice::ReadOnly)) {
                for (QByteArray row = file.readLine(); !row.isEmpty(); row = file.readLine()) {
                    if (row.startsWith("Pss:"))
                        m_console.printLine(QStringLiteral("memory ") + QString::fromLatin1(row.trimmed()));
                }
            }
        } else if (line.startsWith(u"url ")) {
            m_workspace.openUrl(line.sliced(4));
        }
    }

private:
    void say(const char* text) { m_console.printLine(QString::fromLatin1(text)); }

    QtAppShell& m_shell;
    Console& m_console;
    Workspace& m_workspace;
    std::unique_ptr<QWidget> m_studio;
};

} // namespace

int main(int count, char** arguments)
{
    const QByteArray startupId = takeStartupId();
    QApplication application(count, arguments);
    posix::StdoutConsole console;
    QtScheduler scheduler;
    XConnection connection(scheduler, console);
    QtAppShell shell(scheduler, connection);
    const auto request = requestOfCommandLine(QCoreApplication::arguments(), startupId);
    SingleInstance instance(SingleInstance::defaultRuntimeDirectory(), QDBusConnection::sessionBus());
    const SingleInstance::Outcome outcome = instance.claim(request, [&](const InstanceRequest& later) {
        if (later.urls.isEmpty())
            shell.reopen(later.startupId);
        else
            shell.openUrls(later.urls, later.startupId);
    });
    if (outcome != SingleInstance::Outcome::first) {
        console.printLine(QStringLiteral("outcome %1").arg(static_cast<int>(outcome)));
        return outcome == SingleInstance::Outcome::forwarded ? 0 : 1;
    }
    const posix::TerminationSignals terminationSignals([&] { shell.terminate(); });
    InstalledApplications applications(scheduler, ApplicationLocations::fromEnvironment());
    EwmhWorkspace workspace(
        connection, applications, scheduler, [&](const QString& url) { shell.openUrls({url}, {}); });
    Probe probe(shell, console, workspace);

    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QFile inputFile;
    (void)inputFile.open(STDIN_FILENO, QIODevice::ReadOnly | QIODevice::Unbuffered);
    QObject::connect(&input, &QSocketNotifier::activated, &input, [&] {
        const QByteArray line = inputFile.readLine();
        if (line.isEmpty())
            input.setEnabled(false);
        else
            probe.obey(QString::fromUtf8(line.trimmed()));
    });
    if (request && !request->urls.isEmpty())
        shell.openUrls(request->urls, request->startupId);
    console.printLine(QStringLiteral("ready"));
    const int code = QApplication::exec();
    console.printLine(QStringLiteral("loop ended"));
    return scheduler.shutDown(std::chrono::seconds(3)) ? code : 2;
}
