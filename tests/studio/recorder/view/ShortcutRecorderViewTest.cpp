#include "studio/recorder/view/ShortcutRecorderView.h"

#include "platform/simulated/SimulatedKeyRecording.h"
#include "platform/simulated/SimulatedScheduler.h"
#include "platform/simulated/SimulatedUuidGenerator.h"
#include "studio/recorder/RecorderTexts.h"
#include "studio/recorder/view/KeyRow.h"
#include "studio/recorder/view/PresetStrip.h"
#include "studio/support/Controls.h"
#include "support/QtPrinters.h"

#include <QApplication>
#include <QPushButton>
#include <QScrollBar>
#include <QSet>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin {

namespace {

using namespace std::chrono_literals;
using test::buttonNamed;
using test::hasButton;
using test::shownTexts;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

constexpr KeyCode keyA = 0;
constexpr KeyCode keyC = 8;
const QString addFirst = u"Click to record shortcut"_qs;
const QString addAnother = u"+ Add another key"_qs;
const QString sequence = u"Record sequence"_qs;
const QString reRecord = u"Re-record this key"_qs;
const QString removeKey = u"Remove this key"_qs;

/// The view as wide as in the picker, and a second control beside it.
class RecorderView : public testing::Test
{
protected:
    RecorderView()
    {
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(view);
        layout->addWidget(other);
        window.resize(268, 480);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    void click(const QString& name, qsizetype place = 0) { buttonNamed(*view, name, place).click(); }
    void press(KeyCode keyCode, const QString& characters, EventFlags flags = EventFlags::none)
    {
        keyboard.press({.keyCode = keyCode, .flags = flags, .characters = characters});
    }
    void recordThree() { recorder->apply(shortcutPresets[3]); }
    [[nodiscard]] QStringList rows() const { return test::spokenNames<KeyRow>(*view); }

    QList<CustomShortcut> list;
    MultiKeyPlaybackMode mode = MultiKeyPlaybackMode::simultaneous;
    simulated::SimulatedKeyRecording keyboard;
    simulated::SimulatedUuidGenerator uuids;
    simulated::SimulatedScheduler scheduler;
    int plays = 0;
    std::optional<ShortcutRecorder> recorder{std::in_place,
        ShortcutBinding{.shortcuts = [this] { return list; },
            .setShortcuts = [this](const QList<CustomShortcut>& shortcuts) { list = shortcuts; },
            .playbackMode = [this] { return mode; },
            .setPlaybackMode = [this](MultiKeyPlaybackMode chosen) { mode = chosen; },
            .onSave = [] {}},
        ShortcutRecorder::Collaborators{.keyRecording = keyboard,
            .uuids = uuids,
            .scheduler = scheduler,
            .play = [this](const QList<CustomShortcut>&, MultiKeyPlaybackMode) { ++plays; }}};
    QWidget window;
    ShortcutRecorderView* view = new ShortcutRecorderView(*recorder);
    QPushButton* other = new QPushButton(u"other"_qs);
};

TEST_F(RecorderView, withoutKeysItOffersRecordingAndPresetsAlone)
{
    EXPECT_TRUE(hasButton(*view, addFirst));
    EXPECT_TRUE(hasButton(*view, sequence));
    EXPECT_FALSE(hasButton(*view, u"Clear"_qs));
    EXPECT_FALSE(hasButton(*view, u"All at once"_qs));
    EXPECT_EQ(rows(), QStringList());
    EXPECT_THAT(shownTexts(*view),
        ElementsAre(u"QUICK MULTI-KEY PRESETS"_qs,
            u"Tip: Add 2, 3, or more keys. Set to 'All at once' to trigger all keys simultaneously when clicked."_qs));
}

TEST_F(RecorderView, aClickRecordsTheNextKey)
{
    click(addFirst);
    EXPECT_TRUE(keyboard.isRecording());
    EXPECT_THAT(shownTexts(*view), Contains(u"Press key combo on keyboard..."_qs));
    press(keyC, u"c"_qs, EventFlags::command | EventFlags::shift);
    EXPECT_EQ(rows(), QStringList{u"Key 1: ⇧ ⌘ C"_qs});
    EXPECT_FALSE(keyboard.isRecording());
    EXPECT_FALSE(hasButton(*view, u"Done"_qs));
    EXPECT_TRUE(hasButton(*view, addAnother));
    EXPECT_TRUE(hasButton(*view, u"Test Key Shortcut"_qs));
}

TEST_F(RecorderView, aLoneModifierLeavesItWaiting)
{
    click(addFirst);
    press(56, QString(), EventFlags::shift);
    EXPECT_TRUE(hasButton(*view, u"Done"_qs));
    EXPECT_EQ(rows(), QStringList());
}

TEST_F(RecorderView, escapeIsAKeyLikeAnyOther)
{
    click(addFirst);
    press(53, u"\x1b"_qs);
    EXPECT_EQ(rows(), QStringList{u"Key 1: ESC"_qs});
}

TEST_F(RecorderView, aSequenceIsShownKeyByKeyAndKeptWhenDone)
{
    click(sequence);
    EXPECT_THAT(shownTexts(*view), Contains(u"Press keys on keyboard sequentially..."_qs));
    press(keyA, u"a"_qs);
    EXPECT_EQ(rows().size(), 1);
    press(105, QString());
    EXPECT_EQ(rows(), (QStringList{u"Key 1: A"_qs, u"Key 2: KEY(105)"_qs}));
    EXPECT_FALSE(hasButton(*view, sequence)) << "not while recording";
    EXPECT_FALSE(hasButton(*view, u"Clear"_qs));
    click(u"Done"_qs);
    EXPECT_EQ(rows().size(), 2);
    EXPECT_FALSE(keyboard.isRecording());
    EXPECT_TRUE(hasButton(*view, sequence));
}

TEST_F(RecorderView, aRowIsRecordedAnewInItsPlace)
{
    recordThree();
    click(reRecord, 1);
    EXPECT_EQ(rows(), (QStringList{u"Key 1: A"_qs, u"Key 2: Press key..."_qs, u"Key 3: C"_qs}));
    EXPECT_THAT(shownTexts(*view), Contains(u"Press new key combo..."_qs));
    press(keyC, u"c"_qs, EventFlags::option);
    EXPECT_EQ(rows(), (QStringList{u"Key 1: A"_qs, u"Key 2: ⌥ C"_qs, u"Key 3: C"_qs}));
}

TEST_F(RecorderView, aRowThatIsRemovedWhileItIsRecordedEndsTheRecordingWithTheNextKey)
{
    recordThree();
    click(reRecord, 2);
    click(removeKey, 2);
    press(2, u"d"_qs);
    EXPECT_EQ(rows(), (QStringList{u"Key 1: A"_qs, u"Key 2: B"_qs}));
    EXPECT_FALSE(keyboard.isRecording());
}

TEST_F(RecorderView, theTrashRemovesItsRowAndTheRestMovesUp)
{
    recordThree();
    click(removeKey, 0);
    EXPECT_EQ(rows(), (QStringList{u"Key 1: B"_qs, u"Key 2: C"_qs}));
    click(removeKey, 0);
    click(removeKey, 0);
    EXPECT_TRUE(list.isEmpty());
    EXPECT_TRUE(hasButton(*view, addFirst));
}

TEST_F(RecorderView, theBehaviourIsAskedForFromTwoKeysOn)
{
    recorder->apply(shortcutPresets[0]);
    EXPECT_FALSE(hasButton(*view, u"All at once"_qs));
    recordThree();
    EXPECT_THAT(shownTexts(*view), Contains(u"TRIGGER BEHAVIOR (3 KEYS)"_qs));
    EXPECT_THAT(shownTexts(*view), Contains(u"Presses and holds all 3 keys together at once."_qs));
    EXPECT_TRUE(buttonNamed(*view, u"All at once"_qs).isChecked());
    click(u"In sequence"_qs);
    EXPECT_EQ(mode, MultiKeyPlaybackMode::sequential);
    EXPECT_TRUE(buttonNamed(*view, u"In sequence"_qs).isChecked());
    EXPECT_FALSE(buttonNamed(*view, u"All at once"_qs).isChecked());
    EXPECT_THAT(shownTexts(*view), Contains(u"Plays each of the 3 keys one after another in order."_qs));
    click(u"In sequence"_qs);
    EXPECT_EQ(mode, MultiKeyPlaybackMode::sequential);
}

TEST_F(RecorderView, assistiveTechnologyChoosesTheBehaviourToo)
{
    recordThree();
    test::activate(buttonNamed(*view, u"In sequence"_qs));
    EXPECT_EQ(mode, MultiKeyPlaybackMode::sequential);
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&buttonNamed(*view, u"In sequence"_qs))->state().checked);
}

