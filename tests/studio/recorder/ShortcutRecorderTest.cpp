#include "studio/recorder/ShortcutRecorder.h"

#include "platform/simulated/SimulatedKeyRecording.h"
#include "platform/simulated/SimulatedScheduler.h"
#include "platform/simulated/SimulatedUuidGenerator.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace tarvin {

namespace {

using namespace std::chrono_literals;
using State = ShortcutRecorder::State;

constexpr KeyCode keyA = 0;
constexpr KeyCode keyC = 8;
constexpr KeyCode keyLeftShift = 56;
constexpr KeyCode keyF13 = 105;

class Recorder : public testing::Test
{
protected:
    [[nodiscard]] ShortcutBinding binding()
    {
        return {.shortcuts = [this] { return list; },
            .setShortcuts = [this](const QList<CustomShortcut>& shortcuts) { list = shortcuts; },
            .playbackMode = [this] { return mode; },
            .setPlaybackMode = [this](MultiKeyPlaybackMode chosen) { mode = chosen; },
            .onSave = [this] { ++saves; }};
    }

    RecordingVerdict press(KeyCode keyCode, const QString& characters, EventFlags flags = EventFlags::none)
    {
        return keyboard.press({.keyCode = keyCode, .flags = flags, .characters = characters});
    }

    /// "⌘ C, A"
    [[nodiscard]] QString keys() const
    {
        QStringList texts;
        for (const CustomShortcut& shortcut : list)
            texts += shortcut.displayString();
        return texts.join(u", ");
    }

