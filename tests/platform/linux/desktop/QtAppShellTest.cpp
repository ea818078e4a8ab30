#include "platform/linux/desktop/support/PrivateDesktop.h"
#include "support/QtPrinters.h"

#include <csignal>

namespace tarvin::desktop {

using namespace std::chrono_literals;
using endtoend::ChildProcess;
using endtoend::eventually;
using endtoend::letPass;
using endtoend::lineFrom;
using endtoend::PrivateDesktop;
using endtoend::remainingLinesFrom;

namespace {

constexpr const char* studioTitle = "MacBook Air Keyboard Studio";

/// The shell as a program of its own, on a desktop of its own, seen from outside.
class AppShellOnX : public testing::Test
{
protected:
    void SetUp() override
    {
        if (const auto lack = PrivateDesktop::lack())
            GTEST_SKIP() << *lack;
        desktop = std::make_unique<PrivateDesktop>(
            std::vector{PrivateDesktop::Part::windowManager, PrivateDesktop::Part::sessionBus});
        startProbe();
    }

    void startProbe()
    {
        probe = desktop->start("tarvin_shell_probe");
        ASSERT_TRUE(lineFrom(*probe, "ready"));
    }

    /// Another application, in front when this returns.
    [[nodiscard]] std::unique_ptr<ChildProcess> showOther() const
    {
        auto other = desktop->showWindow({"o", "Other", "other"});
        EXPECT_TRUE(eventually([&] { return desktop->activeWindow() == desktop->windowTitled("other"); }));
        return other;
    }

    [[nodiscard]] qulonglong studio() const { return desktop->windowTitled(studioTitle); }

    [[nodiscard]] bool openStudio()
    {
        probe->writeLine("open");
        return lineFrom(*probe, "key Tarvin").has_value();
    }

    [[nodiscard]] bool studioIsInFront() const
    {
        return eventually([&] { return studio() != 0 && desktop->activeWindow() == studio(); });
    }

    [[nodiscard]] bool studioIsInTaskbar(bool isIn) const
    {
        return eventually([&] {
            const qulonglong window = studio();
            if (window == 0)
                return false;
            const QString states = desktop->property(window, "_NET_WM_STATE");
            return states.contains(u"SKIP_TASKBAR") != isIn && states.contains(u"SKIP_PAGER") != isIn;
        });
    }

    [[nodiscard]] QString state()
    {
        probe->writeLine("state");
        return lineFrom(*probe, "state").value_or(QString());
    }

    [[nodiscard]] bool stateBecomes(const QString& wanted)
    {
        return eventually([&] { return state() == wanted; });
    }

