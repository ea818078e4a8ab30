#include "tapd/engine/TapEngine.h"

#include "model/FKeySet.h"
#include "platform/keycodes/KeyCodeTable.h"
#include "tapd/engine/TappableKeys.h"
#include "tapd/support/RecordedKeyboard.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <vector>

namespace tarvin::tapd::test {

using namespace std::chrono_literals;

namespace {

/// One engine with one keyboard, and what came of what was played on it.
class TapEngineTest : public testing::Test
{
protected:
    void publish(FKeySet keys, bool takesSummon = false)
    {
        engine.publish({.keys = keys.bits(), .takesSummon = takesSummon});
    }
    /// What the system sees of the words.
    std::string play(std::string_view words) { return play(keyboard, recorded, words); }
    std::string play(KeyboardId id, RecordedKeyboard& record, std::string_view words)
    {
        outcome.clear();
        engine.feed(id, record.record(words), outcome);
        return inWords(outcome.emitted.events());
    }
    /// What the application was told of during the last play.
    std::string told() { return inWords(outcome.takenKeys()); }
    std::string resynchronise(std::initializer_list<std::string_view> down)
    {
        KeyBits bits;
        for (const std::string_view name : down)
            bits.set(codeOf(name));
        outcome.clear();
        engine.resynchronise(keyboard, bits, recorded.now(), outcome);
        return inWords(outcome.emitted.events());
    }
    std::string detach(KeyboardId id)
    {
        outcome.clear();
        engine.detach(id, outcome);
        return inWords(outcome.emitted.events());
    }