    QList<CustomShortcut> list;
    MultiKeyPlaybackMode mode = MultiKeyPlaybackMode::simultaneous;
    int saves = 0;
    simulated::SimulatedKeyRecording keyboard;
    simulated::SimulatedUuidGenerator uuids;
    simulated::SimulatedScheduler scheduler;
    struct Played
    {
        QList<CustomShortcut> shortcuts;
        MultiKeyPlaybackMode mode;
    };
    std::vector<Played> played;
    std::optional<ShortcutRecorder> recorder{std::in_place, binding(),
        ShortcutRecorder::Collaborators{.keyRecording = keyboard,
            .uuids = uuids,
            .scheduler = scheduler,
            .play = [this](const QList<CustomShortcut>& shortcuts, MultiKeyPlaybackMode how) {
                played.push_back({shortcuts, how});
            }}};
};

TEST_F(Recorder, oneKeyIsAppendedAndTheKeyboardGivenBack)
{
    recorder->recordOne();
    EXPECT_TRUE(keyboard.isRecording());
    EXPECT_EQ(press(keyC, u"c"_qs, EventFlags::command), RecordingVerdict::swallow);
    EXPECT_EQ(keys(), u"⌘ C");
    EXPECT_EQ(saves, 1);
    EXPECT_EQ(recorder->state(), State::idle);
    EXPECT_FALSE(keyboard.isRecording());
}

TEST_F(Recorder, aLoneModifierDoesNothingAndLeavesTheRecorderWaiting)
{
    recorder->recordOne();
    EXPECT_EQ(press(keyLeftShift, QString(), EventFlags::shift), RecordingVerdict::swallow);
    EXPECT_EQ(press(54, QString()), RecordingVerdict::swallow);
    EXPECT_EQ(press(62, QString()), RecordingVerdict::swallow);
    EXPECT_EQ(recorder->state(), State::appendingOne);
    EXPECT_TRUE(list.isEmpty());
    EXPECT_EQ(saves, 0);
}

TEST_F(Recorder, theNeighboursOfTheModifierKeysAreRecorded)
{
    recorder->recordSequence();
    press(53, QString());
    press(63, QString());
    EXPECT_EQ(keys(), u"ESC, KEY(63)");
}

TEST_F(Recorder, aKeyWithoutCharacterCodeAndModifiersIsHandedOn)
{
    recorder->recordOne();
    EXPECT_EQ(press(0, QString()), RecordingVerdict::handOn);
    EXPECT_TRUE(list.isEmpty());
    EXPECT_EQ(recorder->state(), State::appendingOne);
    EXPECT_EQ(press(0, QString(), EventFlags::control), RecordingVerdict::swallow);
    EXPECT_EQ(list.first().keyDisplay, u"Key(0)");
}

TEST_F(Recorder, aLetterIsShownInCapitals)
{
    recorder->recordSequence();
    press(keyA, u"a"_qs);
    press(keyA, u"é"_qs);
    press(keyA, u"ф"_qs);
    ASSERT_EQ(list.size(), 3);
    EXPECT_EQ(list[0].keyDisplay, u"A");
    EXPECT_EQ(list[1].keyDisplay, u"É");
    EXPECT_EQ(list[2].keyDisplay, u"Ф");
    EXPECT_EQ(list[0].keyCode, keyA);
}

TEST_F(Recorder, aKeyWithoutNameAndCharacterIsShownByItsNumber)
{
    recorder->recordOne();
    press(keyF13, QString());
    EXPECT_EQ(list.first().keyDisplay, u"Key(105)");
}

TEST_F(Recorder, namedKeysAreShownByTheirNames)
{
    recorder->recordSequence();
    press(36, u"\r"_qs);
    press(49, u" "_qs);
    press(117, u"\x7f"_qs);
    press(126, u"\xf700"_qs);
    press(109, QString());
    QStringList names;
    for (const CustomShortcut& shortcut : list)
        names += shortcut.keyDisplay;
    EXPECT_EQ(names, (QStringList{u"Return"_qs, u"Space"_qs, u"Fwd Delete"_qs, u"↑"_qs, u"F10"_qs}));
}

TEST_F(Recorder, theFourModifiersAreRecordedAndTheFnKeyIsNot)
{
    recorder->recordSequence();
    press(keyC, u"c"_qs, EventFlags::shift | EventFlags::option);
    press(keyC, u"c"_qs, EventFlags::control | EventFlags::command | EventFlags::function);
    EXPECT_EQ(keys(), u"⌥ ⇧ C, ⌃ ⌘ C");
}

TEST_F(Recorder, escapeIsRecordedLikeAnyOtherKey)
{
    recorder->recordOne();
    press(53, u"\x1b"_qs);
    EXPECT_EQ(keys(), u"ESC");
    EXPECT_EQ(recorder->state(), State::idle);
}

TEST_F(Recorder, aSequenceIsStoredKeyByKeyAndKeptWhenDone)
{
    recorder->recordSequence();
    press(keyA, u"a"_qs);
    EXPECT_EQ(saves, 1);
    press(keyC, u"c"_qs);
    EXPECT_EQ(saves, 2);
    EXPECT_EQ(recorder->state(), State::appendingSequence);
    recorder->stopRecording();
    EXPECT_EQ(keys(), u"A, C");
    EXPECT_EQ(saves, 2);
    EXPECT_FALSE(keyboard.isRecording());
}

TEST_F(Recorder, aRowIsRecordedAnewInItsPlace)
{
    recorder->apply(shortcutPresets[3]);
    const QUuid old = list[1].id;
    recorder->reRecord(1);
    EXPECT_EQ(recorder->recordingTargetIndex(), 1);
    press(2, u"d"_qs, EventFlags::control);
    EXPECT_EQ(keys(), u"A, ⌃ D, C");
    EXPECT_NE(list[1].id, old);
    EXPECT_EQ(recorder->state(), State::idle);
}

TEST_F(Recorder, aRowRemovedMeanwhileIsNotRecorded)
{
    recorder->apply(shortcutPresets[4]);
    recorder->reRecord(1);
    recorder->remove(1);
    const int before = saves;
    press(keyA, u"a"_qs);
    EXPECT_EQ(keys(), u"⌘ C");
    EXPECT_EQ(saves, before + 1);
    EXPECT_EQ(recorder->state(), State::idle);
}

TEST_F(Recorder, aNewRecordingEndsTheOneThatRuns)
{
    recorder->recordSequence();
    recorder->reRecord(0);
    EXPECT_EQ(recorder->state(), State::reRecording);
    recorder->recordOne();
    EXPECT_EQ(recorder->state(), State::appendingOne);
    EXPECT_EQ(recorder->recordingTargetIndex(), std::nullopt);
    EXPECT_EQ(keyboard.startCount(), 3);
    press(keyA, u"a"_qs);
    EXPECT_FALSE(keyboard.isRecording());
}

TEST_F(Recorder, theRecordingEndsWithTheRecorder)
{
    recorder->recordSequence();
    recorder.reset();
    EXPECT_FALSE(keyboard.isRecording());
    EXPECT_EQ(press(keyA, u"a"_qs), RecordingVerdict::handOn);
}

TEST_F(Recorder, theRecordingEndsWhenTheKeyboardIsTakenBack)
{
    recorder->recordSequence();
    press(keyA, u"a"_qs);
    const test::SignalCount changes(*recorder, &ShortcutRecorder::changed);
    keyboard.takeBack();
    EXPECT_EQ(recorder->state(), State::idle);
    EXPECT_FALSE(keyboard.isRecording());
    EXPECT_EQ(keys(), u"A");
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(Recorder, withoutAKeyboardItStaysIdle)
{
    keyboard.setRefusing(true);
    recorder->recordOne();
    EXPECT_EQ(recorder->state(), State::idle);
    EXPECT_TRUE(recorder->isKeyboardRefused());
    keyboard.setRefusing(false);
    recorder->recordSequence();
    keyboard.setRefusing(true);
    recorder->recordOne();
    EXPECT_EQ(recorder->state(), State::idle);
    EXPECT_FALSE(keyboard.isRecording());
}

TEST_F(Recorder, theRefusalIsForgottenWithTheNextRecordingOrChange)
{
    keyboard.setRefusing(true);
    recorder->recordOne();
    recorder->apply(shortcutPresets[3]);
    EXPECT_FALSE(recorder->isKeyboardRefused());
    recorder->recordOne();
    keyboard.setRefusing(false);
    recorder->recordOne();
    EXPECT_FALSE(recorder->isKeyboardRefused());
}

TEST_F(Recorder, stoppingWhileIdleChangesNothing)
{
    const test::SignalCount changes(*recorder, &ShortcutRecorder::changed);
    recorder->stopRecording();
    EXPECT_EQ(changes.count(), 0);
    EXPECT_EQ(saves, 0);
}

TEST_F(Recorder, aPresetReplacesTheListAndDoesNotAppend)
{
    recorder->apply(shortcutPresets[3]);
    EXPECT_EQ(keys(), u"A, B, C");
    EXPECT_EQ(mode, MultiKeyPlaybackMode::simultaneous);
    recorder->apply(shortcutPresets[4]);
    EXPECT_EQ(keys(), u"⌘ C, ⌘ V");
    EXPECT_EQ(mode, MultiKeyPlaybackMode::sequential);
    EXPECT_EQ(saves, 2);
    EXPECT_NE(list[0].id, list[1].id);
}

TEST_F(Recorder, presetsAreAsTheirTitlesSay)
{
    QStringList all;
    for (const ShortcutPreset& preset : shortcutPresets) {
        recorder->apply(preset);
        all += keys();
    }
    EXPECT_EQ(all, (QStringList{u"⌥ ⌘ ESC"_qs, u"⇧ ⌘ 4"_qs, u"⌃ ⌥ SPACE"_qs, u"A, B, C"_qs, u"⌘ C, ⌘ V"_qs}));
}

TEST_F(Recorder, clearIsNotThereWhileRecording)
{
    EXPECT_FALSE(recorder->offersClear());
    recorder->apply(shortcutPresets[4]);
    EXPECT_TRUE(recorder->offersClear());
    recorder->recordSequence();
    EXPECT_FALSE(recorder->offersClear());
    recorder->clear();
    EXPECT_EQ(recorder->state(), State::appendingSequence);
    EXPECT_EQ(list.size(), 2);
    recorder->stopRecording();
    recorder->clear();
    EXPECT_TRUE(list.isEmpty());
}

TEST_F(Recorder, theFirstRowOfTheListIsRemoved)
{
    recorder->apply(shortcutPresets[3]);
    recorder->remove(0);
    EXPECT_EQ(keys(), u"B, C");
    const int before = saves;
    recorder->remove(7);
    EXPECT_EQ(keys(), u"B, C");
    EXPECT_EQ(saves, before + 1);
}

TEST_F(Recorder, whatIsOfferedFollowsTheStateAndTheList)
{
    EXPECT_FALSE(recorder->showsPlaybackMode());
    EXPECT_TRUE(recorder->offersSequence());
    EXPECT_FALSE(recorder->offersTest());
    recorder->recordOne();
    EXPECT_FALSE(recorder->offersSequence());
    EXPECT_EQ(recorder->bannerText(), u"Press key combo on keyboard...");
    press(keyA, u"a"_qs);
    EXPECT_TRUE(recorder->offersTest());
    EXPECT_FALSE(recorder->showsPlaybackMode());
    recorder->recordSequence();
    EXPECT_EQ(recorder->bannerText(), u"Press keys on keyboard sequentially...");
    EXPECT_FALSE(recorder->offersTest());
    press(keyC, u"c"_qs);
    EXPECT_TRUE(recorder->showsPlaybackMode());
    recorder->reRecord(0);
    EXPECT_EQ(recorder->bannerText(), u"Press new key combo...");
}

TEST_F(Recorder, aTestPlaysACopyOfTheListInItsMode)
{
    recorder->apply(shortcutPresets[4]);
    EXPECT_EQ(recorder->testText(), u"Test 2 Keys (Sequence)");
    recorder->test();
    ASSERT_EQ(played.size(), 1U);
    EXPECT_EQ(played[0].shortcuts, list);
    EXPECT_EQ(played[0].mode, MultiKeyPlaybackMode::sequential);
    EXPECT_EQ(recorder->testText(), u"Fired 2 keys (Sequential)");
    scheduler.advance(1799ms);
    EXPECT_TRUE(recorder->hasTestFeedback());
    scheduler.advance(1ms);
    EXPECT_EQ(recorder->testText(), u"Test 2 Keys (Sequence)");
}

TEST_F(Recorder, aTestOfOneKeyIsCalledAfterIt)
{
    recorder->apply(shortcutPresets[0]);
    EXPECT_EQ(recorder->testText(), u"Test Key Shortcut");
    recorder->test();
    EXPECT_EQ(recorder->testText(), u"Fired 1 keys (Simultaneous)");
    recorder.reset();
    scheduler.advance(2s);
}

TEST_F(Recorder, theModeIsChosenAndStored)
{
    recorder->setPlaybackMode(MultiKeyPlaybackMode::sequential);
    EXPECT_EQ(mode, MultiKeyPlaybackMode::sequential);
    EXPECT_EQ(saves, 1);
}

TEST(RecorderOfOneShortcut, keepsTheFirstOfTheList)
{
    std::optional<CustomShortcut> place;
    const ShortcutBinding binding = ShortcutBinding::toOne(
        [&] { return place; }, [&](const std::optional<CustomShortcut>& shortcut) { place = shortcut; }, [] {});
    EXPECT_TRUE(binding.shortcuts().isEmpty());
    binding.setShortcuts({CustomShortcut{.keyCode = 8}, CustomShortcut{.keyCode = 9}});
    EXPECT_EQ(place->keyCode, 8);
    EXPECT_EQ(binding.shortcuts().size(), 1);
    binding.setPlaybackMode(MultiKeyPlaybackMode::sequential);
    EXPECT_EQ(binding.playbackMode(), MultiKeyPlaybackMode::simultaneous);
    binding.setShortcuts({});
    EXPECT_EQ(place, std::nullopt);
}

} // namespace

} // namespace tarvin