    std::unique_ptr<PrivateDesktop> desktop;
    std::unique_ptr<ChildProcess> probe;
};

} // namespace

TEST_F(AppShellOnX, withoutAStudioThereIsNoWindow)
{
    letPass(100ms);
    EXPECT_EQ(studio(), 0U);
}

TEST_F(AppShellOnX, theStudioOpensWithTheKeyboardAndTheDelegateHears)
{
    probe->writeLine("open");
    EXPECT_TRUE(lineFrom(*probe, "active"));
    EXPECT_TRUE(lineFrom(*probe, "observer: active")) << "after the delegate";
    EXPECT_TRUE(lineFrom(*probe, "key Tarvin"));
    EXPECT_TRUE(studioIsInFront());
    EXPECT_EQ(state(), QStringLiteral("state visible restored active"));
}

TEST_F(AppShellOnX, theActivationPolicyIsThePresenceInTheTaskbar)
{
    ASSERT_TRUE(openStudio());
    EXPECT_TRUE(studioIsInTaskbar(true));
    probe->writeLine("accessory");
    EXPECT_TRUE(studioIsInTaskbar(false));
    probe->writeLine("regular");
    EXPECT_TRUE(studioIsInTaskbar(true));
}

TEST_F(AppShellOnX, thePolicyHoldsFromTheFirstMomentOfAWindowAndAfterEachReturn)
{
    ASSERT_TRUE(openStudio());
    probe->writeLine("hide");
    ASSERT_TRUE(eventually([&] { return studio() == 0; }));
    probe->writeLine("accessory");
    probe->writeLine("show");
    EXPECT_TRUE(studioIsInTaskbar(false));
    // The manager clears the states of the hidden window while the next showing is under way.
    for (int round = 0; round < 5; ++round) {
        probe->writeLine("quick");
        (void)state();
        letPass(50ms);
        EXPECT_TRUE(studioIsInTaskbar(false));
    }
}

TEST_F(AppShellOnX, closingHidesAndTheSameWindowComesBack)
{
    ASSERT_TRUE(openStudio());
    const qulonglong window = studio();
    const auto other = showOther();
    other->writeLine("close " + std::to_string(window));
    EXPECT_TRUE(lineFrom(*probe, "should close"));
    EXPECT_TRUE(eventually([&] { return studio() == 0; }));
    EXPECT_FALSE(probe->waitForEnd(0ms));
    ASSERT_TRUE(openStudio());
    EXPECT_TRUE(eventually([&] { return studio() == window; }));
}

TEST_F(AppShellOnX, aWindowHiddenAndShownAtOnceBecomesKeyAgain)
{
    ASSERT_TRUE(openStudio());
    for (int round = 0; round < 3; ++round) {
        probe->writeLine("hide");
        EXPECT_TRUE(openStudio());
    }
}

TEST_F(AppShellOnX, aStudioInTheBackgroundIsRaisedWithTheKeyboard)
{
    ASSERT_TRUE(openStudio());
    const auto other = showOther();
    ASSERT_TRUE(stateBecomes(QStringLiteral("state visible restored inactive")));
    ASSERT_TRUE(openStudio());
    EXPECT_TRUE(studioIsInFront());
}

TEST_F(AppShellOnX, theLossOfTheKeyboardIsKnownBeforeTheToolkitTellsIt)
{
    ASSERT_TRUE(openStudio());
    const auto other = showOther();
    // The toolkit's own word takes 400 ms.
    letPass(100ms);
    EXPECT_EQ(state(), QStringLiteral("state visible restored inactive"));
}

TEST_F(AppShellOnX, whoeverFollowsTheActivityHearsOfItsEnd)
{
    ASSERT_TRUE(openStudio());
    const auto other = showOther();
    EXPECT_TRUE(lineFrom(*probe, "inactive"));
}

TEST_F(AppShellOnX, aMinimisedStudioIsRestored)
{
    ASSERT_TRUE(openStudio());
    const auto other = showOther();
    other->writeLine("minimize " + std::to_string(studio()));
    ASSERT_TRUE(stateBecomes(QStringLiteral("state hidden miniaturized inactive")));
    ASSERT_TRUE(openStudio());
    EXPECT_EQ(state(), QStringLiteral("state visible restored active"));
}

TEST_F(AppShellOnX, aTerminationSignalEndsInGoodOrder)
{
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        probe->sendSignal(number);
        EXPECT_TRUE(lineFrom(*probe, "will terminate")) << number;
        EXPECT_TRUE(lineFrom(*probe, "loop ended")) << number;
        EXPECT_EQ(probe->waitForEnd(), 0) << number;
        startProbe();
    }
}

TEST_F(AppShellOnX, aSignalThatTheParentHasIgnoredStaysIgnored)
{
    probe.reset();
    signal(SIGHUP, SIG_IGN);
    startProbe();
    signal(SIGHUP, SIG_DFL);
    probe->sendSignal(SIGHUP);
    probe->writeLine("memory");
    EXPECT_TRUE(lineFrom(*probe, "memory"));
    EXPECT_FALSE(probe->waitForEnd(0ms));
}

TEST_F(AppShellOnX, theToolkitsQuitEndsInGoodOrderDespiteAnOpenWindow)
{
    ASSERT_TRUE(openStudio());
    probe->writeLine("quit");
    EXPECT_TRUE(lineFrom(*probe, "will terminate"));
    EXPECT_TRUE(lineFrom(*probe, "loop ended"));
    EXPECT_EQ(probe->waitForEnd(), 0);
}

TEST_F(AppShellOnX, theDelegateHearsOfTheEndOnce)
{
    probe->writeLine("terminate");
    const QStringList lines = remainingLinesFrom(*probe);
    EXPECT_EQ(lines.count(QStringLiteral("will terminate")), 1);
    EXPECT_EQ(probe->waitForEnd(), 0);
}

TEST_F(AppShellOnX, theDelegateHearsOfTheEndWhenTheXServerGoes)
{
    desktop->killServer();
    EXPECT_TRUE(lineFrom(*probe, "will terminate"));
    EXPECT_TRUE(probe->waitForEnd());
}

TEST_F(AppShellOnX, anAddressOfTheOwnSchemeComesBackToTheDelegate)
{
    probe->writeLine("url tarvin://open-studio");
    EXPECT_EQ(lineFrom(*probe, "urls"), QStringLiteral("urls tarvin://open-studio"));
    EXPECT_TRUE(studioIsInFront());
}

} // namespace tarvin::desktop
