#include "platform/linux/desktop/EwmhWorkspace.h"
#include "platform/linux/desktop/QtScheduler.h"
#include "platform/posix/StdoutConsole.h"

#include "platform/linux/desktop/support/EnvironmentChange.h"
#include "platform/linux/desktop/support/PrivateDesktop.h"
#include "support/QtPrinters.h"

#include <QFile>

#include <algorithm>

#include <unistd.h>

namespace tarvin::desktop {

using namespace std::chrono_literals;
using endtoend::ChildProcess;
using endtoend::EnvironmentChange;
using endtoend::eventually;
using endtoend::letPass;
using endtoend::PrivateDesktop;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

QByteArray entry(const char* name, const char* rest = "")
{
    return QByteArray("[Desktop Entry]\nType=Application\nName=") + name + "\n" + rest;
}

/// A workspace of its own on a desktop of its own.
class WorkspaceOnX : public testing::Test
{
protected:
    explicit WorkspaceOnX(std::vector<PrivateDesktop::Part> desktopParts = {PrivateDesktop::Part::windowManager})
        : parts(std::move(desktopParts))
    { }

    void SetUp() override
    {
        if (const auto lack = PrivateDesktop::lack())
            GTEST_SKIP() << *lack;
        desktop = std::make_unique<PrivateDesktop>(parts);
        desktop->putFile("apps/alpha.desktop", entry("Alpha", "StartupWMClass=AppAlpha\n"));
        desktop->putFile("apps/org.example.Beta.desktop", entry("Beta Office"));
        desktop->putFile(
            "apps/term.desktop", entry("Term", "StartupWMClass=XTerm\nCategories=System;TerminalEmulator;\n"));
        connection = std::make_unique<XConnection>(scheduler, console, desktop->display());
        applications = std::make_unique<InstalledApplications>(scheduler,
            ApplicationLocations{.applicationDirectories = {desktop->path("apps")},
                .mimeAppsPaths = {},
                .locales = {},
                .browserVariable = {}});
        ASSERT_TRUE(eventually([&] { return !applications->index().catalog.entries().empty(); }));
        workspace = std::make_unique<EwmhWorkspace>(
            *connection, *applications, scheduler, [this](const QString& url) { ownUrls += url; });
    }

    [[nodiscard]] std::unique_ptr<ChildProcess> show(const char* instanceName, const char* className,
        const char* title = "window", const char* kind = "", const char* machine = "", const char* naming = "") const
    {
        return desktop->showWindow({instanceName, className, title, kind, machine, naming});
    }

    /// Its own identifier, or a word for nothing.
    [[nodiscard]] QString frontIdentifier() const
    {
        const auto front = workspace->frontmostApplication();
        return front ? front->bundleIdentifier().value_or(QStringLiteral("(none)")) : QStringLiteral("(no front)");
    }

    [[nodiscard]] bool frontBecomes(const char* identifier) const
    {
        const bool became = eventually([&] { return frontIdentifier() == QString::fromLatin1(identifier); });
        if (!became)
            ADD_FAILURE() << "front is " << frontIdentifier().toStdString();
        return became;
    }

    const std::vector<PrivateDesktop::Part> parts;
    std::unique_ptr<PrivateDesktop> desktop;
    posix::StdoutConsole console;
    QtScheduler scheduler;
    std::unique_ptr<XConnection> connection;
    std::unique_ptr<InstalledApplications> applications;
    std::unique_ptr<EwmhWorkspace> workspace;
    QStringList ownUrls;
};

class WorkspaceWithoutManager : public WorkspaceOnX
{
protected:
    WorkspaceWithoutManager()
        : WorkspaceOnX({})
    { }
};

} // namespace

