#include "platform/linux/x11/PressRouter.h"

#include "platform/linux/x11/EffectText.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace tarvin::x11 {

namespace {

constexpr DeviceId desk = 7;
constexpr DeviceId laptop = 8;

/// A router that is told of keys by name. F5 and the right Option key are customised.
class Routing : public ::testing::Test
{
protected:
    std::string grabbed(std::string_view name, DeviceId device = desk)
    {
        return textOf(router.grabbedPress(key(name, device), KeyMotion::press, now));
    }
    std::string grabbedRepeat(std::string_view name)
    {
        return textOf(router.grabbedPress(key(name), KeyMotion::repeat, now));
    }
    std::string grabbedRelease(std::string_view name) { return textOf(router.grabbedRelease(key(name), now)); }
    std::string raw(std::string_view name, DeviceId device = desk)
    {
        return textOf(router.rawPress(key(name, device), now));
    }
    std::string rawRelease(std::string_view name, DeviceId device = desk)
    {
        return textOf(router.rawRelease(key(name, device), now));
    }

    [[nodiscard]] static PhysicalKey key(std::string_view name, DeviceId device = desk)
    {
        return {device, keycodeNamed(name)};
    }

    PressRouter router;
    Situation now{.published = {.keys = {FKey::f5, FKey::rightOption}}, .isTapEnabled = true};
};

TEST_F(Routing, aCustomisedKeyGoesToTheTapAndTheKeyboardGoesOn)
{
    EXPECT_EQ(grabbed("f5"), "end7 tap(+f5)");
    EXPECT_EQ(grabbedRepeat("f5"), "end7 tap(*f5)");
    EXPECT_EQ(rawRelease("f5"), "tap(-f5)");
}

TEST_F(Routing, theReleaseMayComeFromTheGrabItself)
{
    EXPECT_EQ(grabbed("f5"), "end7 tap(+f5)");
    EXPECT_EQ(grabbedRelease("f5"), "tap(-f5)");
}

TEST_F(Routing, aKeyThatNobodyWantsIsNobodysBusiness)
{
    EXPECT_EQ(raw("a"), "");
    EXPECT_EQ(rawRelease("a"), "");
    EXPECT_EQ(raw("f6"), "");
    EXPECT_EQ(rawRelease("f6"), "");
}

TEST_F(Routing, theReleaseFollowsThePressWhateverIsPublishedByThen)
{
    EXPECT_EQ(grabbed("f5"), "end7 tap(+f5)");
    now.published = {};
    now.isTapEnabled = false;
    EXPECT_EQ(rawRelease("f5"), "tap(-f5)");

    now.hasGlobalMonitor = true;
    EXPECT_EQ(raw("f5"), "monitor(+f5)");
    now.published = {.keys = {FKey::f5}};
    now.isTapEnabled = true;
    EXPECT_EQ(rawRelease("f5"), "monitor(-f5)");
}

TEST_F(Routing, aPressThatIsNoLongerWantedIsGivenToTheApplications)
{
    now.published = {};
    EXPECT_EQ(grabbed("f5"), "end7 fake(+f5)");
    // The server repeats the faked press by itself.
    EXPECT_EQ(grabbedRepeat("f5"), "end7");
    EXPECT_EQ(rawRelease("f5"), "fake(-f5)");
    EXPECT_EQ(rawRelease("f5"), "");
}

TEST_F(Routing, anotherKeyOfAGrabbedKeyboardIsGivenToTheApplications)
{
    static_cast<void>(grabbed("f5"));
    EXPECT_EQ(grabbed("a"), "end7 fake(+a)");
    EXPECT_EQ(grabbedRelease("a"), "fake(-a)");
    EXPECT_EQ(rawRelease("f5"), "tap(-f5)");
}

TEST_F(Routing, aReleaseThatTheGrabSwallowedIsGivenToTheApplications)
{
    static_cast<void>(raw("a"));
    static_cast<void>(raw("f6"));
    static_cast<void>(grabbed("f5"));
    EXPECT_EQ(grabbedRelease("a"), "fake(-a)");
    EXPECT_EQ(grabbedRelease("f6"), "fake(-f6)");
}

TEST_F(Routing, aRepeatOfAKeyThatPassedIsLeftToTheServer)
{
    static_cast<void>(raw("f5"));
    EXPECT_EQ(grabbedRepeat("f5"), "end7");
    EXPECT_EQ(rawRelease("f5"), "");
}

TEST_F(Routing, theTapsLateWordPostsTheRestOfTheStroke)
{
    const Effects effects = router.grabbedPress(key("f5"), KeyMotion::press, now);
    const PressId press = std::get<Delivery>(effects.back()).press;
    EXPECT_EQ(textOf(router.repost(press, keycodeNamed("f5"))), "fake(+f5)");
    EXPECT_EQ(rawRelease("f5"), "fake(-f5) tap(-f5)");
}

TEST_F(Routing, theTapsWordAfterTheReleasePostsAWholeStroke)
{
    const Effects effects = router.grabbedPress(key("f5"), KeyMotion::press, now);
    const PressId press = std::get<Delivery>(effects.back()).press;
    EXPECT_EQ(rawRelease("f5"), "tap(-f5)");
    static_cast<void>(grabbed("f5"));
    EXPECT_EQ(textOf(router.repost(press, keycodeNamed("f5"))), "fake(+f5) fake(-f5)");
    // The second press is another one and stays what it is.
    EXPECT_EQ(rawRelease("f5"), "tap(-f5)");
}

TEST_F(Routing, noTwoPressesHaveTheSameName)
{
    PressRouter later(41);
    const Effects effects = later.grabbedPress(key("f5"), KeyMotion::press, now);
    EXPECT_EQ(std::get<Delivery>(effects.back()).press, 42U);
    EXPECT_EQ(later.lastPress(), 42U);
}

TEST_F(Routing, consumedModifiersCarryTheirOwnFlag)
{
    EXPECT_EQ(grabbed("rightOption"), "end7 tap(~rightOption/O)");
    EXPECT_EQ(rawRelease("rightOption"), "tap(~rightOption)");
    // A modifier has no repeats.
    static_cast<void>(grabbed("rightOption"));
    EXPECT_EQ(grabbedRepeat("rightOption"), "end7");
}

TEST_F(Routing, theFlagStaysWhileTheTwinIsHeld)
{
    now.hasGlobalMonitor = true;
    now.published = {};
    static_cast<void>(raw("leftOption"));
    now.flags = EventFlags::option;
    EXPECT_EQ(raw("rightOption"), "monitor(~rightOption/O)");
    EXPECT_EQ(rawRelease("rightOption"), "monitor(~rightOption/O)");
    static_cast<void>(rawRelease("leftOption"));
    EXPECT_EQ(raw("rightOption"), "monitor(~rightOption/O)");
    EXPECT_EQ(rawRelease("rightOption"), "monitor(~rightOption)");
    // The same key of another keyboard is a twin as well.
    static_cast<void>(raw("rightOption", laptop));
    static_cast<void>(raw("rightOption"));
    EXPECT_EQ(rawRelease("rightOption"), "monitor(~rightOption/O)");
}

TEST_F(Routing, aPressWithAltOrSuperHeldIsCovered)
{
    now.flags = EventFlags::shift;
    EXPECT_EQ(grabbed("f5"), "end7 tap(+f5/S)");
    static_cast<void>(rawRelease("f5"));
    now.flags = EventFlags::command;
    EXPECT_EQ(grabbed("f5"), "end7 cover tap(+f5/M)");
}

TEST_F(Routing, theSummonShortcutIsTakenWithBothModifiersOnly)
{
    now.published.summon = SummonShortcut::taken;
    now.flags = EventFlags::option;
    EXPECT_EQ(grabbed("k"), "end7 fake(+k)");
    static_cast<void>(rawRelease("k"));
    now.flags = EventFlags::option | EventFlags::command | EventFlags::shift;
    EXPECT_EQ(grabbed("k"), "end7 cover tap(+k/SOM)");
    EXPECT_EQ(rawRelease("k"), "tap(-k/SOM)");
    now.published.summon = SummonShortcut::released;
    EXPECT_EQ(grabbed("k"), "end7 fake(+k)");
}

TEST_F(Routing, theMonitorHearsOfCustomisableKeysAndOfTheSummonShortcut)
{
    now.hasGlobalMonitor = true;
    now.published.summon = SummonShortcut::taken;
    EXPECT_EQ(raw("a"), "");
    EXPECT_EQ(raw("k"), "");
    EXPECT_EQ(raw("mute"), "monitor(+media7)");
    EXPECT_EQ(rawRelease("mute"), "monitor(-media7)");
    now.flags = summonFlags;
    EXPECT_EQ(raw("k"), "monitor(+k/OM)");
    EXPECT_EQ(rawRelease("k"), "");
    EXPECT_EQ(raw("a"), "");
}

TEST_F(Routing, theTapHearsOfEveryKeyWhileTheStudioIsActive)
{
    now.isStudioActive = true;
    EXPECT_EQ(raw("a"), "watch(+a)");
    EXPECT_EQ(rawRelease("a"), "watch(-a)");
    EXPECT_EQ(grabbed("f5"), "end7 tap(+f5)");
    now.isTapEnabled = false;
    EXPECT_EQ(raw("a"), "");
}

TEST_F(Routing, aKeyboardThatGoesLetsGoOfItsKeysAndOfNoOthers)
{
    now.hasGlobalMonitor = true;
    static_cast<void>(grabbed("f5"));
    static_cast<void>(grabbed("f5", laptop));
    static_cast<void>(raw("f6"));
    static_cast<void>(raw("leftShift"));
    EXPECT_EQ(textOf(router.deviceGone(desk, now)), "tap(-f5) monitor(-f6)");
    EXPECT_TRUE(router.heldKeys().keycodes().none());
    EXPECT_EQ(rawRelease("f5", laptop), "tap(-f5)");
}

TEST_F(Routing, theEndOfTheServerLetsGoOfEverything)
{
    static_cast<void>(grabbed("f5"));
    static_cast<void>(grabbed("a", laptop));
    static_cast<void>(raw("b"));
    EXPECT_EQ(textOf(router.everythingGone(now)), "tap(-f5) fake(-a)");
    EXPECT_TRUE(router.heldKeys().keycodes().none());
}

TEST_F(Routing, keysThatWereDownBeforeUsAreUpAfterTheirRelease)
{
    KeycodeSet down;
    down.set(keycodeNamed("leftShift"));
    router.adopt(down);
    EXPECT_EQ(router.heldKeys().keycodes(), down);
    EXPECT_EQ(rawRelease("leftShift"), "");
    EXPECT_TRUE(router.heldKeys().keycodes().none());
}

/// What the applications know, as the server keeps it: a key is down from a press that reached them to the next release
/// of it by whichever device.
class Applications
{
public:
    void press(Keycode keycode) { m_down.insert(keycode); }
    void release(Keycode keycode) { m_down.erase(keycode); }
    [[nodiscard]] bool isAnyDown() const { return !m_down.empty(); }

private:
    std::set<Keycode> m_down;
};

// Keys go down and up on two keyboards, grabs begin and end at any moment, what is published changes, verdicts come
// late.
TEST(RoutingAtRandom, whenAllKeysAreUpNothingIsDown)
{
    const std::array<Keycode, 6> keys{keycodeNamed("f5"), keycodeNamed("f6"), keycodeNamed("a"), keycodeNamed("k"),
        keycodeNamed("leftShift"), keycodeNamed("rightOption")};
    for (unsigned seed = 0; seed < 300; ++seed) {
        std::mt19937 random(seed);
        const auto pick = [&](unsigned count) { return std::uniform_int_distribution<unsigned>(0, count - 1)(random); };
        PressRouter router;
        Applications applications;
        std::set<Keycode> fakedDown;
        std::set<PhysicalKey> down;
        std::set<DeviceId> grabs;
        std::vector<std::pair<PressId, Keycode>> undecided;
        std::map<PressId, int> tapBalance;
        Situation now{.published = {.keys = {FKey::f5}}, .isTapEnabled = true};
        const auto apply = [&](const Effects& effects) {
            for (const Effect& effect : effects) {
                if (const auto* const fake = std::get_if<FakeKey>(&effect)) {
                    if (fake->motion == FakeMotion::press) {
                        applications.press(fake->keycode);
                        fakedDown.insert(fake->keycode);
                    } else {
                        applications.release(fake->keycode);
                        fakedDown.erase(fake->keycode);
                    }
                } else if (const auto* const end = std::get_if<EndGrab>(&effect)) {
                    grabs.erase(end->device);
                } else if (const auto* const told = std::get_if<Delivery>(&effect); told && told->press != 0) {
                    if (told->motion == KeyMotion::press)
                        undecided.emplace_back(told->press, told->keycode);
                    tapBalance[told->press] += told->motion == KeyMotion::press ? 1 : -1;
                }
            }
        };
        const auto releaseKey = [&](PhysicalKey key) {
            down.erase(key);
            if (grabs.contains(key.device)) {
                apply(router.grabbedRelease(key, now));
            } else {
                applications.release(key.keycode);
                apply(router.rawRelease(key, now));
            }
        };
        const auto decide = [&] {
            const auto [press, keycode] = undecided.front();
            undecided.erase(undecided.begin());
            if (pick(2) == 0)
                apply(router.repost(press, keycode));
        };
        for (int step = 0; step < 200; ++step) {
            const PhysicalKey key{static_cast<DeviceId>(desk + pick(2)), keys[pick(keys.size())]};
            switch (pick(6)) {
            case 0:
                now.published.keys = FKeySet::fromBits(pick(2) == 0 ? 0 : FKeySet{FKey::f5, FKey::f6}.bits());
                break;
            case 1:
                now.isTapEnabled = pick(4) != 0;
                break;
            case 2:
                if (!undecided.empty())
                    decide();
                break;
            default:
                if (down.contains(key)) {
                    releaseKey(key);
                    break;
                }
                down.insert(key);
                if (grabs.contains(key.device)) {
                    apply(router.grabbedPress(key, KeyMotion::press, now));
                } else if (PressRouter::isWanted(key.keycode, now)) {
                    // The rest of the keyboard may be ours for a while.
                    grabs.insert(key.device);
                    const Effects effects = router.grabbedPress(key, KeyMotion::press, now);
                    apply(effects);
                    if (pick(3) == 0)
                        grabs.insert(key.device);
                } else {
                    applications.press(key.keycode);
                    apply(router.rawPress(key, now));
                }
            }
        }
        while (!down.empty())
            releaseKey(*down.begin());
        while (!undecided.empty())
            decide();
        ASSERT_FALSE(applications.isAnyDown()) << "seed " << seed;
        ASSERT_TRUE(fakedDown.empty()) << "seed " << seed;
        ASSERT_TRUE(router.heldKeys().keycodes().none()) << "seed " << seed;
        for (const auto& [press, balance] : tapBalance)
            ASSERT_EQ(balance, 0) << "seed " << seed << " press " << press;
    }
}

} // namespace

} // namespace tarvin::x11
