#include "platform/linux/applications/LinuxApplicationControl.h"

#include "platform/linux/applications/ApplicationLauncher.h"
#include "platform/linux/desktop/EwmhWorkspace.h"
#include "platform/linux/desktop/InstalledApplications.h"
#include "platform/linux/desktop/QtScheduler.h"
#include "platform/linux/desktop/XConnection.h"
#include "platform/posix/StdoutConsole.h"

#include "platform/linux/desktop/support/EnvironmentChange.h"
#include "platform/linux/desktop/support/PrivateDesktop.h"
#include "support/QtPrinters.h"

#include <QCoreApplication>

#include <mutex>

namespace tarvin::applications {

using namespace std::chrono_literals;
using endtoend::EnvironmentChange;
using endtoend::eventually;
using endtoend::PrivateDesktop;

namespace {

/// Applications whose entries write a line to a file when they start.
class ApplicationsOnX : public testing::Test
{
protected:
    void SetUp() override
    {
        if (const auto lack = PrivateDesktop::lack())
            GTEST_SKIP() << *lack;
        desktop = std::make_unique<PrivateDesktop>(std::vector{PrivateDesktop::Part::windowManager});
        const QByteArray recorder = "sh -c \"echo $0 $1 $DESKTOP_STARTUP_ID >> " + path("started") + "\"";
        desktop->putFile(
            "apps/notes.desktop", "[Desktop Entry]\nType=Application\nName=Notes\nExec=" + recorder + " notes %U\n");
        desktop->putFile("apps/calc.desktop",
            "[Desktop Entry]\nType=Application\nName=Calc\nStartupNotify=true\nCategories=Utility;Calculator;\nExec="
                + recorder + " calc --new\n");
        desktop->putFile(
            "apps/broken.desktop", "[Desktop Entry]\nType=Application\nName=Broken\nExec=/nowhere/at-all\n");
        desktop->putFile("apps/client.desktop",
            "[Desktop Entry]\nType=Application\nName=Client\nStartupWMClass=Client\nExec=" + recorder + " client\n");
        desktop->putFile("bin/xdg-open", "#!/bin/sh\necho open $1 >> " + path("started") + "\n",
            QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        connection = std::make_unique<desktop::XConnection>(scheduler, console, desktop->display());
        installed = std::make_unique<desktop::InstalledApplications>(scheduler,
            desktop::ApplicationLocations{.applicationDirectories = {desktop->path("apps")},
                .mimeAppsPaths = {},
                .locales = {},
                .browserVariable = {}});
        ASSERT_TRUE(eventually([&] { return installed->index().catalog.entries().size() == 4; }));
        workspace = std::make_unique<desktop::EwmhWorkspace>(*connection, *installed, scheduler, [](const QString&) {});
        const auto tell = [this](const QString& text) {
            const std::lock_guard lock(mutex);
            told += text;
        };
        launcher = std::make_unique<ApplicationLauncher>(
            scheduler, *connection, [] { return QDBusConnection(QStringLiteral("none")); }, tell);
        control = std::make_unique<LinuxApplicationControl>(*installed, *workspace, *launcher, scheduler, tell);
    }

    void TearDown() override
    {
        EXPECT_TRUE(scheduler.shutDown(endtoend::patience));
        // What has been posted runs while those it is meant for are still there.
        QCoreApplication::processEvents();
    }

    [[nodiscard]] QByteArray path(const char* name) const { return desktop->path(name).toUtf8(); }

    [[nodiscard]] QString started() const
    {
        QFile file(desktop->path("started"));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : QString();
    }

    void expectStarted(const char* line) const
    {
        EXPECT_TRUE(eventually([&] { return started().startsWith(QString::fromLatin1(line)); }, 5s));
        EXPECT_EQ(started().left(static_cast<qsizetype>(strlen(line))), QString::fromLatin1(line));
    }

    void expectTold(const char* text)
    {
        const auto current = [this] {
            const std::lock_guard lock(mutex);
            return told;
        };
        EXPECT_TRUE(eventually([&] { return !current().isEmpty(); }, 5s));
        EXPECT_EQ(current(), QStringList(QString::fromUtf8(text)));
    }

    std::unique_ptr<PrivateDesktop> desktop;
    posix::StdoutConsole console;
    desktop::QtScheduler scheduler;
    std::unique_ptr<desktop::XConnection> connection;
    std::unique_ptr<desktop::InstalledApplications> installed;
    std::unique_ptr<desktop::EwmhWorkspace> workspace;
    std::unique_ptr<ApplicationLauncher> launcher;
    std::unique_ptr<LinuxApplicationControl> control;
    std::mutex mutex;
    QStringList told; ///< guarded by the mutex
};

} // namespace

TEST_F(ApplicationsOnX, anApplicationIsFoundByItsIdentifierAndByARole)
{
    EXPECT_EQ(control->pathOfApplication(QStringLiteral("notes")), desktop->path("apps/notes.desktop"));
    EXPECT_EQ(control->pathOfApplication(QStringLiteral("com.apple.calculator")), desktop->path("apps/calc.desktop"));
    EXPECT_EQ(control->pathOfApplication(QStringLiteral("com.apple.Safari")), std::nullopt);
}

TEST_F(ApplicationsOnX, anApplicationThatDoesNotRunIsStarted)
{
    control->openApplication(desktop->path("apps/notes.desktop"));
    expectStarted("notes");
}

TEST_F(ApplicationsOnX, anApplicationThatAnswersAStartupIdGetsOneWithTheTimeOfTheWish)
{
    control->openPath(desktop->path("apps/calc.desktop"));
    expectStarted("calc --new tarvin-");
    EXPECT_TRUE(started().contains(u"_TIME"));
}

TEST_F(ApplicationsOnX, anApplicationThatRunsComesToTheFrontAndIsNotStartedAgain)
{
    const auto client = desktop->showWindow({"client", "Client", "client"});
    const auto other = desktop->showWindow({"other", "Other", "other"});
    ASSERT_TRUE(eventually([&] { return desktop->activeWindow() == desktop->windowTitled("other"); }));
    control->openApplication(desktop->path("apps/client.desktop"));
    EXPECT_TRUE(eventually([&] { return desktop->activeWindow() == desktop->windowTitled("client"); }));
    EXPECT_EQ(started(), QString());
}

TEST_F(ApplicationsOnX, anApplicationThatWasJustEndedIsStartedAfresh)
{
    const auto client = desktop->showWindow({"client", "Client", "client"});
    ASSERT_TRUE(control->forceTerminate(static_cast<ProcessIdentifier>(client->processId())));
    ASSERT_TRUE(eventually([&] { return control->isTerminated(static_cast<ProcessIdentifier>(client->processId())); }));
    control->openApplication(desktop->path("apps/client.desktop"));
    expectStarted("client");
}

TEST_F(ApplicationsOnX, anEntryWhoseProgramIsMissingIsTold)
{
    control->openApplication(desktop->path("apps/broken.desktop"));
    expectTold("Cannot start Broken");
}

TEST_F(ApplicationsOnX, anApplicationOfAnotherSystemIsToldToBeMissing)
{
    control->openPath(QStringLiteral("/System/Applications/Utilities/Terminal.app"));
    expectTold("Not installed: Terminal");
}

TEST_F(ApplicationsOnX, theFolderOfApplicationsShowsTheInstalledOnes)
{
    const EnvironmentChange search("PATH", path("bin") + ":/usr/bin:/bin");
    control->openPath(QStringLiteral("/Applications"));
    expectStarted("open /usr/share/applications");
}

TEST_F(ApplicationsOnX, aFolderIsOpenedByWhateverOpensFolders)
{
    const EnvironmentChange search("PATH", path("bin") + ":/usr/bin:/bin");
    control->openPath(desktop->path("apps"));
    expectStarted(("open " + path("apps")).constData());
}

TEST_F(ApplicationsOnX, anEmptyPathAndTheOverviewOpenNothing)
{
    const EnvironmentChange search("PATH", path("bin") + ":/usr/bin:/bin");
    control->openPath(QString());
    control->openPath(QStringLiteral("/System/Applications/Mission Control.app"));
    control->openApplication(QStringLiteral("/System/Applications/Mission Control.app"));
    endtoend::letPass(300ms);
    EXPECT_EQ(started(), QString());
    const std::lock_guard lock(mutex);
    EXPECT_EQ(told, QStringList());
}

TEST_F(ApplicationsOnX, anApplicationIsEndedByForce)
{
    const auto client = desktop->showWindow({"client", "Client", "client"});
    const auto process = static_cast<ProcessIdentifier>(client->processId());
    EXPECT_FALSE(control->isTerminated(process));
    EXPECT_TRUE(control->executableOf(process)->endsWith(u"tarvin_window_client"));
    EXPECT_TRUE(control->forceTerminate(process));
    EXPECT_TRUE(eventually([&] { return control->isTerminated(process); }));
}

} // namespace tarvin::applications
