#include "platform/linux/x11/StrokePlayer.h"

#include "platform/linux/x11/EffectText.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <random>

namespace tarvin::x11 {

namespace {

constexpr auto none = EventFlags::none;
constexpr auto shift = EventFlags::shift;
constexpr auto control = EventFlags::control;
constexpr auto option = EventFlags::option;
constexpr auto command = EventFlags::command;

constexpr KeyCode keyA = 0;
constexpr KeyCode keyC = 8;

/// A player, and what the applications and the user hold; faked keys change the former.
class Strokes : public ::testing::Test
{
protected:
    std::string down(KeyCode keyCode, EventFlags flags = none) { return play(keyCode, flags, KeyState::down); }
    std::string up(KeyCode keyCode, EventFlags flags = none) { return play(keyCode, flags, KeyState::up); }

    std::string play(KeyCode keyCode, EventFlags flags, KeyState state)
    {
        return apply(
            player.play({.keystroke = {keyCode, flags}, .state = state, .userData = 5}, {map, 0, isDown, isHeld}));
    }

    void userPresses(std::string_view name)
    {
        isDown.set(keycodeNamed(name));
        isHeld.set(keycodeNamed(name));
    }

    std::string userReleases(std::string_view name)
    {
        isDown.reset(keycodeNamed(name));
        isHeld.reset(keycodeNamed(name));
        return apply(player.noteUserRelease(keycodeNamed(name)));
    }

    /// What the applications see of the fakes; in brackets what only the faking device knows.
    std::string apply(const StrokePlayer::Fakes& fakes)
    {
        std::string text;
        for (const MarkedFake& fake : fakes) {
            const Keycode keycode = fake.key.keycode;
            const bool isPress = fake.key.motion == FakeMotion::press;
            // As the server has it: the press of a modifier that is down on the faking device is dropped.
            const bool isDropped = isPress && isFaked[keycode] && map.modifierKeys().maskOf[keycode] != 0;
            const bool isSeen = !isDropped && isDown[keycode] != isPress;
            const bool isKnown = isFaked[keycode] != isPress;
            isDown.set(keycode, isSeen ? isPress : isDown[keycode]);
            isFaked.set(keycode, isPress);
            if (isSeen)
                append(text, textOf(fake.key));
            else if (isKnown)
                append(text, "(" + textOf(fake.key) + ")");
        }
        return text;
    }

