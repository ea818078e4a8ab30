#include "interception/support/InputEvents.h"
#include "interception/support/InterceptionDesktop.h"
#include "interception/support/Printers.h"
#include "support/AllocationCounter.h"

#include <gtest/gtest.h>

namespace tarvin::test {

/// `handleEvent` itself is called here, because the simulated tap keeps a record of what it delivers. The front
/// application is known, as it is but for moments; while it is not, the platform is asked.
class AllocationTest : public testing::Test
{
protected:
    AllocationTest()
    {
        desktop.platform.workspace().setFrontmost({.processIdentifier = 7,
            .bundleIdentifiers = {QStringLiteral("org.example.Editor")},
            .localizedName = QStringLiteral("Editor")});
    }

    /// How often one verdict asks for memory.
    std::uint64_t allocationsOf(const InputEvent& event)
    {
        EventTapManager& manager = desktop.manager();
        const std::uint64_t before = allocationCount();
        verdict = manager.handleEvent(event);
        return allocationCount() - before;
    }

    InterceptionDesktop desktop;
    EventVerdict verdict = EventVerdict::pass;
};

TEST_F(AllocationTest, aFiringIsSeenByTheCounter)
{
    desktop.map(FKey::f5, KeyAction::mute);
    EXPECT_GT(allocationsOf(keyDown(FKey::f5)), 0U);
}

TEST_F(AllocationTest, aPassingKeyCostsNoMemory)
{
    desktop.map(FKey::f5, KeyAction::mute);
    EXPECT_EQ(allocationsOf(keyDown(keyA)), 0U);
    EXPECT_EQ(allocationsOf(keyUp(keyA)), 0U);
    EXPECT_EQ(allocationsOf(keyDown(FKey::f6)), 0U);
    EXPECT_EQ(allocationsOf(flagsChanged(FKey::rightOption, EventFlags::option)), 0U);
    EXPECT_EQ(allocationsOf(mediaDown(mediaBrightnessDown)), 0U);
    EXPECT_EQ(verdict, EventVerdict::pass);
}

TEST_F(AllocationTest, aConsumedKeyThatDoesNotFireCostsNoMemory)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.play("tap +F5");
    EXPECT_EQ(allocationsOf(keyDown(FKey::f5)), 0U);
    EXPECT_EQ(allocationsOf(keyRepeat(FKey::f5)), 0U);
    EXPECT_EQ(allocationsOf(keyUp(FKey::f5)), 0U);
    EXPECT_EQ(verdict, EventVerdict::consume);
}

} // namespace tarvin::test
