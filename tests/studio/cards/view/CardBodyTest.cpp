#include "studio/cards/ActionChainCard.h"
#include "studio/cards/CardHeader.h"
#include "studio/cards/TextCards.h"
#include "studio/cards/view/CardScene.h"
#include "studio/cards/view/ChoiceRow.h"
#include "studio/support/Controls.h"
#include "support/QtPrinters.h"
#include "ui/TextField.h"

#include <QApplication>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin {

namespace {

using test::buttonNamed;
using test::hasButton;
using testing::ElementsAre;

/// One card's body, as wide as in the picker.
class CardBody : public testing::Test
{
protected:
    QWidget& open(ParameterCard card)
    {
        body.reset(makeCardBody(card, scene.with, nullptr));
        body->resize(268, body->hasHeightForWidth() ? body->heightForWidth(268) : body->sizeHint().height());
        body->show();
        QApplication::setActiveWindow(body.get());
        return *body;
    }
    void click(const QString& name) { buttonNamed(*body, name).click(); }
    [[nodiscard]] QStringList chosen() const
    {
        QStringList names;
        const auto rows = body->findChildren<ChoiceRow*>();
        for (ChoiceRow* const row : rows) {
            if (row->isChecked())
                names += test::spokenName(*row);
        }
        return names;
    }
    [[nodiscard]] TextField& field() const { return *body->findChild<TextField*>(); }
    /// The rows of the steps.
    [[nodiscard]] QStringList steps() const
    {
        QStringList names;
        const auto widgets = body->findChildren<QWidget*>();
        for (const QWidget* const widget : widgets) {
            if (widget->isVisibleTo(body.get()) && widget->accessibleName().startsWith(u"Step "))
                names += widget->accessibleName();
        }
        return names;
    }

