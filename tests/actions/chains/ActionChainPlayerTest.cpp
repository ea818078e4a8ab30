#include "actions/support/PerformingDesktop.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarvin::test {

namespace {

using namespace std::chrono_literals;

ActionChainStep key(KeyCode keyCode)
{
    return {.type = ActionChainStepType::shortcut,
        .customShortcut = CustomShortcut{.command = true, .keyCode = keyCode, .keyDisplay = u"K"_qs}};
}

ActionChainStep wait(std::int64_t milliseconds)
{
    return {.type = ActionChainStepType::delay, .delayMs = milliseconds};
}

ActionChainStep insertText(const QString& text)
{
    return {.type = ActionChainStepType::textSnippet, .textSnippet = text};
}

ActionChainStep address(const QString& text)
{
    return {.type = ActionChainStepType::openURL, .customURL = text};
}

ActionChainStep act(KeyAction action)
{
    return {.type = ActionChainStepType::keyAction, .keyAction = action};
}

class ActionChainPlayerTest : public testing::Test
{
protected:
    QStringList play(const QList<ActionChainStep>& steps)
    {
        ConfiguredAction config(KeyAction::actionChain);
        config.chainSteps = steps;
        const QStringList all = desktop.run(config);
        EXPECT_EQ(all.value(0), u"0 use action_chain"_qs);
        return all.mid(1);
    }

