#include "platform/linux/x11/PostedKeys.h"

#include <gtest/gtest.h>

namespace tarvin::x11 {

namespace {

constexpr Keycode keyA = 38;
constexpr Keycode keyB = 56;
constexpr FakeKey pressA{keyA, FakeMotion::press};
constexpr FakeKey releaseA{keyA, FakeMotion::release};
constexpr FakeKey pressB{keyB, FakeMotion::press};

TEST(PostedKeys, whatIsUnderWayCountsAsArrived)
{
    PostedKeys keys;
    keys.notePost(pressA);
    keys.notePost(pressB);
    keys.notePost(releaseA);
    EXPECT_TRUE(keys.isUnderWay());
    EXPECT_FALSE(keys.isDown(keyA));
    EXPECT_TRUE(keys.isDown(keyB));
    const KeycodeSet down = keys.downAfterArrival(KeycodeSet().set(keyA));
    EXPECT_EQ(down, KeycodeSet().set(keyB));
}

TEST(PostedKeys, whatWasPostedBeforeAReportedEventIsNotWaitedFor)
{
    PostedKeys keys;
    keys.notePost(pressA);
    keys.notePost(pressB);
    keys.noteReport(pressB);
    EXPECT_FALSE(keys.isUnderWay());
    EXPECT_EQ(keys.downAfterArrival({}), KeycodeSet()) << "the server knows better now";
    EXPECT_TRUE(keys.isDown(keyB));
}

TEST(PostedKeys, aReportOfWhatWasNotPostedMeansNothing)
{
    PostedKeys keys;
    keys.notePost(pressA);
    keys.noteReport(pressB);
    EXPECT_TRUE(keys.isUnderWay());
    keys.noteAllArrived();
    EXPECT_FALSE(keys.isUnderWay());
    EXPECT_TRUE(keys.isDown(keyA));
}

} // namespace

} // namespace tarvin::x11