    test::CardScene scene;
    std::unique_ptr<QWidget> body;
};

TEST_F(CardBody, theCaptureCardChoosesWhatIsTakenAndWhereItGoes)
{
    open(ParameterCard::screenCapture);
    EXPECT_EQ(test::shownTexts(*body), (QStringList{u"CAPTURE"_qs, u"SAVE TO"_qs}));
    EXPECT_EQ(chosen(), (QStringList{u"Region"_qs, u"Clipboard"_qs}));
    constexpr std::pair<QStringView, ScreenCaptureMode> modes[] = {{u"Screen", ScreenCaptureMode::screen},
        {u"Window", ScreenCaptureMode::window}, {u"Region", ScreenCaptureMode::region}};
    for (const auto& [name, mode] : modes) {
        click(name.toString());
        EXPECT_EQ(scene.config().screenCaptureMode, mode);
        EXPECT_EQ(chosen(), (QStringList{name.toString(), u"Clipboard"_qs}));
    }
    EXPECT_EQ(scene.config().action, KeyAction::screenCapture);
    click(u"File"_qs);
    EXPECT_EQ(scene.config().screenCaptureDestination, ScreenCaptureDestination::file);
    EXPECT_EQ(chosen(), (QStringList{u"Region"_qs, u"File"_qs}));
}

TEST_F(CardBody, theForceQuitCardChoosesTheWay)
{
    open(ParameterCard::forceQuit);
    EXPECT_EQ(test::shownTexts(*body), QStringList{u"BEHAVIOR"_qs});
    click(u"Force Quit dialog (⌥⌘⎋)"_qs);
    EXPECT_EQ(scene.config().action, KeyAction::forceQuit);
    EXPECT_EQ(scene.config().forceQuitMode, ForceQuitMode::systemDialog);
    click(u"Frontmost app"_qs);
    EXPECT_EQ(scene.config().forceQuitMode, ForceQuitMode::activeApp);
}

TEST_F(CardBody, theArrowKeysChooseAmongTheRowsOfAGroup)
{
    open(ParameterCard::screenCapture);
    buttonNamed(*body, u"Region"_qs).setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    EXPECT_EQ(scene.config().screenCaptureMode, ScreenCaptureMode::window);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(test::spokenName(*QApplication::focusWidget()), u"Clipboard");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_EQ(scene.config().screenCaptureDestination, ScreenCaptureDestination::file);
    EXPECT_EQ(scene.config().screenCaptureMode, ScreenCaptureMode::window);
}

TEST_F(CardBody, returnChoosesARow)
{
    open(ParameterCard::forceQuit);
    QAbstractButton& row = buttonNamed(*body, u"Force Quit dialog (⌥⌘⎋)"_qs);
    row.setFocus();
    QTest::keyClick(&row, Qt::Key_Return);
    EXPECT_EQ(scene.config().forceQuitMode, ForceQuitMode::systemDialog);
}

TEST_F(CardBody, rowsAreRadioButtonsForAssistiveTechnology)
{
    open(ParameterCard::forceQuit);
    QAccessibleInterface* const row = QAccessible::queryAccessibleInterface(&buttonNamed(*body, u"Frontmost app"_qs));
    EXPECT_EQ(row->role(), QAccessible::RadioButton);
    EXPECT_TRUE(row->state().checked);
    test::activate(buttonNamed(*body, u"Force Quit dialog (⌥⌘⎋)"_qs));
    EXPECT_EQ(scene.config().forceQuitMode, ForceQuitMode::systemDialog);
}

TEST_F(CardBody, aRowFollowsWhatOthersWrite)
{
    chooseCard(ParameterCard::forceQuit, scene.record);
    open(ParameterCard::forceQuit);
    scene.record.change([](ConfiguredAction& config) { config.forceQuitMode = ForceQuitMode::systemDialog; });
    EXPECT_EQ(chosen(), QStringList{u"Force Quit dialog (⌥⌘⎋)"_qs});
    scene.profile.setCurrentProfile(AppProfile::presets()[1]);
    EXPECT_EQ(chosen(), QStringList{u"Frontmost app"_qs});
}

TEST_F(CardBody, aTextIsStoredAtEachKeystroke)
{
    chooseCard(ParameterCard::openWebURL, scene.record);
    open(ParameterCard::openWebURL);
    EXPECT_EQ(field().placeholderText(), u"https://...");
    EXPECT_EQ(field().text(), textCardOf(ParameterCard::openWebURL)->defaultText);
    field().selectAll();
    QTest::keyClicks(&field(), u"a.b"_qs);
    EXPECT_EQ(scene.config().customURL, u"a.b");
    QTest::keyClick(&field(), Qt::Key_Backspace);
    EXPECT_EQ(scene.config().customURL, u"a.");
    field().setCursorPosition(0);
    QTest::keyClicks(&field(), u"xy"_qs);
    EXPECT_EQ(scene.config().customURL, u"xya.") << "the cursor stays where the user types";
}

TEST_F(CardBody, aTextThatIsMissingShowsTheDefaultAndIsNotStoredByShowingIt)
{
    scene.record.choose(KeyAction::textSnippet);
    open(ParameterCard::textSnippet);
    EXPECT_EQ(field().text(), textCardOf(ParameterCard::textSnippet)->defaultText);
    EXPECT_EQ(field().placeholderText(), u"Enter text or signature...");
    EXPECT_EQ(scene.config().textSnippet, std::nullopt);
    field().clear();
    EXPECT_EQ(scene.config().textSnippet, QString());
}

TEST_F(CardBody, aTextOfSeveralLinesIsLeftAsItIsUntilItIsEdited)
{
    const QString lines = u"Dear all,\n\tkind regards\r\n"_qs;
    scene.record.change([&](ConfiguredAction& config) {
        config.action = KeyAction::textSnippet;
        config.textSnippet = lines;
    });
    open(ParameterCard::textSnippet);
    EXPECT_EQ(scene.config().textSnippet, lines);
    scene.profile.setCurrentProfile(AppProfile::presets()[1]);
    scene.profile.setCurrentProfile(AppProfile::global());
    EXPECT_EQ(scene.config().textSnippet, lines);
}

TEST_F(CardBody, aLongTextIsShownInFull)
{
    const QString text(40000, u'x');
    scene.record.change([&](ConfiguredAction& config) {
        config.action = KeyAction::textSnippet;
        config.textSnippet = text;
    });
    open(ParameterCard::textSnippet);
    EXPECT_EQ(field().text(), text);
}

TEST_F(CardBody, aTextFieldHasANameOfItsOwn)
{
    open(ParameterCard::openWebURL);
    EXPECT_EQ(test::spokenName(field()), u"Website address");
    open(ParameterCard::textSnippet);
    EXPECT_EQ(test::spokenName(field()), u"Text to insert");
}

TEST_F(CardBody, pillsAppendStepsAndTheTrashRemovesThem)
{
    chooseCard(ParameterCard::actionChain, scene.record);
    open(ParameterCard::actionChain);
    EXPECT_EQ(steps(), QStringList());
    click(u"+ Shortcut"_qs);
    click(u"+ 200ms Delay"_qs);
    click(u"+ Text"_qs);
    EXPECT_EQ(steps(),
        (QStringList{u"Step 1: Shortcut: ⌘ C"_qs, u"Step 2: Wait 200ms"_qs, u"Step 3: Text: \"console.log()\""_qs}));
    EXPECT_EQ(scene.config().chainSteps.size(), 3);
    click(u"Remove step 2"_qs);
    EXPECT_EQ(steps(), (QStringList{u"Step 1: Shortcut: ⌘ C"_qs, u"Step 2: Text: \"console.log()\""_qs}));
    EXPECT_EQ(scene.config().chainSteps[1].type, ActionChainStepType::textSnippet);
    click(u"Remove step 1"_qs);
    click(u"Remove step 1"_qs);
    EXPECT_EQ(steps(), QStringList());
    EXPECT_TRUE(scene.config().chainSteps.isEmpty());
}

TEST_F(CardBody, aStepThatGoesLeavesTheKeyboardInTheCard)
{
    open(ParameterCard::actionChain);
    click(u"+ Text"_qs);
    click(u"+ Text"_qs);
    buttonNamed(*body, u"Remove step 1"_qs).setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(test::spokenName(*QApplication::focusWidget()), u"Remove step 1");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(test::spokenName(*QApplication::focusWidget()), u"+ Shortcut");
}

TEST_F(CardBody, stepsWrittenByOthersAreShown)
{
    open(ParameterCard::actionChain);
    appendChainStep(scene.record, NewChainStep::delay, scene.platform.uuids());
    EXPECT_EQ(steps(), QStringList{u"Step 1: Wait 200ms"_qs});
    scene.profile.resetToDefault(FKey::f5);
    EXPECT_EQ(steps(), QStringList());
}

TEST_F(CardBody, theShortcutCardRecordsIntoTheKeysRecord)
{
    chooseCard(ParameterCard::keyboardShortcut, scene.record);
    open(ParameterCard::keyboardShortcut);
    click(u"Record sequence"_qs);
    auto& keyboard = scene.platform.keyRecording();
    keyboard.press({.keyCode = 8, .flags = EventFlags::command, .characters = u"c"_qs});
    keyboard.press({.keyCode = 9, .flags = EventFlags::command, .characters = u"v"_qs});
    click(u"Done"_qs);
    click(u"In sequence"_qs);
    EXPECT_EQ(scene.config().customShortcuts.size(), 2);
    EXPECT_EQ(scene.config().customShortcut, scene.config().customShortcuts.first());
    EXPECT_EQ(scene.config().multiKeyMode, MultiKeyPlaybackMode::sequential);
    scene.profile.resetToDefault(FKey::f5);
    EXPECT_TRUE(hasButton(*body, u"Click to record shortcut"_qs)) << "it follows the record";
}

TEST_F(CardBody, theBodyMayGoWhileItRecords)
{
    open(ParameterCard::keyboardShortcut);
    click(u"Click to record shortcut"_qs);
    EXPECT_TRUE(scene.platform.keyRecording().isRecording());
    body.reset();
    EXPECT_FALSE(scene.platform.keyRecording().isRecording());
}

TEST_F(CardBody, aSequenceGoesOnThoughEachKeyIsStored)
{
    open(ParameterCard::keyboardShortcut);
    const std::unique_ptr<QWidget> twin(makeCardBody(ParameterCard::keyboardShortcut, scene.with, nullptr));
    twin->show();
    click(u"Record sequence"_qs);
    scene.platform.keyRecording().press({.keyCode = 8, .flags = EventFlags::none, .characters = u"c"_qs});
    twin->hide();
    EXPECT_TRUE(scene.platform.keyRecording().isRecording());
}

TEST_F(CardBody, cardsWithoutParametersSayWhatTheyDo)
{
    for (const ParameterCard card :
        {ParameterCard::clipboardHistory, ParameterCard::quickAppFlip, ParameterCard::floatingScratchpad}) {
        open(card);
        EXPECT_EQ(test::shownTexts(*body), QStringList{description(card).toString()});
    }
}

TEST_F(CardBody, everyTextHasTheHeightThatItNeedsAtTheWidthOfThePicker)
{
    for (const ParameterCardRow& row : parameterCardRows) {
        open(row.card);
        QTest::qWait(0);
        const auto labels = body->findChildren<QLabel*>();
        for (const QLabel* const label : labels) {
            if (!label->isVisibleTo(body.get()) || !label->hasHeightForWidth())
                continue;
            EXPECT_GE(label->height(), label->heightForWidth(label->width())) << label->text().toStdString();
        }
    }
}

} // namespace

} // namespace tarvin
