#include "platform/simulated/SimulatedPlatform.h"

#include <gmock/gmock.h>

namespace tarvin::simulated {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SimulatedInputTapsTest : public testing::Test
{
protected:
    std::unique_ptr<EventTap> liveTap(TapLocation location, EventVerdict verdict)
    {
        std::unique_ptr<EventTap> tap =
            desktop.inputTaps().createTap(location, [this, verdict](const InputEvent& event) {
                seen.push_back(event.type);
                return verdict;
            });
        tap->attachToMainLoop();
        tap->enable();
        desktop.effects().clear();
        return tap;
    }

    std::vector<EventOutcome> outcomes()
    {
        std::vector<EventOutcome> found;
        for (const EventDelivered& delivered : desktop.effects().all<EventDelivered>())
            found.push_back(delivered.outcome);
        return found;
    }

    SimulatedPlatform desktop;
    std::vector<InputEventType> seen;
    InputEvent f5Down{.type = InputEventType::keyDown, .keyCode = 96};
};

TEST_F(SimulatedInputTapsTest, aTapSeesNothingBeforeItIsAttachedAndEnabled)
{
    const std::unique_ptr<EventTap> tap = desktop.inputTaps().createTap(TapLocation::session, [](const InputEvent&) {
        ADD_FAILURE() << "the tap was reached";
        return EventVerdict::consume;
    });
    EXPECT_FALSE(tap->isEnabled());
    EXPECT_EQ(desktop.inputTaps().deliverToTap(TapLocation::session, f5Down), EventVerdict::pass);
    tap->enable();
    EXPECT_EQ(desktop.inputTaps().deliverToTap(TapLocation::session, f5Down), EventVerdict::pass);
    EXPECT_THAT(outcomes(), ElementsAre(EventOutcome::unseen, EventOutcome::unseen));
}

TEST_F(SimulatedInputTapsTest, theVerdictOfTheTapIsGivenBackAndWrittenDown)
{
    const std::unique_ptr<EventTap> hid = liveTap(TapLocation::hid, EventVerdict::consume);
    const std::unique_ptr<EventTap> session = liveTap(TapLocation::session, EventVerdict::pass);
    EXPECT_EQ(desktop.inputTaps().deliverToTap(TapLocation::hid, f5Down), EventVerdict::consume);
    EXPECT_EQ(desktop.inputTaps().deliverToTap(TapLocation::session, f5Down), EventVerdict::pass);
    EXPECT_THAT(outcomes(), ElementsAre(EventOutcome::consumed, EventOutcome::passed));
}

TEST_F(SimulatedInputTapsTest, theSystemSwitchesATapOffAndTellsItSo)
{
    const std::unique_ptr<EventTap> tap = liveTap(TapLocation::session, EventVerdict::pass);
    desktop.inputTaps().disableBySystem(TapLocation::session, InputEventType::tapDisabledByUserInput);
    EXPECT_FALSE(tap->isEnabled());
    EXPECT_THAT(seen, ElementsAre(InputEventType::tapDisabledByUserInput));
    EXPECT_THAT(
        desktop.effects().all<TapChanged>(), ElementsAre(TapChanged{TapLocation::session, TapStep::disabledBySystem}));
}

TEST_F(SimulatedInputTapsTest, aTapSwitchedOffSilentlyHearsNothing)
{
    const std::unique_ptr<EventTap> tap = liveTap(TapLocation::session, EventVerdict::pass);
    desktop.inputTaps().disableSilently(TapLocation::session);
    EXPECT_FALSE(desktop.inputTaps().isTapEnabled(TapLocation::session));
    EXPECT_THAT(seen, IsEmpty());
}

TEST_F(SimulatedInputTapsTest, aRemovedTapIsGone)
{
    std::unique_ptr<EventTap> tap = liveTap(TapLocation::session, EventVerdict::consume);
    EXPECT_TRUE(desktop.inputTaps().hasTap(TapLocation::session));
    tap.reset();
    EXPECT_FALSE(desktop.inputTaps().hasTap(TapLocation::session));
    EXPECT_EQ(desktop.inputTaps().deliverToTap(TapLocation::session, f5Down), EventVerdict::pass);
}

TEST_F(SimulatedInputTapsTest, eachPlaceCanRefuseItsTap)
{
    desktop.inputTaps().setTapAvailable(TapLocation::session, false);
    const InputTaps::TapHandler pass = [](const InputEvent&) { return EventVerdict::pass; };
    EXPECT_EQ(desktop.inputTaps().createTap(TapLocation::session, pass), nullptr);
    EXPECT_NE(desktop.inputTaps().createTap(TapLocation::hid, pass), nullptr);
}

TEST_F(SimulatedInputTapsTest, withoutPermissionNoTapCanBeHad)
{
    desktop.permission().setTrusted(false);
    const InputTaps::TapHandler pass = [](const InputEvent&) { return EventVerdict::pass; };
    EXPECT_EQ(desktop.inputTaps().createTap(TapLocation::hid, pass), nullptr);
    EXPECT_THAT(desktop.effects().all<TapChanged>(), ElementsAre(TapChanged{TapLocation::hid, TapStep::refused}));
}

TEST_F(SimulatedInputTapsTest, monitorsAreReachedUntilTheyAreDestroyed)
{
    int reached = 0;
    std::unique_ptr<EventMonitor> global =
        desktop.inputTaps().addGlobalMonitor([&reached](const InputEvent&) { ++reached; });
    std::unique_ptr<EventMonitor> local = desktop.inputTaps().addLocalMonitor([&reached](const InputEvent&) {
        ++reached;
        return EventVerdict::consume;
    });
    desktop.inputTaps().deliverToGlobalMonitor(f5Down);
    EXPECT_EQ(desktop.inputTaps().deliverToLocalMonitor(f5Down), EventVerdict::consume);
    EXPECT_EQ(reached, 2);
    global.reset();
    local.reset();
    desktop.inputTaps().deliverToGlobalMonitor(f5Down);
    EXPECT_EQ(desktop.inputTaps().deliverToLocalMonitor(f5Down), EventVerdict::pass);
    EXPECT_EQ(reached, 2);
    EXPECT_THAT(outcomes(),
        ElementsAre(EventOutcome::observed, EventOutcome::consumed, EventOutcome::unseen, EventOutcome::unseen));
}

TEST_F(SimulatedInputTapsTest, hardwareValuesReachAnOpenManagerOnly)
{
    int reached = 0;
    const InputTaps::HidHandler count = [&reached](const HidValue&) { ++reached; };
    std::unique_ptr<HidManager> manager = desktop.inputTaps().openHidManager(count);
    EXPECT_TRUE(manager->isOpen());
    desktop.inputTaps().deliverHid({7, 62, 1});
    EXPECT_EQ(reached, 1);
    manager.reset();
    desktop.inputTaps().setHidManagerOpens(false);
    manager = desktop.inputTaps().openHidManager(count);
    EXPECT_FALSE(manager->isOpen());
    desktop.inputTaps().deliverHid({7, 62, 1});
    EXPECT_EQ(reached, 1);
}

TEST_F(SimulatedInputTapsTest, thePublishedKeysAreKeptAndWrittenDown)
{
    desktop.inputTaps().publishConsumedKeys({FKey::f5, FKey::capsLock}, SummonShortcut::taken);
    EXPECT_EQ(desktop.inputTaps().publishedKeys(), (FKeySet{FKey::f5, FKey::capsLock}));
    EXPECT_THAT(desktop.effects().all<ConsumedKeysPublished>(),
        ElementsAre(ConsumedKeysPublished{{FKey::f5, FKey::capsLock}, SummonShortcut::taken}));
}

} // namespace
} // namespace tarvin::simulated
