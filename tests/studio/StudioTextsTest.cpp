#include "studio/StudioTexts.h"

#include "ui/Palette.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin {

using palette::mintTeal;
using palette::orange;
using palette::white;

TEST(StatusMessages, tellHowManyKeysOfTheProfileAreCustomised)
{
    const StatusMessage some = profileMessage(6, u"All Applications");
    EXPECT_EQ(some.text, u"6 customized for All Applications"_qs);
    EXPECT_EQ(some.dot, mintTeal);
    EXPECT_EQ(some.dotSize, 5);
    EXPECT_EQ(some.textColour, white.at(0.75));
    EXPECT_EQ(profileMessage(0, u"Safari").dot, white.at(0.3));
    EXPECT_EQ(profileMessage(0, u"Safari").text, u"0 customized for Safari"_qs);
}

TEST(StatusMessages, tellOfTheFunctionKeys)
{
    const StatusMessage active = functionKeysMessage(4, true);
    EXPECT_EQ(active.text, u"F1–F12: 4/12"_qs);
    EXPECT_EQ(active.dot, mintTeal.at(0.9));
    EXPECT_EQ(active.textColour, mintTeal.at(0.9));
    EXPECT_EQ(active.dotSize, 4.5);
    EXPECT_EQ(active.tooltip, u"Function keys (F1–F12) customization status: 4 customized of 12 available."_qs);
    const StatusMessage paused = functionKeysMessage(4, false);
    EXPECT_EQ(paused.text, u"F1–F12: 4/12 (Paused)"_qs);
    EXPECT_EQ(paused.dot, orange.at(0.9));
    EXPECT_EQ(paused.textColour, orange.at(0.9));
}

TEST(StatusMessages, tellOfTheOtherKeys)
{
    EXPECT_EQ(otherKeysMessage(2, true).text, u"Other: 2/5"_qs);
    EXPECT_EQ(otherKeysMessage(2, false).text, u"Other: 2/5 (Paused)"_qs);
    EXPECT_EQ(otherKeysMessage(2, true).tooltip,
        u"Other customizable keys (Caps Lock, Globe/Fn, Right Option, Right Command): 2 customized of 5 available."_qs);
}

TEST(StatusMessages, aPausedGroupWithoutACustomisedKeySaysSoInMutedColours)
{
    for (const StatusMessage& message : {functionKeysMessage(0, false), otherKeysMessage(0, false)}) {
        EXPECT_TRUE(message.text.endsWith(u" (Paused)"));
        EXPECT_EQ(message.dot, white.at(0.25));
        EXPECT_EQ(message.textColour, white.at(0.55));
    }
    EXPECT_EQ(functionKeysMessage(0, true).dot, white.at(0.25));
}

TEST(StatusMessages, tellOfTheEngine)
{
    EXPECT_EQ(engineMessage(true).text, u"Physical Interception Active"_qs);
    EXPECT_EQ(engineMessage(true).dot, mintTeal);
    EXPECT_EQ(engineMessage(false).text, u"Waiting for Authorization"_qs);
    EXPECT_EQ(engineMessage(false).dot, orange);
    EXPECT_EQ(engineMessage(false).textColour, white.at(0.6));
}

TEST(HookStatus, isMintWhileOnAndItsDotOnlyWhileTheEngineRuns)
{
    const HookStatus running = hookStatus(true, true);
    EXPECT_EQ(running.label, u"Custom Keys"_qs);
    EXPECT_EQ(running.tooltip, u"Tarvin active: Custom keys trigger"_qs);
    EXPECT_EQ(running.dot, mintTeal);
    EXPECT_EQ(running.labelColour, mintTeal);
    EXPECT_EQ(running.fill, mintTeal.at(0.06));
    EXPECT_EQ(running.stroke, mintTeal.at(0.35));
    EXPECT_EQ(hookStatus(true, false).dot, white.at(0.5));
    EXPECT_EQ(hookStatus(true, false).label, u"Custom Keys"_qs);
    const HookStatus off = hookStatus(false, true);
    EXPECT_EQ(off.label, u"Apple Defaults"_qs);
    EXPECT_EQ(off.tooltip, u"Tarvin off: Apple factory defaults active"_qs);
    EXPECT_EQ(off.dot, white.at(0.5));
    EXPECT_EQ(off.labelColour, white.at(0.65));
    EXPECT_EQ(off.fill, white.at(0.03));
    EXPECT_EQ(off.stroke, white.at(0.08));
}