    PerformingDesktop desktop;
};

TEST_F(ActionChainPlayerTest, stepsFollowEachOtherAfterAGap)
{
    EXPECT_EQ(play({key(8), address(u"example.org"_qs), act(KeyAction::mute)}),
        lines({"0 notice Action Chain (3 steps)", "0 down 8 command recorded", "15 up 8 command recorded",
            "35 url https://example.org", "70 system mute down", "70 notice Mute Toggled"})
            + QStringList(scriptLine(70, ToggleOutputMute{})) + lines({"100 system mute up"}));
}

TEST_F(ActionChainPlayerTest, oneStepIsCalledStepsToo)
{
    EXPECT_EQ(play({key(8)}).first(), u"0 notice Action Chain (1 steps)"_qs);
}

TEST_F(ActionChainPlayerTest, withoutStepsTheChainIsEmpty)
{
    EXPECT_EQ(play({}), lines({"0 notice Action Chain is empty"}));
}

TEST_F(ActionChainPlayerTest, aDelayTakesThePlaceOfTheGapBehindIt)
{
    EXPECT_EQ(play({address(u"a.org"_qs), wait(100), address(u"b.org"_qs)}),
        lines({"0 notice Action Chain (3 steps)", "0 url https://a.org", "135 url https://b.org"}));
}

TEST_F(ActionChainPlayerTest, theShortestDelayIsTenMilliseconds)
{
    for (const std::int64_t milliseconds :
        {std::int64_t{0}, std::int64_t{-5}, std::int64_t{10}, std::numeric_limits<std::int64_t>::min()}) {
        EXPECT_EQ(play({wait(milliseconds), address(u"a.org"_qs)}).last(), u"10 url https://a.org"_qs);
    }
    EXPECT_EQ(play({wait(11), address(u"a.org"_qs)}).last(), u"11 url https://a.org"_qs);
}

TEST_F(ActionChainPlayerTest, aDelayBeyondAllMeasureEndsNothing)
{
    EXPECT_EQ(play({wait(std::numeric_limits<std::int64_t>::max()), address(u"a.org"_qs)}),
        lines({"0 notice Action Chain (2 steps)"}));
    desktop.platform.effects().clear();
    desktop.platform.scheduler().advance(std::chrono::hours(24 * 365));
    EXPECT_EQ(desktop.platform.effects().count<simulated::UrlOpened>(), 0U);
}

TEST_F(ActionChainPlayerTest, aDelayOfWeeksIsSleptWhole)
{
    constexpr auto delay = std::chrono::days(50);
    desktop.platform.effects().clear();
    desktop.actions.guarded.executeActionChain({wait(std::chrono::milliseconds(delay).count()), address(u"a.org"_qs)});
    desktop.platform.scheduler().advance(delay - 1ms);
    EXPECT_EQ(desktop.platform.effects().count<simulated::UrlOpened>(), 0U);
    desktop.platform.scheduler().advance(1ms);
    EXPECT_EQ(desktop.platform.effects().count<simulated::UrlOpened>(), 1U);
}

TEST_F(ActionChainPlayerTest, stepsWithoutTheirParameterDoNothingAndTakeTheirTime)
{
    EXPECT_EQ(play({{.type = ActionChainStepType::shortcut}, insertText(QString()), address(QString()),
                  {.type = ActionChainStepType::textSnippet}, {.type = ActionChainStepType::openURL},
                  {.type = ActionChainStepType::keyAction}, address(u"a.org"_qs)}),
        lines({"0 notice Action Chain (7 steps)", "210 url https://a.org"}));
}

TEST_F(ActionChainPlayerTest, aStepPlaysAShortcutThatNamesNoKey)
{
    EXPECT_EQ(play({{.type = ActionChainStepType::shortcut, .customShortcut = CustomShortcut{}}}),
        lines({"0 notice Action Chain (1 steps)", "0 down 0 recorded", "15 up 0 recorded"}));
}

TEST_F(ActionChainPlayerTest, aSnippetIsPastedAndItsClipboardComesBackOnItsOwn)
{
    desktop.platform.pasteboard().copy({.text = u"old"_qs});
    EXPECT_EQ(play({insertText(u"new"_qs), key(36)}),
        lines({"0 notice Action Chain (2 steps)", "0 clipboard new", "0 down 9 command", "15 up 9 command",
            "35 down 36 command recorded", "50 up 36 command recorded", "600 clipboard old"}));
}

TEST_F(ActionChainPlayerTest, whatFollowsAPasteWaitsForASlowClipboard)
{
    desktop.platform.pasteboard().setAnswerDelay(200ms);
    desktop.platform.pasteboard().copy({.text = u"old"_qs});
    EXPECT_EQ(play({insertText(u"new"_qs), key(36), wait(50), act(KeyAction::copy)}),
        lines({"0 notice Action Chain (4 steps)", "200 clipboard new", "200 down 9 command", "215 up 9 command",
            "235 down 36 command recorded", "250 up 36 command recorded", "320 down 8 command",
            "320 notice Copied (⌘C)", "335 up 8 command", "800 clipboard old"}));
}

TEST_F(ActionChainPlayerTest, behindTheProgramItselfAShortcutComesLaterThanTheNextStep)
{
    desktop.bringSelfToFront();
    EXPECT_EQ(play({key(8), address(u"a.org"_qs)}),
        lines({"0 notice Action Chain (2 steps)", "0 activate Safari", "35 url https://a.org",
            "80 down 8 command recorded", "95 up 8 command recorded"}));
}

TEST_F(ActionChainPlayerTest, aChainInAChainIsOnlyANotice)
{
    EXPECT_EQ(play({act(KeyAction::actionChain)}),
        lines({"0 notice Action Chain (1 steps)", "0 notice Action Chain triggered"}));
}

TEST_F(ActionChainPlayerTest, stepsHaveNoRecordAndCountNoUse)
{
    EXPECT_EQ(play({act(KeyAction::openApplication), act(KeyAction::screenshotArea)}),
        lines({"0 notice Action Chain (2 steps)", "0 notice No App Configured", "0 open /Applications",
            "35 tool /usr/sbin/screencapture -c -i"}));
}

TEST_F(ActionChainPlayerTest, twoChainsOverlap)
{
    EXPECT_EQ(desktop.transcriptOf([this] {
        desktop.actions.guarded.executeActionChain({address(u"a.org"_qs), wait(20), address(u"c.org"_qs)});
        desktop.actions.guarded.executeActionChain({wait(40), address(u"b.org"_qs)});
    }),
        lines({"0 notice Action Chain (3 steps)", "0 url https://a.org", "0 notice Action Chain (2 steps)",
            "40 url https://b.org", "55 url https://c.org"}));
}

TEST_F(ActionChainPlayerTest, theFirstStepWaitsForTheEndOfTheTurn)
{
    desktop.platform.effects().clear();
    desktop.actions.guarded.executeActionChain({address(u"a.org"_qs)});
    EXPECT_TRUE(desktop.platform.effects().effects().empty());
}

TEST_F(ActionChainPlayerTest, inTestSafeModeNothingIsPlayedAndNothingSaid)
{
    desktop.runInTestSafeMode();
    EXPECT_EQ(play({key(8), act(KeyAction::mute)}), lines({}));
    EXPECT_EQ(play({}), lines({}));
}

TEST_F(ActionChainPlayerTest, aModeThatComesUpMeanwhileHoldsBackTheRest)
{
    EXPECT_EQ(desktop.transcriptOf([this] {
        desktop.actions.guarded.executeActionChain(
            {wait(100), key(8), insertText(u"a"_qs), address(u"a.org"_qs), act(KeyAction::openWebURL)});
        desktop.platform.scheduler().advance(50ms);
        desktop.runInTestSafeMode();
    }),
        lines({"0 notice Action Chain (5 steps)"}));
}

} // namespace

} // namespace tarvin::test