TEST_F(WorkspaceOnX, theFrontApplicationFollowsTheFocusBetweenTwoClients)
{
    QStringList activations;
    const auto observer = workspace->observeActivation([&](const std::optional<RunningApplication>& application) {
        activations += application ? application->bundleIdentifier().value_or(QStringLiteral("(none)"))
                                   : QStringLiteral("(no front)");
    });
    EXPECT_EQ(workspace->frontmostApplication(), std::nullopt);
    const auto alpha = show("i", "AppAlpha");
    ASSERT_TRUE(frontBecomes("alpha"));
    const auto beta = show("beta", "Beta");
    ASSERT_TRUE(frontBecomes("org.example.Beta"));
    const auto front = workspace->frontmostApplication();
    EXPECT_EQ(front->processIdentifier, beta->processId());
    EXPECT_EQ(front->localizedName, QStringLiteral("Beta Office"));
    EXPECT_EQ(front->activationPolicy, ActivationPolicy::regular);

    workspace->activate(static_cast<ProcessIdentifier>(alpha->processId()));
    ASSERT_TRUE(frontBecomes("alpha"));
    letPass(2 * focusSettleTime);
    EXPECT_THAT(activations, ElementsAre(u"alpha", u"org.example.Beta", u"alpha"))
        << "the moments without focus in between are not seen";
}

TEST_F(WorkspaceOnX, whenTheLastWindowGoesNothingIsInFront)
{
    auto alpha = show("i", "AppAlpha");
    ASSERT_TRUE(frontBecomes("alpha"));
    alpha.reset();
    EXPECT_TRUE(frontBecomes("(no front)"));
}

TEST_F(WorkspaceOnX, aWindowThatGetsTheNumberOfAClosedOneIsNotTakenForIt)
{
    auto alpha = show("i", "AppAlpha");
    ASSERT_TRUE(frontBecomes("alpha"));
    // The server gives the numbers of a client that left to the next one that comes.
    const QString number = desktop->property(0, "_NET_ACTIVE_WINDOW");
    alpha.reset();
    const auto beta = show("beta", "Beta");
    EXPECT_TRUE(frontBecomes("org.example.Beta"));
    EXPECT_EQ(desktop->property(0, "_NET_ACTIVE_WINDOW"), number);
}

TEST_F(WorkspaceOnX, anApplicationWithoutEntryHasNoIdentifier)
{
    const auto unknown = show("nobody", "Nobody");
    ASSERT_TRUE(frontBecomes("(none)"));
    EXPECT_EQ(workspace->frontmostApplication()->localizedName, QStringLiteral("Nobody"));
}

TEST_F(WorkspaceOnX, anotherWindowOfTheSameApplicationIsNoActivation)
{
    int activations = 0;
    const auto observer =
        workspace->observeActivation([&](const std::optional<RunningApplication>&) { ++activations; });
    const auto alpha = show("i", "AppAlpha");
    ASSERT_TRUE(frontBecomes("alpha"));
    alpha->writeLine("class other AppAlpha");
    letPass(100ms);
    EXPECT_EQ(activations, 1);
}

TEST_F(WorkspaceOnX, aClassThatChangesAfterTheWindowWasShownIsFollowed)
{
    const auto client = show("i", "Starting");
    ASSERT_TRUE(frontBecomes("(none)"));
    client->writeLine("class i AppAlpha");
    EXPECT_TRUE(frontBecomes("alpha"));
}

TEST_F(WorkspaceOnX, anObserverThatIsGoneHearsNothing)
{
    int activations = 0;
    auto observer = workspace->observeActivation([&](const std::optional<RunningApplication>&) { ++activations; });
    observer.reset();
    const auto alpha = show("i", "AppAlpha");
    ASSERT_TRUE(frontBecomes("alpha"));
    EXPECT_EQ(activations, 0);
}

TEST_F(WorkspaceOnX, aTerminalCarriesTheTerminalsWellKnownIdentifierAfterItsOwn)
{
    EXPECT_FALSE(workspace->isTerminalInFront());
    const auto terminal = show("xterm", "XTerm");
    ASSERT_TRUE(frontBecomes("term"));
    EXPECT_THAT(workspace->frontmostApplication()->bundleIdentifiers, ElementsAre(u"term", u"com.apple.Terminal"));
    EXPECT_TRUE(workspace->isTerminalInFront());
    const auto alpha = show("i", "AppAlpha");
    ASSERT_TRUE(frontBecomes("alpha"));
    EXPECT_FALSE(workspace->isTerminalInFront());
}

TEST_F(WorkspaceOnX, anApplicationInstalledWhileItsWindowIsInFrontGetsItsIdentifier)
{
    const auto gamma = show("gamma", "Gamma");
    ASSERT_TRUE(frontBecomes("(none)"));
    desktop->putFile("apps/gamma.desktop", entry("Gamma"));
    EXPECT_TRUE(frontBecomes("gamma"));
}

