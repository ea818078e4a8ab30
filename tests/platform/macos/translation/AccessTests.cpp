#include "platform/macos/translation/AccessibilityOutcome.h"
#include "platform/macos/translation/DefaultsTool.h"
#include "platform/macos/translation/LaunchEvent.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin::macos {

namespace {

TEST(DefaultsTool, readsTheSettingOfAllApplications)
{
    EXPECT_EQ(readFunctionKeySetting(),
        (ToolLaunch{u"/usr/bin/defaults"_qs, {u"read"_qs, u"-g"_qs, u"com.apple.keyboard.fnState"_qs}}));
}

TEST(DefaultsTool, writesTheSettingAsATruthValue)
{
    const QStringList common{u"write"_qs, u"-g"_qs, u"com.apple.keyboard.fnState"_qs, u"-bool"_qs};
    EXPECT_EQ(writeFunctionKeySetting(true), (ToolLaunch{u"/usr/bin/defaults"_qs, common + QStringList(u"true"_qs)}));
    EXPECT_EQ(writeFunctionKeySetting(false), (ToolLaunch{u"/usr/bin/defaults"_qs, common + QStringList(u"false"_qs)}));
}

TEST(LaunchEvent, onlyTheOpeningOfALoginItemIsOne)
{
    EXPECT_TRUE(isLoginItemStart(LaunchEvent{.eventId = 0x6F617070, .openedAs = 0x6C676974}));
    EXPECT_FALSE(isLoginItemStart(LaunchEvent{.eventId = 0x6F617070, .openedAs = std::nullopt}));
    EXPECT_FALSE(isLoginItemStart(LaunchEvent{.eventId = 0x6F617070, .openedAs = 0x73766974})) << "a service";
    EXPECT_FALSE(isLoginItemStart(LaunchEvent{.eventId = 0x72617070, .openedAs = 0x6C676974})) << "opened again";
    EXPECT_FALSE(isLoginItemStart(std::nullopt)) << "started from a shell";
}

TEST(AccessibilityOutcome, aValueCountsOnlyIfTheReadingSucceeded)
{
    EXPECT_EQ(readValue(0, std::optional(true)), true);
    EXPECT_EQ(readValue(0, std::optional<bool>()), std::nullopt) << "of another kind";
    EXPECT_EQ(readValue(-25212, std::optional(true)), std::nullopt) << "no value";
    EXPECT_EQ(readValue(-25211, std::optional(false)), std::nullopt) << "not allowed";
}

} // namespace

} // namespace tarvin::macos