    TapEngine engine;
    KeyboardId keyboard = engine.attach(Output::external);
    RecordedKeyboard recorded;
    RecordedKeyboard otherRecorded;
    TapOutcome outcome;
};

} // namespace

TEST_F(TapEngineTest, whatNobodyCustomisedPassesUnchanged)
{
    publish({FKey::f5});
    EXPECT_EQ(play("+a -a +leftShift +b -b -leftShift +f6 -f6 +mute -mute"),
        "+a -a +leftShift +b -b -leftShift +f6 -f6 +mute -mute");
    EXPECT_EQ(told(), "");
}

TEST_F(TapEngineTest, everyKeyEventOfAPassingReportIsReEmittedInItsPlaceWithoutItsScanCode)
{
    const auto events = recorded.record("+a,+b ~b -a,-b");
    engine.feed(keyboard, events, outcome);
    std::vector<input_event> expected;
    std::ranges::copy_if(
        events, std::back_inserter(expected), [](const input_event& event) { return event.type != EV_MSC; });
    const auto emitted = outcome.emitted.events();
    ASSERT_EQ(emitted.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(emitted[i].type, expected[i].type) << i;
        EXPECT_EQ(emitted[i].code, expected[i].code) << i;
        if (expected[i].type != EV_SYN) {
            EXPECT_EQ(emitted[i].value, expected[i].value) << i;
        }
    }
}

TEST_F(TapEngineTest, aCustomisedKeyIsTakenWithItsRepeatsAndItsRelease)
{
    publish({FKey::f5});
    EXPECT_EQ(play("+a +f5 ~f5 ~f5 -f5 -a"), "+a -a");
    EXPECT_EQ(told(), "+f5 ~f5 ~f5 -f5");
}

TEST_F(TapEngineTest, everyWayToACustomisedKeyIsTaken)
{
    publish(FKeySet::all());
    for (const KeyCodeRow& row : keyCodeTable) {
        const std::string press = "+" + std::string(row.name);
        const std::string release = "-" + std::string(row.name);
        const auto emitted = play(press + " " + release);
        if (const auto key = fKeyOf(row)) {
            EXPECT_EQ(emitted, "") << row.name;
            EXPECT_EQ(told(), press + " " + release);
            EXPECT_EQ(outcome.takenKeys().front().key, orderOf(*key)) << row.name;
        } else {
            EXPECT_EQ(emitted, press + " " + release);
            EXPECT_EQ(told(), "");
        }
    }
}

TEST_F(TapEngineTest, aReportOfSeveralKeysLosesOnlyTheTakenOnes)
{
    publish({FKey::f5});
    EXPECT_EQ(play("+a,+f5,+b -f5 -a,-b"), "+a,+b -a,-b");
}

TEST_F(TapEngineTest, theScanCodeGoesWithItsTakenKey)
{
    publish({FKey::f5});
    play("+f5,+a");
    ASSERT_EQ(outcome.takenKeys().size(), 1U);
    EXPECT_EQ(outcome.takenKeys().front().scan, 0x7003EU);
    play("~f5 -f5");
    EXPECT_EQ(outcome.takenKeys()[0].scan, 0U) << "the kernel's own repeats have none";
    EXPECT_EQ(outcome.takenKeys()[1].scan, 0x7003EU);
}

TEST_F(TapEngineTest, aKeyThatIsPublishedWhileHeldKeepsItsReleaseForTheSystem)
{
    EXPECT_EQ(play("+f5"), "+f5");
    publish({FKey::f5});
    EXPECT_EQ(play("~f5 -f5"), "~f5 -f5");
    EXPECT_EQ(told(), "");
    EXPECT_EQ(play("+f5 -f5"), "");
}

TEST_F(TapEngineTest, aTakenKeyThatIsNoLongerPublishedKeepsItsReleaseFromTheSystem)
{
    publish({FKey::f5});
    play("+f5");
    publish({});
    EXPECT_EQ(play("~f5 -f5"), "");
    EXPECT_EQ(told(), "~f5 -f5");
    EXPECT_EQ(play("+f5 -f5"), "+f5 -f5");
}

TEST_F(TapEngineTest, theSummonShortcutIsTakenAndItsReleaseToldToNobody)
{
    publish({}, true);
    EXPECT_EQ(play("+leftCommand +leftOption +k ~k -k -leftOption -leftCommand"),
        "+leftCommand +leftOption +blank -blank -leftOption -leftCommand");
    EXPECT_EQ(told(), "+summon ~summon");
}

TEST_F(TapEngineTest, aPlainKIsNoSummonShortcut)
{
    publish(FKeySet::all(), true);
    EXPECT_EQ(play("+k -k +leftOption +k -k -leftOption +leftCommand +k -k -leftCommand"),
        "+k -k +leftOption +k -k -leftOption +leftCommand +k -k -leftCommand");
    EXPECT_EQ(told(), "");
}

TEST_F(TapEngineTest, theSummonShortcutPassesWhileItIsNotPublished)
{
    publish(FKeySet::all());
    EXPECT_EQ(play("+leftCommand +leftOption +k -k"), "+leftCommand +leftOption +k -k");
}

TEST_F(TapEngineTest, theSummonShortcutMayBeSpreadOverTwoKeyboards)
{
    publish({}, true);
    const KeyboardId other = engine.attach(Output::internal);
    play(other, otherRecorded, "+leftCommand +rightOption +leftShift");
    EXPECT_EQ(play("+k -k"), "+blank -blank");
    EXPECT_EQ(told(), "+summon");
}

TEST_F(TapEngineTest, aModifierAroundATakenKeyIsNoTapOfItsOwn)
{
    publish({FKey::f5});
    EXPECT_EQ(play("+leftCommand +f5 -f5 -leftCommand"), "+leftCommand +blank -blank -leftCommand");
    EXPECT_EQ(play("+leftShift +f5 -f5 -leftShift"), "+leftShift -leftShift");
}

TEST_F(TapEngineTest, aKeyHeldOnTwoKeyboardsIsDownUntilBothLetGo)
{
    const KeyboardId other = engine.attach(Output::external);
    EXPECT_EQ(play("+a"), "+a");
    EXPECT_EQ(play(other, otherRecorded, "+a"), "");
    EXPECT_EQ(play("-a"), "");
    EXPECT_EQ(play(other, otherRecorded, "-a"), "-a");
}

TEST_F(TapEngineTest, theSameKeyOnKeyboardsOfTwoOutputsIsTwoKeys)
{
    const KeyboardId other = engine.attach(Output::internal);
    EXPECT_EQ(play("+a"), "+a");
    EXPECT_EQ(play(other, otherRecorded, "+a"), "+a");
    EXPECT_EQ(play("-a"), "-a");
}

TEST_F(TapEngineTest, aKeyboardThatGoesReleasesWhatItHolds)
{
    publish({FKey::f5});
    play("+leftShift +a +f5");
    EXPECT_EQ(detach(keyboard), "-a,-leftShift");
    EXPECT_EQ(told(), "-f5");
    EXPECT_FALSE(engine.isAnyAttached());
}

TEST_F(TapEngineTest, aKeyboardThatGoesLeavesWhatAnotherHolds)
{
    const KeyboardId other = engine.attach(Output::external);
    play("+a");
    play(other, otherRecorded, "+a +b");
    EXPECT_EQ(detach(other), "-b");
    EXPECT_EQ(play("-a"), "-a");
}

TEST_F(TapEngineTest, afterLostEventsTheKeysFollowTheKernel)
{
    publish({FKey::f5, FKey::f6});
    play("+a +b +f5");
    EXPECT_EQ(play("-a DROPPED -b +c"), "-a") << "what follows a loss means nothing";
    EXPECT_TRUE(engine.isOutOfStep(keyboard));
    EXPECT_EQ(play("+d"), "");
    EXPECT_EQ(resynchronise({"b", "c", "f6"}), "+c");
    EXPECT_EQ(told(), "-f5 +f6");
    EXPECT_FALSE(engine.isOutOfStep(keyboard));
    EXPECT_EQ(play("-b -c -f6"), "-b -c");
    EXPECT_TRUE(engine.isAtRest(keyboard));
}

TEST_F(TapEngineTest, aLossInTheMiddleOfAReportLeavesNoReportOpen)
{
    auto events = recorded.record("+a +b");
    events.pop_back();
    const auto lost = recorded.record("DROPPED");
    events.insert(events.end(), lost.begin(), lost.end());
    engine.feed(keyboard, events, outcome);
    EXPECT_EQ(inWords(outcome.emitted.events()), "+a +b...");
    EXPECT_EQ(resynchronise({"a", "b"}), "");
    ASSERT_EQ(outcome.emitted.events().size(), 1U);
    EXPECT_EQ(outcome.emitted.events()[0].type, EV_SYN);
}

TEST_F(TapEngineTest, aReportThatComesInTwoReadsIsPutTogether)
{
    const auto events = recorded.record("+a,+b");
    engine.feed(keyboard, std::span(events).first(3), outcome);
    EXPECT_EQ(inWords(outcome.emitted.events()), "+a...");
    outcome.clear();
    engine.feed(keyboard, std::span(events).subspan(3), outcome);
    EXPECT_EQ(inWords(outcome.emitted.events()), "+b");
}

TEST_F(TapEngineTest, aReleaseWithoutAPressIsNotReEmitted)
{
    EXPECT_EQ(play("-a ~b"), "");
}

TEST_F(TapEngineTest, theEchoOfALightIsNotReEmitted)
{
    std::vector<input_event> events = recorded.record("+a");
    input_event light{};
    light.type = EV_LED;
    light.code = LED_CAPSL;
    light.value = 1;
    events.push_back(light);
    events.push_back({});
    engine.feed(keyboard, events, outcome);
    EXPECT_EQ(outcome.emitted.events().size(), 2U);
}

TEST_F(TapEngineTest, theWayOutIsTheThreeKeysAloneForHalfASecond)
{
    play("+backspace +escape");
    EXPECT_FALSE(engine.wayOutDeadline());
    EXPECT_EQ(play("10ms +return"), "+return") << "until it is due they are keys like all others";
    ASSERT_TRUE(engine.wayOutDeadline());
    EXPECT_EQ(*engine.wayOutDeadline(), recorded.now() + 500ms);
    EXPECT_FALSE(engine.isWayOutDue(recorded.now() + 499ms));
    EXPECT_TRUE(engine.isWayOutDue(recorded.now() + 500ms));
}

TEST_F(TapEngineTest, repeatsDoNotPutTheWayOutOff)
{
    play("+backspace +escape +return");
    const EventTime since = recorded.now();
    play("250ms ~return 33ms ~return 33ms ~return");
    EXPECT_EQ(engine.wayOutDeadline(), since + 500ms);
}

TEST_F(TapEngineTest, anotherKeyAmongTheThreeIsNoWayOut)
{
    play("+backspace +escape +return +a");
    EXPECT_FALSE(engine.wayOutDeadline());
    play("100ms -a");
    EXPECT_EQ(engine.wayOutDeadline(), recorded.now() + 500ms) << "the time begins anew";
    play("-escape");
    EXPECT_FALSE(engine.wayOutDeadline());
}

TEST_F(TapEngineTest, aTakenKeyAmongTheThreeIsNoWayOutEither)
{
    publish({FKey::f5});
    play("+f5 +backspace +escape +return");
    EXPECT_FALSE(engine.wayOutDeadline());
}

TEST_F(TapEngineTest, theThreeKeysOnTwoKeyboardsAreNoWayOut)
{
    const KeyboardId other = engine.attach(Output::external);
    play("+backspace +escape");
    play(other, otherRecorded, "+return");
    EXPECT_FALSE(engine.wayOutDeadline());
}

TEST_F(TapEngineTest, noCodeOutsideTheTableCanBeTaken)
{
    for (std::uint32_t code = 0; code <= 0xFFFF; ++code) {
        const auto key = tappableKey(static_cast<std::uint16_t>(code));
        const KeyCodeRow* const row = keyRowOfEvdevCode(static_cast<std::uint16_t>(code));
        EXPECT_EQ(key.has_value(), row != nullptr && fKeyOf(*row).has_value()) << code;
    }
}

} // namespace tarvin::tapd::test