TEST_F(RecorderView, aPresetReplacesTheList)
{
    recordThree();
    click(u"Copy & Paste (⌘C then ⌘V)"_qs);
    EXPECT_EQ(rows(), (QStringList{u"Key 1: ⌘ C"_qs, u"Key 2: ⌘ V"_qs}));
    EXPECT_EQ(mode, MultiKeyPlaybackMode::sequential);
    for (const ShortcutPreset& preset : shortcutPresets)
        EXPECT_TRUE(hasButton(*view, preset.title.toString())) << preset.title.toString().toStdString();
}

TEST_F(RecorderView, clearEmptiesTheList)
{
    recordThree();
    click(u"Clear"_qs);
    EXPECT_TRUE(list.isEmpty());
    EXPECT_EQ(rows(), QStringList());
    EXPECT_FALSE(hasButton(*view, u"Clear"_qs));
}

TEST_F(RecorderView, aTestPlaysTheKeysAndSaysSoForAWhile)
{
    recordThree();
    click(u"Test 3 Keys (Simultaneous)"_qs);
    EXPECT_EQ(plays, 1);
    EXPECT_TRUE(hasButton(*view, u"Fired 3 keys (Simultaneous)"_qs));
    scheduler.advance(1799ms);
    EXPECT_TRUE(hasButton(*view, u"Fired 3 keys (Simultaneous)"_qs));
    scheduler.advance(1ms);
    EXPECT_TRUE(hasButton(*view, u"Test 3 Keys (Simultaneous)"_qs));
    click(sequence);
    EXPECT_FALSE(hasButton(*view, u"Test 3 Keys (Simultaneous)"_qs)) << "not while recording";
}

