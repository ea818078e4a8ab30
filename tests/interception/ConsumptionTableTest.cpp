#include "interception/support/InputEvents.h"
#include "interception/support/InterceptionDesktop.h"
#include "interception/support/Printers.h"

#include <gtest/gtest.h>

#include <array>

// Which events the taps consume and which they let pass: each situation with each kind of event, at both taps.

namespace tarvin::test {

namespace {

enum class Kind { keyDown, keyRepeat, keyUp, flagsChanged, mediaDown, mediaRepeat, mediaUp };

constexpr auto allKinds = std::to_array({Kind::keyDown, Kind::keyRepeat, Kind::keyUp, Kind::flagsChanged,
    Kind::mediaDown, Kind::mediaRepeat, Kind::mediaUp});

/// An event of each kind about the same key: its code, and the media key that stands for it.
InputEvent eventOf(Kind kind, KeyCode code, std::uint32_t mediaType, EventFlags flags = EventFlags::none)
{
    switch (kind) {
    case Kind::keyDown:
        return keyDown(code, flags);
    case Kind::keyRepeat:
        return keyRepeat(code, flags);
    case Kind::keyUp:
        return keyUp(code, flags);
    case Kind::flagsChanged:
        return flagsChanged(code, flags);
    case Kind::mediaDown:
        return mediaDown(mediaType);
    case Kind::mediaRepeat:
        return mediaRepeat(mediaType);
    case Kind::mediaUp:
        return mediaUp(mediaType);
    }
    return {};
}

InputEvent f1Event(Kind kind)
{
    return eventOf(kind, virtualKeyCode(FKey::f1), mediaBrightnessDown);
}

std::string caseName(const testing::TestParamInfo<std::tuple<TapLocation, Kind>>& information)
{
    constexpr auto kinds = std::to_array<const char*>(
        {"keyDown", "keyRepeat", "keyUp", "flagsChanged", "mediaDown", "mediaRepeat", "mediaUp"});
    const auto [location, kind] = information.param;
    return std::string(location == TapLocation::session ? "session_" : "hid_") + kinds[static_cast<std::size_t>(kind)];
}

} // namespace

class ConsumptionTable : public testing::TestWithParam<std::tuple<TapLocation, Kind>>
{
protected:
    EventVerdict tap(const InputEvent& event) { return desktop.tap(std::get<TapLocation>(GetParam()), event); }
    [[nodiscard]] static Kind kind() { return std::get<Kind>(GetParam()); }

    void expectNothingHappened()
    {
        desktop.advance(std::chrono::seconds(1));
        EXPECT_EQ(desktop.fired(), "");
        EXPECT_EQ(desktop.held(), "");
        EXPECT_EQ(desktop.studio.opened, 0);
    }

    InterceptionDesktop desktop;
};

TEST_P(ConsumptionTable, anEventOfOurOwnPasses)
{
    desktop.map(FKey::f1, KeyAction::mute);
    EXPECT_EQ(tap(selfPosted(f1Event(kind()))), EventVerdict::pass);
    EXPECT_EQ(tap(selfPosted(eventOf(kind(), keyK, mediaBrightnessDown, EventFlags::option | EventFlags::command))),
        EventVerdict::pass);
    expectNothingHappened();
}

TEST_P(ConsumptionTable, theSummonShortcutIsConsumedAtEachPressAndRepeat)
{
    const EventVerdict verdict = tap(eventOf(kind(), keyK, mediaEject, EventFlags::option | EventFlags::command));
    desktop.advance(std::chrono::seconds(1));
    const bool isPress = kind() == Kind::keyDown || kind() == Kind::keyRepeat;
    EXPECT_EQ(verdict, isPress ? EventVerdict::consume : EventVerdict::pass);
    EXPECT_EQ(desktop.studio.opened, isPress ? 1 : 0);
}

TEST_P(ConsumptionTable, everythingPassesWithTheMasterSwitchOff)
{
    desktop.map(FKey::f1, KeyAction::mute);
    desktop.profile.setInterceptionEnabled(false);
    EXPECT_EQ(tap(f1Event(kind())), EventVerdict::pass);
    expectNothingHappened();
}

TEST_P(ConsumptionTable, aKeyOutsideTheVocabularyPasses)
{
    desktop.map(FKey::f1, KeyAction::mute);
    EXPECT_EQ(tap(eventOf(kind(), keyA, mediaEject)), EventVerdict::pass);
    expectNothingHappened();
}

TEST_P(ConsumptionTable, aKeyOfAPausedPortionPasses)
{
    desktop.map(FKey::f1, KeyAction::mute);
    desktop.profile.setFunctionKeysEnabled(false);
    EXPECT_EQ(tap(f1Event(kind())), EventVerdict::pass);
    expectNothingHappened();
}

TEST_P(ConsumptionTable, aKeyThatIsNotCustomisedPasses)
{
    desktop.map(FKey::f2, KeyAction::mute);
    EXPECT_EQ(tap(f1Event(kind())), EventVerdict::pass);
    expectNothingHappened();
}

TEST_P(ConsumptionTable, aKeySetBackToItsFactoryActionPasses)
{
    desktop.map(FKey::f1, KeyAction::mute);
    desktop.map(FKey::f1, defaultAction(FKey::f1));
    EXPECT_EQ(tap(f1Event(kind())), EventVerdict::pass);
    expectNothingHappened();
}

TEST_P(ConsumptionTable, aCustomisedKeyIsConsumedAndFiresWhenItGoesDown)
{
    desktop.map(FKey::f1, KeyAction::mute);
    EXPECT_EQ(tap(f1Event(kind())), EventVerdict::consume);
    const bool goesDown = kind() == Kind::keyDown || kind() == Kind::flagsChanged || kind() == Kind::mediaDown;
    EXPECT_EQ(desktop.fired(), goesDown ? "mute" : "");
    EXPECT_EQ(desktop.held(), goesDown ? "F1" : "");
}

TEST_P(ConsumptionTable, aCustomisedKeyThatIsHeldIsConsumedAndReleasedWhenItGoesUp)
{
    desktop.map(FKey::f1, KeyAction::mute);
    desktop.play("hid +F1");
    EXPECT_EQ(tap(f1Event(kind())), EventVerdict::consume);
    const bool goesUp = kind() == Kind::keyUp || kind() == Kind::flagsChanged || kind() == Kind::mediaUp;
    EXPECT_EQ(desktop.fired(), "mute");
    EXPECT_EQ(desktop.held(), goesUp ? "" : "F1");
}

INSTANTIATE_TEST_SUITE_P(BothTaps, ConsumptionTable,
    testing::Combine(testing::Values(TapLocation::session, TapLocation::hid), testing::ValuesIn(allKinds)), caseName);

} // namespace tarvin::test
