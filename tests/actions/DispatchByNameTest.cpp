#include "actions/support/ActionsDesktop.h"
#include "actions/support/ExpectedActions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

struct DispatchByNameTest : testing::Test
{
    DispatchByNameTest() { desktop.platform.pointer().setPosition({30, 40}); }

    ActionsDesktop desktop;
};

TEST(DispatchTableTest, everyActionIsExpectedToDoSomethingDefinite)
{
    ASSERT_EQ(expectedActions().size(), keyActionCount);
    for (std::size_t position = 0; position < keyActionCount; ++position)
        EXPECT_EQ(expectedActions()[position].action, allKeyActions[position]);
}

TEST_F(DispatchByNameTest, everyActionDoesWhatItIsExpectedToAndCountsNothing)
{
    for (const ExpectedAction& expected : expectedActions()) {
        SCOPED_TRACE(rawValue(expected.action).toString().toStdString());
        EXPECT_EQ(desktop.run(expected.action), expected.lines);
    }
}

TEST_F(DispatchByNameTest, onlySomeActionsWaitForTheApplicationBehindTheProgram)
{
    for (const ExpectedAction& expected : expectedActions()) {
        SCOPED_TRACE(rawValue(expected.action).toString().toStdString());
        desktop.bringSelfToFront();
        const QStringList seen = desktop.run(expected.action);
        switch (expected.expectation) {
        case Expectation::direct:
            EXPECT_EQ(seen, expected.lines);
            break;
        case Expectation::prepared:
            EXPECT_EQ(seen, lines({"0 activate Safari"}) + delayed(expected.lines, 80));
            break;
        }
    }
}

TEST_F(DispatchByNameTest, aNoticeWaitsWithItsKeystroke)
{
    desktop.bringSelfToFront();
    desktop.executor.execute(KeyAction::copy);
    desktop.platform.scheduler().advance(std::chrono::milliseconds(79));
    EXPECT_EQ(desktop.notice.lastTriggeredInfo(), std::nullopt);
    desktop.platform.scheduler().advance(std::chrono::milliseconds(1));
    EXPECT_EQ(desktop.notice.lastTriggeredInfo(), u"Copied (⌘C)"_qs);
}

TEST_F(DispatchByNameTest, windowsAreMovedOnALaterTurn)
{
    for (const KeyAction action : {KeyAction::snapWindowLeft, KeyAction::snapWindowRight, KeyAction::snapWindowMaximize,
             KeyAction::minimizeWindow, KeyAction::toggleFullscreen}) {
        SCOPED_TRACE(rawValue(action).toString().toStdString());
        desktop.platform.effects().clear();
        desktop.executor.execute(action);
        EXPECT_TRUE(desktop.platform.effects().effects().empty());
        desktop.platform.scheduler().runPosted();
        EXPECT_EQ(desktop.platform.effects().effects().size(), 1U);
    }
}

TEST_F(DispatchByNameTest, aPanelThatIsOpenIsClosed)
{
    for (const KeyAction action :
        {KeyAction::showActionsRing, KeyAction::clipboardHistory, KeyAction::floatingScratchpad}) {
        const QString shown = desktop.run(action).join(u'|');
        const QString hidden = desktop.run(action).join(u'|');
        EXPECT_EQ(QString(shown).replace(u"show"_qs, u"hide"_qs), hidden);
        EXPECT_NE(shown, hidden);
        EXPECT_EQ(desktop.run(action).join(u'|'), shown);
    }
}

TEST_F(DispatchByNameTest, theNamedFormsAreTheActionsOfTheirNames)
{
    struct NamedForm
    {
        void (ActionExecutor::*form)();
        KeyAction action;
    };
    for (const NamedForm& named : std::initializer_list<NamedForm>{
             {&ActionExecutor::executeBack, KeyAction::back},
             {&ActionExecutor::executeRefresh, KeyAction::refresh},
             {&ActionExecutor::executeCopy, KeyAction::copy},
             {&ActionExecutor::executePaste, KeyAction::paste},
             {&ActionExecutor::executeCut, KeyAction::cut},
             {&ActionExecutor::executeUndo, KeyAction::undo},
             {&ActionExecutor::executeRedo, KeyAction::redo},
             {&ActionExecutor::executeSelectAll, KeyAction::selectAll},
             {&ActionExecutor::executeMissionControl, KeyAction::missionControl},
             {&ActionExecutor::executeSpotlight, KeyAction::spotlight},
             {&ActionExecutor::executeMinimizeWindow, KeyAction::minimizeWindow},
             {&ActionExecutor::executeToggleFullscreen, KeyAction::toggleFullscreen},
             {&ActionExecutor::toggleMute, KeyAction::mute},
         }) {
        SCOPED_TRACE(rawValue(named.action).toString().toStdString());
        EXPECT_EQ(desktop.transcriptOf([&] { (desktop.executor.*named.form)(); }), desktop.run(named.action));
    }
}

TEST_F(DispatchByNameTest, theSameKeyIsAskedForByScriptAfterItWasPosted)
{
    // The script starts on a queue of its own, so whatever the calling turn still does comes before it.
    EXPECT_THAT(desktop.run(KeyAction::dictation),
        testing::ElementsAre(
            u"0 down 96"_qs, u"0 script tell application \"System Events\" to key code 96"_qs, u"15 up 96"_qs));
    desktop.platform.effects().clear();
    desktop.executor.execute(KeyAction::doNotDisturb);
    EXPECT_EQ(desktop.platform.effects().count<simulated::KeyPosted>(), 1U);
    EXPECT_EQ(desktop.platform.effects().count<simulated::ScriptRun>(), 0U);
}

TEST_F(DispatchByNameTest, aFailingScriptIsOfNoInterest)
{
    desktop.platform.scripts().setResult({.error = u"not authorised"_qs, .text = {}});
    EXPECT_THAT(desktop.run(KeyAction::spotlight), testing::Contains(u"0 notice Spotlight"_qs));
    desktop.platform.scripts().setCanBuild(false);
    EXPECT_THAT(desktop.run(KeyAction::spotlight), testing::Contains(u"15 up 49 command"_qs));
}

TEST_F(DispatchByNameTest, theNoticeIsShownEvenIfTheSystemDropsTheKeystroke)
{
    desktop.platform.permission().setTrusted(false);
    EXPECT_THAT(desktop.run(KeyAction::copy), testing::Contains(u"0 notice Copied (⌘C)"_qs));
    desktop.platform.poster().setCanMakeKey(9, false);
    EXPECT_EQ(desktop.run(KeyAction::paste), lines({"0 notice Pasted (⌘V)"}));
}

TEST_F(DispatchByNameTest, aNoticeGoesAwayAfterThreeSeconds)
{
    desktop.executor.execute(KeyAction::keyboardShortcut);
    desktop.platform.scheduler().advance(std::chrono::milliseconds(2999));
    EXPECT_EQ(desktop.notice.lastTriggeredInfo(), u"Shortcut triggered"_qs);
    desktop.platform.scheduler().advance(std::chrono::milliseconds(1));
    EXPECT_EQ(desktop.notice.lastTriggeredInfo(), std::nullopt);
}

TEST_F(DispatchByNameTest, aNoticeOverwritesTheLineOfThePressThatCausedIt)
{
    desktop.notice.recordTrigger(FKey::f5, u"Copy"_qs);
    desktop.executor.execute(KeyAction::copy);
    EXPECT_EQ(desktop.notice.lastTriggeredInfo(), u"Copied (⌘C)"_qs);
}

} // namespace

} // namespace tarvin::test
