#include "platform/macos/translation/EventRecord.h"
#include "platform/macos/translation/HidMatching.h"

#include <gtest/gtest.h>

namespace tarvin::macos {

namespace {

TEST(EventRecord, keyEventsKeepEveryFieldThatTheRulesAskFor)
{
    const std::optional<InputEvent> event =
        inputEventOf({.type = 10, .keyCode = 96, .flags = 0x100000, .autorepeat = 1, .userData = 0x5452564E});
    ASSERT_TRUE(event);
    EXPECT_EQ(event->type, InputEventType::keyDown);
    EXPECT_EQ(event->keyCode, 96);
    EXPECT_EQ(event->flags, EventFlags::command);
    EXPECT_EQ(event->autorepeat, 1);
    EXPECT_TRUE(event->isSelfPosted());
    EXPECT_FALSE(event->systemDefined);
}

TEST(EventRecord, bitsThatTellLeftFromRightAreDropped)
{
    EXPECT_EQ(eventFlagsOf(0x100010), EventFlags::command) << "the right command key";
    EXPECT_EQ(eventFlagsOf(0x80140), EventFlags::option) << "the right option key and a bit of none";
    EXPECT_EQ(eventFlagsOf(0x10100), EventFlags::none) << "the lock of Caps Lock alone";
    EXPECT_EQ(eventFlagsOf(0xFFFFFFFF),
        EventFlags::shift | EventFlags::control | EventFlags::option | EventFlags::command | EventFlags::function);
}

TEST(EventRecord, typesThatNobodyAskedForAreNoEvents)
{
    EXPECT_FALSE(inputEventOf({.type = 1})) << "a mouse button";
    EXPECT_FALSE(inputEventOf({.type = 22})) << "a scroll wheel";
    for (const std::uint32_t type : {10U, 11U, 12U, 14U, 0xFFFFFFFEU, 0xFFFFFFFFU})
        EXPECT_EQ(eventTypeOf(type), static_cast<InputEventType>(type));
}

TEST(EventRecord, theMaskHoldsTheTypesThatAreTranslated)
{
    std::uint32_t mask = 0;
    for (std::uint32_t type = 0; type < 32; ++type)
        mask |= eventTypeOf(type) ? 1U << type : 0;
    EXPECT_EQ(mask, inputEventMask);
}

TEST(EventRecord, aMediaKeyIsReadFromItsData)
{
    const std::optional<InputEvent> event =
        inputEventOf({.type = 14, .systemDefined = EventRecord::SystemDefined{.subtype = 8, .data1 = 0x30A01}});
    ASSERT_TRUE(event && event->systemDefined);
    EXPECT_EQ(event->systemDefined->subtype, SystemDefinedFields::mediaKeySubtype);
    EXPECT_EQ(event->systemDefined->keyType(), 3);
    EXPECT_TRUE(event->systemDefined->isDown());
    EXPECT_TRUE(event->systemDefined->isRepeat());
}

TEST(EventRecord, aSystemDefinedEventThatCannotBeReadHasNoFields)
{
    const std::optional<InputEvent> event = inputEventOf({.type = 14});
    ASSERT_TRUE(event);
    EXPECT_FALSE(event->systemDefined);
}

TEST(EventRecord, dataWithItsHighestBitSetIsNoLargeNumber)
{
    const std::int64_t negative = static_cast<std::int32_t>(0x80000A00U);
    const std::optional<InputEvent> event =
        inputEventOf({.type = 14, .systemDefined = EventRecord::SystemDefined{.subtype = 8, .data1 = negative}});
    ASSERT_TRUE(event && event->systemDefined);
    EXPECT_EQ(event->systemDefined->data1, 0x80000A00U);
}

TEST(EventRecord, onlySystemDefinedEventsHaveTheirFields)
{
    const std::optional<InputEvent> event = inputEventOf({.type = 11, .systemDefined = EventRecord::SystemDefined{}});
    ASSERT_TRUE(event);
    EXPECT_FALSE(event->systemDefined);
}

TEST(HidMatching, keyboardsConsumerControlsAndTheVendorPageAreMatchedInThisOrder)
{
    ASSERT_EQ(hidMatches.size(), 3U);
    EXPECT_EQ(hidMatches[0].usagePage, 1);
    EXPECT_EQ(hidMatches[0].usage, 6);
    EXPECT_EQ(hidMatches[1].usagePage, 12);
    EXPECT_FALSE(hidMatches[1].usage);
    EXPECT_EQ(hidMatches[2].usagePage, 65281);
    EXPECT_FALSE(hidMatches[2].usage);
}

} // namespace

} // namespace tarvin::macos
