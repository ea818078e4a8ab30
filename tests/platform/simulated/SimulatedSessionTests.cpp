#include "platform/simulated/SimulatedPlatform.h"

#include <gmock/gmock.h>

namespace tarvin::simulated {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RecordingDelegate final : public AppShellDelegate
{
public:
    void applicationDidBecomeActive() override { calls << u"active"_qs; }
    void applicationShouldHandleReopen(bool hasVisibleWindows) override
    {
        calls << (hasVisibleWindows ? u"reopen with windows"_qs : u"reopen"_qs);
    }
    void applicationOpenUrls(const QStringList& urls) override { calls << u"open "_qs + urls.join(u' '); }
    void windowShouldClose(AppWindow& window) override { calls << u"close "_qs + window.title(); }
    void windowDidBecomeKey(AppWindow& window) override { calls << u"key "_qs + window.title(); }
    void applicationWillTerminate() override { calls << u"terminate"_qs; }

    QStringList calls;
};

class SimulatedSessionTest : public testing::Test
{
protected:
    SimulatedSessionTest()
    {
        desktop.appShell().setDelegate(&delegate);
        desktop.workspace().setApplication(safari);
        desktop.workspace().setApplication(nameless);
    }

    SimulatedPlatform desktop;
    RecordingDelegate delegate;
    RunningApplication safari{
        .processIdentifier = 501, .bundleIdentifiers = {u"com.apple.Safari"_qs}, .localizedName = u"Safari"_qs};
    RunningApplication nameless{.processIdentifier = 502, .bundleIdentifiers = {}, .localizedName = u"job"_qs};
};

TEST_F(SimulatedSessionTest, observersHearOfEachChangeOfTheFrontApplication)
{
    QStringList heard;
    std::unique_ptr<WorkspaceObserver> observer =
        desktop.workspace().observeActivation([&heard](const std::optional<RunningApplication>& application) {
            heard << (application ? application->localizedName : u"nothing"_qs);
        });
    EXPECT_EQ(desktop.workspace().frontmostApplication(), std::nullopt);
    desktop.workspace().setFrontmostProcess(501);
    desktop.workspace().setFrontmostProcess(501);
    desktop.workspace().setFrontmost(nameless);
    EXPECT_EQ(desktop.workspace().frontmostApplication()->bundleIdentifier(), std::nullopt);
    desktop.workspace().announceActivation(std::nullopt);
    observer.reset();
    desktop.workspace().setFrontmostProcess(501);
    EXPECT_EQ(heard, (QStringList{u"Safari"_qs, u"job"_qs, u"nothing"_qs}));
    EXPECT_THAT(desktop.effects().all<FrontApplicationChanged>(),
        ElementsAre(FrontApplicationChanged{u"Safari"_qs, u"com.apple.Safari"_qs},
            FrontApplicationChanged{u"job"_qs, std::nullopt},
            FrontApplicationChanged{u"Safari"_qs, u"com.apple.Safari"_qs}));
}

TEST_F(SimulatedSessionTest, anActivatedApplicationComesForwardOnALaterTurn)
{
    desktop.workspace().activate(501);
    EXPECT_EQ(desktop.workspace().frontmostApplication(), std::nullopt);
    desktop.scheduler().runPosted();
    EXPECT_EQ(desktop.workspace().frontmostApplication()->localizedName, u"Safari"_qs);
    EXPECT_THAT(desktop.effects().all<ApplicationActivated>(), ElementsAre(ApplicationActivated{501, u"Safari"_qs}));
}

TEST_F(SimulatedSessionTest, aProcessThatHasGoneCannotComeForward)
{
    desktop.workspace().setFrontmostProcess(501);
    desktop.workspace().removeApplication(501);
    EXPECT_EQ(desktop.workspace().frontmostApplication(), std::nullopt);
    desktop.workspace().activate(501);
    desktop.scheduler().runPosted();
    EXPECT_EQ(desktop.workspace().frontmostApplication(), std::nullopt);
    EXPECT_EQ(desktop.workspace().applicationWithProcess(501), std::nullopt);
}

TEST_F(SimulatedSessionTest, theProgramIsActiveWhileItIsInFront)
{
    desktop.appShell().observeDidBecomeActive([this] { delegate.calls << u"observer"_qs; });
    desktop.workspace().setFrontmostProcess(501);
    EXPECT_FALSE(desktop.appShell().isActive());
    desktop.appShell().activateIgnoringOtherApps();
    EXPECT_FALSE(desktop.appShell().isActive());
    desktop.scheduler().runPosted();
    EXPECT_TRUE(desktop.appShell().isActive());
    desktop.appShell().becomeActive();
    EXPECT_EQ(delegate.calls, (QStringList{u"active"_qs, u"observer"_qs}));
    desktop.workspace().setFrontmostProcess(501);
    desktop.appShell().becomeActive();
    EXPECT_EQ(delegate.calls.size(), 4);
}

TEST_F(SimulatedSessionTest, windowsAreShownHiddenAndTold)
{
    SimulatedWindow& window = desktop.appShell().addWindow(u"Studio"_qs);
    SimulatedWindow& panel = desktop.appShell().addWindow(u"Ring"_qs, WindowKind::panel);
    EXPECT_TRUE(panel.isPanel());
    EXPECT_FALSE(window.isVisible());
    window.miniaturizeByUser();
    EXPECT_TRUE(window.isMiniaturized());
    window.deminiaturize();
    window.makeKeyAndOrderFront();
    EXPECT_TRUE(window.isVisible());
    EXPECT_THAT(delegate.calls, IsEmpty());
    desktop.scheduler().runPosted();
    desktop.appShell().reopen();
    desktop.appShell().requestClose(window);
    window.orderOut();
    desktop.appShell().reopen();
    desktop.appShell().openUrls({u"tarvin://a"_qs});
    EXPECT_EQ(delegate.calls,
        (QStringList{
            u"key Studio"_qs, u"reopen with windows"_qs, u"close Studio"_qs, u"reopen"_qs, u"open tarvin://a"_qs}));
    EXPECT_EQ(desktop.appShell().windows().size(), 2u);
}

TEST_F(SimulatedSessionTest, theProgramEndsOnce)
{
    desktop.appShell().terminate();
    desktop.appShell().terminate();
    EXPECT_TRUE(desktop.appShell().isTerminated());
    EXPECT_EQ(delegate.calls, QStringList{u"terminate"_qs});
    EXPECT_EQ(desktop.effects().count<Terminated>(), 1u);
}

TEST_F(SimulatedSessionTest, theActivationPolicyIsKeptAndWrittenDown)
{
    EXPECT_EQ(desktop.appShell().activationPolicy(), ActivationPolicy::accessory);
    desktop.appShell().setActivationPolicy(ActivationPolicy::regular);
    EXPECT_EQ(desktop.appShell().activationPolicy(), ActivationPolicy::regular);
    EXPECT_THAT(
        desktop.effects().all<ActivationPolicySet>(), ElementsAre(ActivationPolicySet{ActivationPolicy::regular}));
}

} // namespace
} // namespace tarvin::simulated
