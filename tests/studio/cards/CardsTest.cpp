#include "studio/cards/ActionChainCard.h"
#include "studio/cards/CardDesktop.h"
#include "studio/cards/CardHeader.h"
#include "studio/cards/ChoiceGroups.h"
#include "studio/cards/KeyboardShortcutCard.h"
#include "studio/cards/TextCards.h"

namespace tarvin {

namespace {

using testing::ElementsAre;

class Cards : public CardDesktop
{ };

TEST_F(Cards, thereIsOneForEveryActionThatNeedsMoreThanAClick)
{
    EXPECT_EQ(parameterCardRows.size(), 10U);
    EXPECT_EQ(cardOf(KeyAction::quickAppFlip), ParameterCard::quickAppFlip);
    EXPECT_EQ(cardOf(KeyAction::mute), std::nullopt);
    EXPECT_EQ(title(actionOf(ParameterCard::actionChain)), u"Action Chain (Macro)");
    EXPECT_EQ(icon(actionOf(ParameterCard::forceQuit)), u"xmark.octagon.fill");
}

TEST_F(Cards, changingTheActionAndReturningKeepsTheParameters)
{
    chooseCard(ParameterCard::screenCapture, record);
    choiceGroups(ParameterCard::screenCapture, record)[0].choose(1);
    chooseCard(ParameterCard::openWebURL, record);
    setFieldText(*textCardOf(ParameterCard::openWebURL), record, u"https://example.org"_qs);
    chooseCard(ParameterCard::screenCapture, record);
    EXPECT_EQ(config().screenCaptureMode, ScreenCaptureMode::window);
    chooseCard(ParameterCard::openWebURL, record);
    EXPECT_EQ(config().customURL, u"https://example.org");
}

TEST_F(Cards, theCaptureCardHasTwoGroups)
{
    const QList<ChoiceGroup> groups = choiceGroups(ParameterCard::screenCapture, record);
    ASSERT_EQ(groups.size(), 2);
    EXPECT_EQ(groups[0].heading, u"CAPTURE");
    EXPECT_EQ(groups[0].rows, (QStringList{u"Screen"_qs, u"Window"_qs, u"Region"_qs}));
    EXPECT_EQ(groups[0].selected, 2);
    EXPECT_EQ(groups[1].heading, u"SAVE TO");
    EXPECT_EQ(groups[1].rows, (QStringList{u"Clipboard"_qs, u"File"_qs}));
    EXPECT_EQ(groups[1].selected, 0);
}

TEST_F(Cards, aRowOfTheCaptureCardChoosesTheActionToo)
{
    choiceGroups(ParameterCard::screenCapture, record)[1].choose(1);
    EXPECT_EQ(config().action, KeyAction::screenCapture);
    EXPECT_EQ(config().screenCaptureDestination, ScreenCaptureDestination::file);
    EXPECT_EQ(config().screenCaptureMode, ScreenCaptureMode::region);
    EXPECT_EQ(choiceGroups(ParameterCard::screenCapture, record)[1].selected, 1);
}

TEST_F(Cards, theForceQuitCardHasTwoWays)
{
    const QList<ChoiceGroup> groups = choiceGroups(ParameterCard::forceQuit, record);
    ASSERT_EQ(groups.size(), 1);
    EXPECT_EQ(groups[0].heading, u"BEHAVIOR");
    EXPECT_EQ(groups[0].rows, (QStringList{u"Frontmost app"_qs, u"Force Quit dialog (⌥⌘⎋)"_qs}));
    groups[0].choose(1);
    EXPECT_EQ(config().action, KeyAction::forceQuit);
    EXPECT_EQ(config().forceQuitMode, ForceQuitMode::systemDialog);
}

TEST_F(Cards, aRowThatDoesNotExistChoosesNothing)
{
    choiceGroups(ParameterCard::forceQuit, record)[0].choose(2);
    choiceGroups(ParameterCard::forceQuit, record)[0].choose(-1);
    EXPECT_FALSE(profile().isCustomized(FKey::f5));
}

TEST_F(Cards, theWebCardBeginsWithAnAddress)
{
    const TextCard& card = *textCardOf(ParameterCard::openWebURL);
    EXPECT_EQ(fieldText(card, config()), card.defaultText);
    chooseCard(ParameterCard::openWebURL, record);
    EXPECT_EQ(config().action, KeyAction::openWebURL);
    EXPECT_EQ(config().customURL, card.defaultText);
}

TEST_F(Cards, anEmptiedFieldStaysEmptyUntilTheCardIsChosenAgain)
{
    const TextCard& card = *textCardOf(ParameterCard::textSnippet);
    chooseCard(ParameterCard::textSnippet, record);
    setFieldText(card, record, QString());
    EXPECT_EQ(fieldText(card, config()), u"");
    chooseCard(ParameterCard::textSnippet, record);
    EXPECT_EQ(fieldText(card, config()), card.defaultText);
}

TEST_F(Cards, everyChangeOfTheSnippetIsStored)
{
    const TextCard& card = *textCardOf(ParameterCard::textSnippet);
    chooseCard(ParameterCard::textSnippet, record);
    setFieldText(card, record, u"Dear"_qs);
    quit();
    EXPECT_EQ(profile().actionConfig(FKey::f5).textSnippet, u"Dear");
}

TEST_F(Cards, badgesCountKeysAndSteps)
{
    ConfiguredAction counted(KeyAction::keyboardShortcut);
    EXPECT_EQ(badge(ParameterCard::keyboardShortcut, counted), u"");
    EXPECT_EQ(badge(ParameterCard::actionChain, counted), u"0 STEPS");
    EXPECT_EQ(badge(ParameterCard::quickAppFlip, counted), u"INSTANT");
    EXPECT_EQ(badge(ParameterCard::forceQuit, counted), u"");
    counted.customShortcuts = {CustomShortcut{.keyCode = 8}, CustomShortcut{.keyCode = 9}};
    counted.chainSteps = {ActionChainStep{}};
    EXPECT_EQ(badge(ParameterCard::keyboardShortcut, counted), u"2 KEYS");
    EXPECT_EQ(badge(ParameterCard::actionChain, counted), u"1 STEPS");
}

TEST_F(Cards, cardsWithoutParametersDescribeThemselves)
{
    EXPECT_EQ(description(ParameterCard::clipboardHistory),
        u"Summons floating multi-copy HUD over any app. Press 1–9 or click to paste directly back into your front "
        u"app.");
    EXPECT_TRUE(description(ParameterCard::screenCapture).isEmpty());
}

TEST_F(Cards, theRecorderWritesTheListAndItsFirstKey)
{
    const ShortcutBinding binding = shortcutBinding(record);
    chooseCard(ParameterCard::keyboardShortcut, record);
    const CustomShortcut copy{.id = desktop.uuids().next(), .command = true, .keyCode = 8, .keyDisplay = u"C"_qs};
    const CustomShortcut paste{.id = desktop.uuids().next(), .command = true, .keyCode = 9, .keyDisplay = u"V"_qs};
    binding.setShortcuts({copy, paste});
    binding.setPlaybackMode(MultiKeyPlaybackMode::sequential);
    EXPECT_EQ(config().customShortcut, copy);
    EXPECT_THAT(binding.shortcuts(), ElementsAre(copy, paste));
    EXPECT_EQ(config().multiKeyMode, MultiKeyPlaybackMode::sequential);
    binding.setShortcuts({});
    EXPECT_EQ(config().customShortcut, std::nullopt);
    EXPECT_TRUE(binding.shortcuts().isEmpty());
}

TEST_F(Cards, theChainGrowsByItsThreeButtons)
{
    chooseCard(ParameterCard::actionChain, record);
    for (const NewChainStepRow& row : newChainStepRows)
        appendChainStep(record, row.step, desktop.uuids());
    EXPECT_THAT(chainStepRows(config()),
        ElementsAre(ChainStepRow{u"1"_qs, u"command", u"Shortcut: ⌘ C"_qs},
            ChainStepRow{u"2"_qs, u"clock.arrow.circlepath", u"Wait 200ms"_qs},
            ChainStepRow{u"3"_qs, u"character.cursor.ibeam", u"Text: \"console.log()\""_qs}));
    const QList<ActionChainStep> steps = config().chainSteps;
    EXPECT_EQ(steps[0].customShortcut->keyCode, 8);
    EXPECT_EQ(steps[0].delayMs, 200);
    EXPECT_EQ(steps[2].delayMs, 200);
    EXPECT_NE(steps[0].id, steps[1].id);
    EXPECT_EQ(steps[1].customShortcut, std::nullopt);
}

TEST_F(Cards, aStepIsTakenOutOfTheChain)
{
    chooseCard(ParameterCard::actionChain, record);
    appendChainStep(record, NewChainStep::delay, desktop.uuids());
    appendChainStep(record, NewChainStep::text, desktop.uuids());
    removeChainStep(record, 2);
    removeChainStep(record, -1);
    EXPECT_EQ(config().chainSteps.size(), 2);
    removeChainStep(record, 0);
    ASSERT_EQ(config().chainSteps.size(), 1);
    EXPECT_EQ(config().chainSteps[0].type, ActionChainStepType::textSnippet);
}

} // namespace

} // namespace tarvin
