#include "fuzz/support/FuzzedSession.h"

#include <gtest/gtest.h>

// The interception under random input. Every session follows from its seed and runs the same each time.

namespace tarvin::test {

using namespace std::chrono_literals;

namespace {

constexpr std::uint64_t seedCount = 400;

/// Runs the body in a fresh session for each seed, up to the first that fails.
template <typename Body> void forEachSeed(Body body)
{
    for (std::uint64_t seed = 1; seed <= seedCount && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        FuzzedSession session(seed);
        body(session);
    }
}

/// A press of one key, short or so long that it repeats, with a second key pressed meanwhile or not.
FKeySet pressAndRelease(FuzzedSession& session)
{
    FKeySet keys{session.chance.oneOf(allFKeys)};
    if (session.chance.percent(50))
        keys.insert(session.chance.oneOf(allFKeys));
    keys.remove(FKey::capsLock);
    for (const FKey key : keys) {
        session.keyboard.press(key);
        session.wait(100);
    }
    session.desktop.advance(10ms);
    for (std::uint64_t repeat = session.chance.percent(20) && !keys.empty() ? 20 : 0; repeat > 0; --repeat) {
        session.desktop.advance(40ms);
        session.keyboard.repeat(*keys.begin());
    }
    session.keyboard.releaseEverything();
    return keys;
}

} // namespace

TEST(RouterFuzz, everyPressFiresOnceHoweverThePathsInterleave)
{
    forEachSeed([](FuzzedSession& session) {
        session.mapEverything();
        session.keyboard.setLongestDelay(60ms);
        std::array<int, fKeyCount> presses{};
        for (int round = 0; round < 30; ++round) {
            for (const FKey key : pressAndRelease(session))
                ++presses[orderOf(key)];
            session.desktop.advance(200ms);
        }
        for (const FKey key : allFKeys)
            EXPECT_EQ(session.keyboard.firings(key), presses[orderOf(key)]) << names({key});
        EXPECT_EQ(names(session.heldInTheFunnel()), "");
        EXPECT_EQ(session.keyboard.brokenPromises(), 0);
    });
}

TEST(RouterFuzz, whileInterceptionIsOnNothingIsHeldAfterAllKeysAreReleased)
{
    forEachSeed([](FuzzedSession& session) {
        session.mapEverything();
        for (int step = 0; step < 200; ++step) {
            session.keyboard.setLongestDelay(session.chance.percent(10) ? 800ms : 60ms);
            if (session.chance.percent(80))
                session.useTheKeyboard();
            else if (session.chance.percent(40))
                session.switchApplication();
            else if (session.chance.percent(50))
                session.editAMapping();
            else if (session.chance.percent(30))
                session.desktop.profile.setFunctionKeysEnabled(session.chance.percent(50));
            else if (session.chance.percent(50))
                session.changePermission();
            else
                session.switchATapOff();
            session.wait(200);
        }
        session.keyboard.releaseEverything();
        session.keyboard.settle();
        EXPECT_EQ(names(session.heldInTheFunnel()), "");
        EXPECT_EQ(session.keyboard.brokenPromises(), 0);
        session.expectThatNoKeyIsStuck();
    });
}

// With the master switch off a release is not heard, and while a left-hand modifier is held the release of its
// right-hand twin reads as a press.
TEST(RouterFuzz, aKeyIsHeldOnlyUntilAReleaseIsHeard)
{
    std::size_t remained = 0;
    forEachSeed([&remained](FuzzedSession& session) {
        session.mapEverything();
        session.keyboard.setLongestDelay(60ms);
        for (int step = 1; step <= 300; ++step) {
            if (session.chance.percent(80))
                session.useTheKeyboard();
            else if (session.chance.percent(40))
                session.desktop.profile.setInterceptionEnabled(session.chance.percent(50));
            else if (session.chance.percent(40))
                session.keyboard.setLeftTwinHeld(
                    session.chance.percent(50) ? FKey::rightOption : FKey::rightCommand, session.chance.percent(50));
            else if (session.chance.percent(40))
                session.switchApplication();
            else if (session.chance.percent(50))
                session.editAMapping();
            else
                session.changePermission();
            session.wait(200);
            if (step % 50 == 0) {
                session.keyboard.releaseEverything();
                session.keyboard.settle();
                const FKeySet held = session.heldInTheFunnel();
                remained += held.size();
                EXPECT_EQ(names(FKeySet::fromBits(held.bits() & ~session.keyboard.unendedKeys().bits())), "");
            }
        }
        EXPECT_EQ(session.keyboard.brokenPromises(), 0);
        session.expectThatNoKeyIsStuck();
    });
    EXPECT_GT(remained, 0U) << "no release went unheard, so nothing was tried";
}

TEST(RouterFuzz, noEventWhateverItHoldsLeavesAKeyStuck)
{
    forEachSeed([](FuzzedSession& session) {
        constexpr auto pages = std::to_array<std::uint32_t>({1, 7, 12, 0xFF01});
        constexpr std::uint64_t usages = 700;
        for (int step = 0; step < 300; ++step) {
            switch (session.chance.below(9)) {
            case 0:
                session.desktop.global(session.anyEvent());
                break;
            case 1:
                std::ignore = session.desktop.local(session.anyEvent());
                break;
            case 2:
                session.desktop.hid(session.chance.oneOf(pages),
                    static_cast<std::uint32_t>(session.chance.below(usages)),
                    static_cast<std::int64_t>(session.chance.below(4)) - 1);
                break;
            case 3:
                session.editAMapping();
                break;
            case 4:
                session.switchApplication();
                break;
            case 5:
                session.desktop.profile.setInterceptionEnabled(session.chance.percent(80));
                break;
            default:
                session.keyboard.offer(
                    session.chance.percent(50) ? TapLocation::hid : TapLocation::session, session.anyEvent());
            }
            session.wait(150);
        }
        EXPECT_EQ(session.keyboard.brokenPromises(), 0);
        session.expectThatNoKeyIsStuck();
    });
}

} // namespace tarvin::test