TEST(BackgroundTexts, nameTheMode)
{
    const auto tip = [](StartupDockMode mode, BackgroundBehavior behavior) {
        return backgroundTooltip(mode, behavior);
    };
    EXPECT_EQ(tip(StartupDockMode::showInDock, BackgroundBehavior::menuBarOnly),
        u"Background Running Mode: Off (Standard Dock) • Click to configure"_qs);
    EXPECT_EQ(tip(StartupDockMode::hideFromDock, BackgroundBehavior::menuBarOnly),
        u"Background Running Mode: Menu Bar Only (Hide Dock Icon Always) • Click to configure"_qs);
    EXPECT_EQ(tip(StartupDockMode::hideFromDock, BackgroundBehavior::hideOnWindowClose),
        u"Background Running Mode: Hide from Dock When Window is Closed • Click to configure"_qs);
    EXPECT_EQ(tip(StartupDockMode::hideFromDock, BackgroundBehavior::stealthLowPower),
        u"Background Running Mode: Silent Stealth & Ultra-Low Power • Click to configure"_qs);
}

TEST(BackgroundTexts, theFooterPromisesZeroPowerInEveryMode)
{
    const auto line = [](StartupDockMode mode, BackgroundBehavior behavior) {
        return backgroundFooterText(mode, behavior);
    };
    for (const BackgroundBehavior behavior : allBackgroundBehaviors)
        EXPECT_EQ(line(StartupDockMode::showInDock, behavior), u"Background: OFF (Zero Power)"_qs);
    EXPECT_EQ(
        line(StartupDockMode::hideFromDock, BackgroundBehavior::menuBarOnly), u"Background: Default (Zero Power)"_qs);
    EXPECT_EQ(line(StartupDockMode::hideFromDock, BackgroundBehavior::hideOnWindowClose),
        u"Background: Adaptive (Zero Power)"_qs);
    EXPECT_EQ(line(StartupDockMode::hideFromDock, BackgroundBehavior::stealthLowPower),
        u"Background: Max Power Saving (Zero Power)"_qs);
    EXPECT_EQ(backgroundFooterSymbol(StartupDockMode::showInDock), Symbol(u"dock.rectangle"));
    EXPECT_EQ(backgroundFooterSymbol(StartupDockMode::hideFromDock), Symbol(u"bolt.shield.fill"));
    EXPECT_EQ(backgroundButtonSymbol(StartupDockMode::hideFromDock), Symbol(u"menubar.rectangle"));
}

TEST(QuickButtonTexts, sayWhatAClickDoes)
{
    EXPECT_EQ(backlightTooltip(u"85%"), u"Keyboard Backlight: 85% (Click to cycle)"_qs);
    EXPECT_EQ(soundTooltip(true), u"Key Click Sound: Active (Click to Mute)"_qs);
    EXPECT_EQ(soundTooltip(false), u"Key Click Sound: Muted (Click to Unmute)"_qs);
    EXPECT_EQ(soundSymbol(true), Symbol(u"speaker.wave.2.fill"));
    EXPECT_EQ(soundSymbol(false), Symbol(u"speaker.slash.fill"));
    EXPECT_EQ(resetTooltip(u"Safari"), u"Reset all function keys for Safari to Apple defaults"_qs);
}

} // namespace tarvin