TEST_F(RecorderView, theRecordingEndsWhenTheViewDisappears)
{
    click(sequence);
    view->hide();
    EXPECT_FALSE(keyboard.isRecording());
    view->show();
    EXPECT_FALSE(hasButton(*view, u"Done"_qs));
    click(sequence);
    window.hide();
    EXPECT_FALSE(keyboard.isRecording());
    window.show();
    click(sequence);
    delete view;
    EXPECT_FALSE(keyboard.isRecording());
}

TEST_F(RecorderView, theRecordingEndsWhenTheDesktopTakesTheKeyboardBack)
{
    click(sequence);
    press(keyA, u"a"_qs);
    keyboard.takeBack();
    EXPECT_FALSE(hasButton(*view, u"Done"_qs));
    EXPECT_EQ(rows(), QStringList{u"Key 1: A"_qs});
}

TEST_F(RecorderView, anotherViewOfTheSameRecorderMayGoWhileThisOneRecords)
{
    auto second = std::make_unique<ShortcutRecorderView>(*recorder);
    second->show();
    click(sequence);
    second->hide();
    EXPECT_TRUE(keyboard.isRecording());
    second->show();
    second.reset();
    EXPECT_TRUE(keyboard.isRecording());
}

TEST_F(RecorderView, theRecorderMayGoBeforeTheView)
{
    recordThree();
    click(sequence);
    recorder.reset();
    EXPECT_FALSE(keyboard.isRecording());
    view->refresh();
    click(removeKey, 0);
    click(u"Done"_qs);
    EXPECT_EQ(list.size(), 3);
}

TEST_F(RecorderView, withoutAKeyboardItStaysAsItIsAndSaysWhy)
{
    const QString refusal = recorder_texts::keyboardRefused.toString();
    EXPECT_THAT(shownTexts(*view), Not(Contains(refusal)));
    keyboard.setRefusing(true);
    click(addFirst);
    EXPECT_THAT(shownTexts(*view), Contains(refusal));
    EXPECT_FALSE(hasButton(*view, u"Done"_qs));
    EXPECT_TRUE(hasButton(*view, sequence));
    keyboard.setRefusing(false);
    click(addFirst);
    EXPECT_THAT(shownTexts(*view), Not(Contains(refusal)));
}

TEST_F(RecorderView, whatOthersChangeIsShownWhenAskedFor)
{
    recordThree();
    list.removeLast();
    view->refresh();
    EXPECT_EQ(rows().size(), 2);
}

TEST_F(RecorderView, theKeyboardReachesEveryControl)
{
    recordThree();
    QSet<QWidget*> reached;
    other->setFocus();
    for (QTest::keyClick(other, Qt::Key_Tab); QApplication::focusWidget() != other;
         QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab)) {
        ASSERT_FALSE(reached.contains(QApplication::focusWidget()));
        reached.insert(QApplication::focusWidget());
    }
    // One of the two for the behaviour, two for each row, three actions, five presets, the test.
    EXPECT_EQ(reached.size(), 1 + 6 + 3 + 5 + 1);
}

