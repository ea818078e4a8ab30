#include "interception/support/InputEvents.h"
#include "interception/support/InterceptionDesktop.h"
#include "interception/support/Printers.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

// What the consuming paths are told to take away, beside what they take away.

namespace tarvin::test {

using namespace simulated;

class ConsumedKeysTest : public testing::Test
{
protected:
    SimulatedInputTaps& taps() { return desktop.platform.inputTaps(); }

    InterceptionDesktop desktop;
};

TEST_F(ConsumedKeysTest, theConsumedKeysAreToldBeforeTheFirstTapExists)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.platform.effects().clear();
    desktop.manager();
    ASSERT_TRUE(std::holds_alternative<ConsumedKeysPublished>(desktop.platform.effects().effects().front().what));
    EXPECT_EQ(taps().publishedKeys(), FKeySet{FKey::f5});
    EXPECT_EQ(taps().publishedSummon(), SummonShortcut::taken);
}

TEST_F(ConsumedKeysTest, theConsumedKeysAreToldAtEachChange)
{
    desktop.manager();
    EXPECT_EQ(taps().publishedKeys(), FKeySet());
    desktop.map(FKey::f5, KeyAction::mute);
    EXPECT_EQ(taps().publishedKeys(), FKeySet{FKey::f5});
    desktop.map(FKey::capsLock, KeyAction::mute);
    EXPECT_EQ(taps().publishedKeys(), (FKeySet{FKey::f5, FKey::capsLock}));
    desktop.profile.setFunctionKeysEnabled(false);
    EXPECT_EQ(taps().publishedKeys(), FKeySet{FKey::capsLock});
    desktop.profile.resetToDefault(FKey::capsLock);
    EXPECT_EQ(taps().publishedKeys(), FKeySet());
}

TEST_F(ConsumedKeysTest, withTheMasterSwitchOffOnlyTheSummonShortcutIsConsumed)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.manager();
    desktop.profile.setInterceptionEnabled(false);
    EXPECT_EQ(taps().publishedKeys(), FKeySet());
    EXPECT_EQ(taps().publishedSummon(), SummonShortcut::taken);
}

TEST_F(ConsumedKeysTest, theSwitchOfTheSummonShortcutIsToldOn)
{
    desktop.studio.summonEnabled = false;
    desktop.manager();
    EXPECT_EQ(taps().publishedSummon(), SummonShortcut::released);
    desktop.studio.summonEnabled = true;
    desktop.manager().publishConsumedKeys();
    EXPECT_EQ(taps().publishedSummon(), SummonShortcut::taken);
}

TEST_F(ConsumedKeysTest, whatIsToldIsWhatTheTapsConsume)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.map(FKey::section, KeyAction::mute);
    desktop.manager();
    for (const FKey key : allFKeys) {
        EXPECT_EQ(desktop.tap(keyRepeat(key)) == EventVerdict::consume, taps().publishedKeys().contains(key))
            << rawValue(key).toUtf8().constData();
    }
}

TEST_F(ConsumedKeysTest, anotherProfileMayBeAskedInstead)
{
    InterceptionDesktop other;
    other.map(FKey::f6, KeyAction::copy);
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.manager().setKeyProfile(other.profile);
    EXPECT_EQ(&desktop.manager().keyProfile(), &other.profile);
    EXPECT_EQ(taps().publishedKeys(), FKeySet{FKey::f6});
    EXPECT_EQ(desktop.play("tap +F5 | tap +F6"), "copy");
    desktop.platform.effects().clear();
    desktop.map(FKey::f7, KeyAction::mute);
    EXPECT_EQ(desktop.platform.effects().count<ConsumedKeysPublished>(), 0U);
    other.map(FKey::f8, KeyAction::mute);
    EXPECT_EQ(taps().publishedKeys(), (FKeySet{FKey::f6, FKey::f8}));
    desktop.destroyManager();
}

} // namespace tarvin::test