TEST_F(WorkspaceOnX, runningApplicationsAreTheProcessesWithWindows)
{
    const auto alpha = show("i", "AppAlpha");
    const auto dock = show("panel", "Panel", "panel", "DOCK");
    const auto hidden = show("beta", "Beta");
    hidden->writeLine("minimize");
    ASSERT_TRUE(eventually([&] {
        const auto application = workspace->applicationWithProcess(static_cast<ProcessIdentifier>(hidden->processId()));
        return application && application->isHidden;
    }));
    const auto running = workspace->runningApplications();
    ASSERT_EQ(running.size(), 3U);
    EXPECT_EQ(running[0].processIdentifier, alpha->processId());
    EXPECT_EQ(running[0].activationPolicy, ActivationPolicy::regular);
    EXPECT_FALSE(running[0].isHidden);
    EXPECT_EQ(running[1].processIdentifier, dock->processId());
    EXPECT_EQ(running[1].activationPolicy, ActivationPolicy::accessory);
    EXPECT_EQ(running[2].bundleIdentifier(), QStringLiteral("org.example.Beta"));
}

TEST_F(WorkspaceOnX, aProcessWithoutWindowsIsFoundToo)
{
    const auto self = workspace->applicationWithProcess(getpid());
    ASSERT_TRUE(self);
    EXPECT_EQ(self->bundleIdentifier(), QStringLiteral("com.velmor.Tarvin"));
    EXPECT_EQ(self->activationPolicy, ActivationPolicy::prohibited);
    EXPECT_FALSE(workspace->applicationWithProcess(0x3FFFFFFF));
}

TEST_F(WorkspaceOnX, aProcessOfAnotherMachineIsNoneOfOurs)
{
    const auto remote = show("i", "AppAlpha", "remote", "", "far.away");
    ASSERT_TRUE(frontBecomes("alpha"));
    EXPECT_EQ(workspace->frontmostApplication()->processIdentifier, 0);
}

TEST_F(WorkspaceOnX, theServerKnowsTheProcessOfAWindowThatDoesNotNameIt)
{
    const auto nameless = show("i", "AppAlpha", "window", "", "", "nameless");
    ASSERT_TRUE(frontBecomes("alpha"));
    EXPECT_EQ(workspace->frontmostApplication()->processIdentifier, nameless->processId());
}

TEST_F(WorkspaceOnX, windowsAreListedFrontToBackWithTheirLayers)
{
    const auto dock = show("panel", "Panel", "panel", "DOCK");
    const auto back = show("i", "AppAlpha");
    const auto front = show("beta", "Beta");
    const auto minimized = show("x", "Gone");
    const auto desktopPicture = show("d", "Desktop", "desktop", "DESKTOP");
    minimized->writeLine("minimize");
    ASSERT_TRUE(eventually([&] { return workspace->onScreenWindows().size() == 3; }));
    const auto windows = workspace->onScreenWindows();
    EXPECT_EQ(windows[0].owner, dock->processId());
    EXPECT_EQ(windows[0].layer, 20);
    EXPECT_EQ(windows[1].owner, front->processId());
    EXPECT_EQ(windows[1].layer, 0);
    EXPECT_EQ(windows[1].size, (Size{400, 300}));
    EXPECT_EQ(windows[2].owner, back->processId());
}

TEST_F(WorkspaceOnX, sizesAreInLogicalPoints)
{
    const EwmhWorkspace scaled(
        *connection, *applications, scheduler, [](const QString&) {}, 2);
    const auto alpha = show("i", "AppAlpha");
    ASSERT_TRUE(eventually([&] { return scaled.onScreenWindows().size() == 1; }));
    EXPECT_EQ(scaled.onScreenWindows().front().size, (Size{200, 150}));
}

TEST_F(WorkspaceOnX, activatingBringsAMinimisedApplicationBack)
{
    const auto alpha = show("i", "AppAlpha");
    ASSERT_TRUE(frontBecomes("alpha"));
    alpha->writeLine("minimize");
    ASSERT_TRUE(frontBecomes("(no front)"));
    workspace->activate(static_cast<ProcessIdentifier>(alpha->processId()));
    EXPECT_TRUE(frontBecomes("alpha"));
    workspace->activate(0x3FFFFFFF);
    letPass(50ms);
    EXPECT_EQ(frontIdentifier(), QStringLiteral("alpha")) << "a process that has gone is ignored";
}