TEST_F(RecorderView, returnAndSpaceBegin)
{
    buttonNamed(*view, addFirst).setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(keyboard.isRecording());
    recorder->stopRecording();
    buttonNamed(*view, sequence).setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(recorder->state(), ShortcutRecorder::State::appendingSequence);
}

TEST_F(RecorderView, aControlThatGoesLeavesTheKeyboardToOneThatIsThere)
{
    buttonNamed(*view, sequence).setFocus();
    click(sequence);
    EXPECT_EQ(QApplication::focusWidget(), &buttonNamed(*view, u"Done"_qs));
    click(u"Done"_qs);
    EXPECT_EQ(QApplication::focusWidget(), &buttonNamed(*view, addFirst));
    recordThree();
    buttonNamed(*view, removeKey, 2).setFocus();
    click(removeKey, 2);
    EXPECT_TRUE(view->isAncestorOf(QApplication::focusWidget()));
    EXPECT_NE(QApplication::focusWidget(), nullptr);
}

TEST_F(RecorderView, aKeyboardThatIsElsewhereStaysThere)
{
    recordThree();
    other->setFocus();
    click(sequence);
    click(u"Done"_qs);
    click(u"Clear"_qs);
    EXPECT_EQ(QApplication::focusWidget(), other);
}

TEST_F(RecorderView, aPresetThatGetsTheKeyboardScrollsIntoSight)
{
    QTest::qWait(0);
    auto* const strip = view->findChild<PresetStrip*>();
    ASSERT_EQ(strip->horizontalScrollBar()->value(), 0);
    QAbstractButton& last = buttonNamed(*view, shortcutPresets.back().title.toString());
    last.setFocus();
    EXPECT_GT(strip->horizontalScrollBar()->value(), 0);
    EXPECT_TRUE(strip->viewport()->rect().contains(QRect(last.mapTo(strip->viewport(), QPoint()), last.size()), false));
}

TEST_F(RecorderView, theWheelTurnsThePresetsOnlySideways)
{
    QTest::qWait(0);
    auto* const strip = view->findChild<PresetStrip*>();
    const auto turn = [strip](QPoint angle) {
        QWheelEvent event({5, 5}, {5, 5}, {}, angle, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(strip->viewport(), &event);
        return event.isAccepted();
    };
    EXPECT_FALSE(turn({0, -120})) << "that is for what the strip stands in";
    EXPECT_EQ(strip->horizontalScrollBar()->value(), 0);
    EXPECT_TRUE(turn({-120, 0}));
    EXPECT_GT(strip->horizontalScrollBar()->value(), 0);
}

TEST_F(RecorderView, controlsWithOnlyASymbolHaveTooltipsAndSayWhichKeyTheyMean)
{
    recordThree();
    EXPECT_EQ(buttonNamed(*view, reRecord, 1).toolTip(), reRecord);
    EXPECT_EQ(buttonNamed(*view, reRecord, 1).accessibleDescription(), u"Key 2: B");
    EXPECT_EQ(buttonNamed(*view, removeKey, 2).toolTip(), removeKey);
    EXPECT_EQ(buttonNamed(*view, sequence).toolTip(),
        u"Press multiple keys on your keyboard one after another to record a multi-key combo");
}

TEST_F(RecorderView, nothingIsCutOffAtTheWidthOfThePicker)
{
    window.hide(); // what nobody sees doesn't move
    list = {CustomShortcut{.command = true,
        .option = true,
        .control = true,
        .shift = true,
        .keyCode = 121,
        .keyDisplay = u"Page Down"_qs}};
    recorder->recordSequence();
    window.show();
    window.resize(268, view->heightForWidth(250) + 80);
    QTest::qWait(0);
    const auto parts = view->findChildren<QWidget*>();
    for (const QWidget* const part : parts) {
        const bool isInStrip = view->findChild<PresetStrip*>()->isAncestorOf(part);
        if (!part->isVisible() || isInStrip)
            continue;
        EXPECT_TRUE(view->rect().contains(QRect(part->mapTo(view, QPoint()), part->size())))
            << part->metaObject()->className();
        EXPECT_GE(part->height(), part->hasHeightForWidth() ? part->heightForWidth(part->width()) : 0);
    }
}

} // namespace

} // namespace tarvin