    KeyboardMap map;
    StrokePlayer player;
    KeycodeSet isDown;
    KeycodeSet isHeld;
    KeycodeSet isFaked;
};

TEST_F(Strokes, modifiersGoAroundTheKey)
{
    EXPECT_EQ(down(keyC, control | command), "+leftControl +leftCommand +c");
    EXPECT_EQ(up(keyC, control | command), "-c -leftControl -leftCommand");
    EXPECT_TRUE(isDown.none());
}

TEST_F(Strokes, theMainKeyCarriesItsOwnMarkAndTheModifiersOurs)
{
    const auto fakes = player.play({.keystroke = {keyC, control}, .userData = 5}, {map, 0, {}, {}});
    ASSERT_EQ(fakes.size(), 3U);
    EXPECT_EQ(fakes[0].userData, selfPostedMarker);
    EXPECT_EQ(fakes[1].userData, selfPostedMarker);
    EXPECT_EQ(fakes[2].userData, 5);
}

TEST_F(Strokes, aChordSharesItsModifiers)
{
    EXPECT_EQ(down(keyC, command), "+leftCommand +c");
    EXPECT_EQ(down(keyA, command), "+a");
    EXPECT_EQ(up(keyA, command), "-a");
    EXPECT_EQ(up(keyC, command), "-c -leftCommand");
}

TEST_F(Strokes, everyHalfOfAnOverlappingStrokeHasItsOwnFlags)
{
    EXPECT_EQ(down(keyC, control), "+leftControl +c");
    EXPECT_EQ(down(keyA, shift), "-leftControl +leftShift +a");
    EXPECT_EQ(up(keyC, control), "-leftShift +leftControl -c");
    EXPECT_EQ(up(keyA, shift), "-leftControl +leftShift -a -leftShift");
    EXPECT_TRUE(isDown.none());
}

TEST_F(Strokes, aKeyNamedTwiceIsPressedTwice)
{
    EXPECT_EQ(down(keyC), "+c");
    EXPECT_EQ(down(keyC), "-c +c");
    EXPECT_EQ(up(keyC), "-c");
    EXPECT_EQ(up(keyC), "");
}

TEST_F(Strokes, aModifierThatAKilledPredecessorLeftDownIsPressedAllTheSame)
{
    isFaked.set(keycodeNamed("leftControl"));
    EXPECT_EQ(down(keyC, control), "(-leftControl) +leftControl +c");
    EXPECT_EQ(up(keyC, control), "-c -leftControl");
}

TEST_F(Strokes, theSecondHalfOfNothingIsNothing)
{
    userPresses("c");
    EXPECT_EQ(up(keyC), "");
    EXPECT_EQ(down(keyC), "-c +c");
    EXPECT_EQ(up(keyA), "");
}

TEST_F(Strokes, aKeyThatNoKeyboardHasIsNotPosted)
{
    EXPECT_EQ(down(63), "");
    EXPECT_EQ(down(0xFFFF), "");
}

TEST_F(Strokes, whatTheUserHoldsIsLiftedAndGivenBack)
{
    userPresses("leftShift");
    EXPECT_EQ(down(keyC, control), "-leftShift +leftControl +c");
    EXPECT_EQ(up(keyC, control), "-c -leftControl +leftShift");
    // On the faking device it goes up with the user's own.
    EXPECT_EQ(userReleases("leftShift"), "(-leftShift)");
    EXPECT_EQ(userReleases("leftShift"), "");
}

TEST_F(Strokes, whatTheUserLetsGoInBetweenStaysUp)
{
    userPresses("leftShift");
    static_cast<void>(down(keyC, control));
    EXPECT_EQ(userReleases("leftShift"), "");
    EXPECT_EQ(up(keyC, control), "-c -leftControl");
}

TEST_F(Strokes, whatTheStrokeWantsIsTakenFromTheUser)
{
    userPresses("rightShift");
    EXPECT_EQ(down(keyC, shift), "+c");
    EXPECT_EQ(up(keyC, shift), "-c");
    EXPECT_TRUE(isDown[keycodeNamed("rightShift")]);
}

TEST_F(Strokes, aModifierOfOursThatTheUserPressesTooBecomesTheUsers)
{
    static_cast<void>(down(keyC, control));
    userPresses("leftControl");
    EXPECT_EQ(up(keyC, control), "-c");
    EXPECT_TRUE(isDown[keycodeNamed("leftControl")]);
    EXPECT_EQ(userReleases("leftControl"), "(-leftControl)");
}

TEST_F(Strokes, aModifierOfOursThatWasLiftedIsTheUsersIfPressedThen)
{
    static_cast<void>(down(keyC, control));
    EXPECT_EQ(down(keyA), "-leftControl +a");
    userPresses("leftControl");
    EXPECT_EQ(up(keyC, control), "-c");
    EXPECT_EQ(up(keyA, control), "-a");
    EXPECT_EQ(userReleases("leftControl"), "");
}

TEST_F(Strokes, aModifierOfOursThatTheUserTapsIsPressedAgain)
{
    static_cast<void>(down(keyC, control));
    userPresses("leftControl");
    EXPECT_EQ(userReleases("leftControl"), "");
    EXPECT_EQ(up(keyC, control), "(-leftControl) +leftControl -c -leftControl");
}

TEST_F(Strokes, anotherStrokeLiftsWhatWasGivenBack)
{
    userPresses("leftShift");
    static_cast<void>(down(keyC, control));
    static_cast<void>(up(keyC, control));
    EXPECT_EQ(down(keyA), "-leftShift +a");
    EXPECT_EQ(up(keyA), "-a +leftShift");
    EXPECT_EQ(userReleases("leftShift"), "(-leftShift)");
    EXPECT_TRUE(isDown.none());
}

TEST_F(Strokes, whatIsLiftedForTheSecondTimeMayBeLetGoInBetween)
{
    userPresses("leftShift");
    static_cast<void>(down(keyC, control));
    static_cast<void>(up(keyC, control));
    EXPECT_EQ(down(keyA), "-leftShift +a");
    EXPECT_EQ(userReleases("leftShift"), "");
    EXPECT_EQ(up(keyA), "-a");
}

TEST_F(Strokes, whatTheUserPressesAnewIsNotPressedAgain)
{
    userPresses("leftShift");
    EXPECT_EQ(down(keyA), "-leftShift +a");
    EXPECT_EQ(userReleases("leftShift"), "");
    userPresses("leftShift");
    EXPECT_EQ(up(keyA, shift), "-a");
}

TEST_F(Strokes, anOverlappingStrokeMayWantWhatWasLifted)
{
    userPresses("leftShift");
    EXPECT_EQ(down(keyC), "-leftShift +c");
    EXPECT_EQ(down(keyA, shift), "+leftShift +a");
    EXPECT_EQ(up(keyA, shift), "-a");
    EXPECT_EQ(up(keyC), "-leftShift -c +leftShift");
    EXPECT_EQ(userReleases("leftShift"), "(-leftShift)");
}

TEST_F(Strokes, nothingOfOursIsLeftWhenAllIsAbandoned)
{
    userPresses("leftShift");
    static_cast<void>(down(keyC, control));
    static_cast<void>(down(keyA, control));
    EXPECT_EQ(apply(player.abandon()), "-c -a -leftControl");
    EXPECT_EQ(apply(player.abandon()), "");
    EXPECT_EQ(up(keyC, control), "");
}

// The user presses and releases modifiers while strokes of all kinds overlap.
TEST(StrokesAtRandom, whenAllIsDoneWhatIsDownIsWhatTheUserHolds)
{
    const std::array<std::string_view, 4> names{"leftShift", "rightShift", "leftControl", "leftOption"};
    const std::array<EventFlags, 5> flags{none, shift, control, option, command | shift};
    for (unsigned seed = 0; seed < 300; ++seed) {
        std::mt19937 random(seed);
        const auto pick = [&](std::size_t count) {
            return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
        };
        const KeyboardMap map;
        StrokePlayer player;
        KeycodeSet isDown;
        KeycodeSet isHeld;
        KeycodeSet isFaked;
        std::vector<Stroke> open;
        const auto apply = [&](const StrokePlayer::Fakes& fakes) {
            for (const MarkedFake& fake : fakes) {
                const Keycode keycode = fake.key.keycode;
                const bool isModifier = map.modifierKeys().maskOf[keycode] != 0;
                if (fake.key.motion == FakeMotion::release)
                    isDown.reset(keycode);
                else if (!isModifier || !isFaked[keycode])
                    isDown.set(keycode);
                isFaked.set(keycode, fake.key.motion == FakeMotion::press);
            }
        };
        const auto finishOne = [&] {
            Stroke stroke = open.back();
            open.pop_back();
            stroke.state = KeyState::up;
            apply(player.play(stroke, {map, 0, isDown, isHeld}));
        };
        for (int step = 0; step < 100; ++step) {
            switch (pick(4)) {
            case 0: {
                const Stroke stroke{.keystroke = {static_cast<KeyCode>(pick(4)), flags[pick(flags.size())]}};
                apply(player.play(stroke, {map, 0, isDown, isHeld}));
                const EventFlags wanted = stroke.keystroke.flags;
                ModifierMask state = 0;
                for (std::size_t keycode = 0; keycode < keycodeCount; ++keycode) {
                    if (isDown[keycode])
                        state |= map.modifierKeys().maskOf[keycode];
                }
                ASSERT_EQ(map.masks().flagsOf(state), wanted) << "seed " << seed << " step " << step;
                open.push_back(stroke);
                break;
            }
            case 1:
                if (!open.empty())
                    finishOne();
                break;
            default: {
                const Keycode keycode = keycodeNamed(names[pick(names.size())]);
                isHeld.flip(keycode);
                isDown.set(keycode, isHeld[keycode]);
                if (!isHeld[keycode])
                    apply(player.noteUserRelease(keycode));
            }
            }
        }
        while (!open.empty())
            finishOne();
        ASSERT_EQ(isDown, isHeld) << "seed " << seed;
        for (const std::string_view name : names) {
            ASSERT_FALSE(isFaked[keycodeNamed(name)] && !isHeld[keycodeNamed(name)]) << "seed " << seed << " " << name;
        }
    }
}

} // namespace

} // namespace tarvin::x11