TEST_F(WorkspaceOnX, aManagerThatCrashesLeavesNobodyInFrontAndOneThatComesBackTells)
{
    const auto alpha = show("i", "AppAlpha");
    ASSERT_TRUE(frontBecomes("alpha"));
    desktop->crashWindowManager();
    EXPECT_TRUE(frontBecomes("(no front)"));
    desktop->startWindowManager();
    workspace->activate(static_cast<ProcessIdentifier>(alpha->processId()));
    EXPECT_TRUE(frontBecomes("alpha"));
}

TEST_F(WorkspaceOnX, aBrokenConnectionIsMadeAgain)
{
    const auto alpha = show("i", "AppAlpha");
    ASSERT_TRUE(frontBecomes("alpha"));
    {
        XConnection killer(scheduler, console, desktop->display());
        // Any identifier of the client's range names it.
        xcb_kill_client(killer.handle(), xcb_generate_id(connection->handle()) & ~0xFFU);
        (void)killer.serverTime();
    }
    EXPECT_TRUE(frontBecomes("(no front)"));
    EXPECT_TRUE(frontBecomes("alpha"));
    const auto beta = show("beta", "Beta");
    EXPECT_TRUE(frontBecomes("org.example.Beta"));
}

TEST_F(WorkspaceOnX, addressesOfTheOwnSchemeComeBackToTheProgramOnALaterTurn)
{
    workspace->openUrl(QStringLiteral("tarvin://open-studio"));
    EXPECT_THAT(ownUrls, IsEmpty());
    EXPECT_TRUE(eventually([&] { return !ownUrls.isEmpty(); }));
    EXPECT_THAT(ownUrls, ElementsAre(u"tarvin://open-studio"));
}

TEST_F(WorkspaceOnX, otherAddressesGoToTheSessionsOpener)
{
    const QString record = desktop->path("opened");
    desktop->putFile("bin/xdg-open",
        "#!/bin/sh\nprintf %s \"$1\" > " + record.toUtf8() + ".part && mv " + record.toUtf8() + ".part "
            + record.toUtf8() + '\n',
        QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const EnvironmentChange path("PATH", desktop->path("bin").toUtf8() + ':' + qgetenv("PATH"));
    workspace->openUrl(QStringLiteral("https://example.org/?a=b&c d"));
    EXPECT_TRUE(eventually([&] { return QFile::exists(record); }));
    QFile file(record);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "https://example.org/?a=b&c d");
}

TEST_F(WorkspaceWithoutManager, nobodyIsInFront)
{
    const auto alpha = show("i", "AppAlpha");
    letPass(4 * focusSettleTime);
    EXPECT_EQ(workspace->frontmostApplication(), std::nullopt);
    EXPECT_THAT(workspace->runningApplications(), IsEmpty());
    EXPECT_THAT(workspace->onScreenWindows(), IsEmpty());
    workspace->activate(static_cast<ProcessIdentifier>(alpha->processId()));
}

TEST_F(WorkspaceWithoutManager, aManagerThatComesLaterIsNoticed)
{
    desktop->startWindowManager();
    const auto alpha = show("i", "AppAlpha");
    EXPECT_TRUE(frontBecomes("alpha"));
}

TEST(WorkspaceWithoutX, thereIsNothingAndNothingBreaks)
{
    const EnvironmentChange noDisplay("DISPLAY", std::nullopt);
    posix::StdoutConsole console;
    QtScheduler scheduler;
    XConnection connection(scheduler, console);
    InstalledApplications applications(scheduler, {});
    EwmhWorkspace workspace(connection, applications, scheduler, [](const QString&) {});
    EXPECT_FALSE(connection.isConnected());
    EXPECT_EQ(workspace.frontmostApplication(), std::nullopt);
    EXPECT_THAT(workspace.runningApplications(), IsEmpty());
    EXPECT_THAT(workspace.onScreenWindows(), IsEmpty());
    EXPECT_TRUE(workspace.applicationWithProcess(getpid()));
    workspace.activate(getpid());
}

} // namespace tarvin::desktop
