#include "platform/macos/translation/RecordingGate.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin::macos {

namespace {

constexpr KeyCode f5 = 96;
constexpr KeyCode rightOption = 61;

InputEvent key(InputEventType type, KeyCode keyCode, std::int64_t autorepeat = 0)
{
    return {.type = type, .keyCode = keyCode, .autorepeat = autorepeat};
}

InputEvent mediaKey(std::uint32_t state)
{
    return {.type = InputEventType::systemDefined,
        .systemDefined = SystemDefinedFields{.subtype = 8, .data1 = (16U << 16) | (state << 8)}};
}

constexpr bool recording = true;
constexpr bool idle = false;

TEST(RecordingGate, withoutARecordingEverythingIsTheHandlers)
{
    RecordingGate gate;
    EXPECT_TRUE(gate.admits(key(InputEventType::keyDown, f5), idle));
    EXPECT_TRUE(gate.admits(key(InputEventType::keyDown, f5, 1), idle));
    EXPECT_TRUE(gate.admits(key(InputEventType::keyUp, f5), idle));
    EXPECT_TRUE(gate.admits(key(InputEventType::keyUp, f5), idle)) << "a release without a press";
    EXPECT_TRUE(gate.admits(key(InputEventType::flagsChanged, rightOption), idle));
    EXPECT_TRUE(gate.admits(key(InputEventType::flagsChanged, rightOption), idle));
    EXPECT_TRUE(gate.admits(mediaKey(0x0A), idle));
    EXPECT_TRUE(RecordingGate::admits(HidValue{.value = 1}, idle));
}

TEST(RecordingGate, aPressDuringTheRecordingIsTheRecordersToItsRelease)
{
    RecordingGate gate;
    EXPECT_FALSE(gate.admits(key(InputEventType::keyDown, f5), recording));
    EXPECT_FALSE(gate.admits(key(InputEventType::keyUp, f5), recording));
    EXPECT_FALSE(gate.admits(key(InputEventType::flagsChanged, rightOption), recording));
    EXPECT_FALSE(gate.admits(key(InputEventType::flagsChanged, rightOption), recording));
    EXPECT_FALSE(gate.admits(mediaKey(0x0A), recording));
    EXPECT_FALSE(RecordingGate::admits(HidValue{.value = 1}, recording));
}

TEST(RecordingGate, aKeyStillHeldAfterTheRecordingDoesNothing)
{
    RecordingGate gate;
    EXPECT_FALSE(gate.admits(key(InputEventType::keyDown, f5), recording));
    EXPECT_FALSE(gate.admits(key(InputEventType::keyDown, f5, 1), idle)) << "a repeat";
    EXPECT_FALSE(gate.admits(key(InputEventType::keyUp, f5), idle));
    EXPECT_TRUE(gate.admits(key(InputEventType::keyDown, f5), idle)) << "the next press";

    EXPECT_FALSE(gate.admits(key(InputEventType::flagsChanged, rightOption), recording));
    EXPECT_FALSE(gate.admits(key(InputEventType::flagsChanged, rightOption), idle)) << "its release";
    EXPECT_TRUE(gate.admits(key(InputEventType::flagsChanged, rightOption), idle)) << "the next press";
}

TEST(RecordingGate, aKeyHeldSinceBeforeIsReleasedForTheHandler)
{
    RecordingGate gate;
    EXPECT_TRUE(gate.admits(key(InputEventType::keyDown, f5), idle));
    EXPECT_FALSE(gate.admits(key(InputEventType::keyDown, f5, 1), recording)) << "a repeat";
    EXPECT_TRUE(gate.admits(key(InputEventType::keyUp, f5), recording));

    EXPECT_TRUE(gate.admits(key(InputEventType::flagsChanged, rightOption), idle));
    EXPECT_TRUE(gate.admits(key(InputEventType::flagsChanged, rightOption), recording)) << "its release";
    EXPECT_FALSE(gate.admits(key(InputEventType::flagsChanged, rightOption), recording)) << "the next press";

    EXPECT_TRUE(gate.admits(mediaKey(0x0B), recording));
    EXPECT_TRUE(RecordingGate::admits(HidValue{.value = 0}, recording));
}

TEST(RecordingGate, aKeyWhoseReleaseWasLostIsTheHandlersAgain)
{
    RecordingGate gate;
    EXPECT_FALSE(gate.admits(key(InputEventType::keyDown, f5), recording));
    EXPECT_TRUE(gate.admits(key(InputEventType::keyDown, f5), idle));
    EXPECT_TRUE(gate.admits(key(InputEventType::keyUp, f5), idle));
}

TEST(RecordingGate, aTapThatWasSwitchedOffIsToldInAnyCase)
{
    RecordingGate gate;
    EXPECT_TRUE(gate.admits(key(InputEventType::tapDisabledByTimeout, 0), recording));
    EXPECT_TRUE(gate.admits(key(InputEventType::tapDisabledByUserInput, 0), recording));
}

TEST(RecordedCharacters, keysThatTypeNothingHaveNone)
{
    EXPECT_EQ(recordedCharacters(u"a"_qs), u"a");
    EXPECT_EQ(recordedCharacters(u"Ü"_qs), u"Ü");
    EXPECT_EQ(recordedCharacters({}), QString());
    EXPECT_EQ(recordedCharacters(QChar(0xF708)), QString()) << "F5";
    EXPECT_EQ(recordedCharacters(QChar(0xF702)), QString()) << "the arrow to the left";
    EXPECT_EQ(recordedCharacters(QChar(0xF8FF)), QString()) << "the last one";
    EXPECT_EQ(recordedCharacters(QChar(0xE000)), QString(QChar(0xE000))) << "private, but no key of the system's";
}

} // namespace

} // namespace tarvin::macos
