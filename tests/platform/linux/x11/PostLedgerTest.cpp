#include "platform/linux/x11/PostLedger.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarvin::x11 {

namespace {

constexpr FakeKey press{38, FakeMotion::press};
constexpr FakeKey release{38, FakeMotion::release};
constexpr std::int64_t marker = 42;

TEST(PostLedger, anEventIsOursIfItIsReportedForOurRequest)
{
    PostLedger ledger;
    ledger.expect(press, marker, 100);
    EXPECT_EQ(ledger.settle(press, 1000, 99), std::nullopt);
    EXPECT_EQ(ledger.settle(release, 1000, 100), std::nullopt);
    EXPECT_EQ(ledger.settle(press, 1000, 100), marker);
}

TEST(PostLedger, anotherProgramsEventRightAfterOursIsNotOurs)
{
    PostLedger ledger;
    ledger.expect(press, marker, 100);
    EXPECT_EQ(ledger.settle(press, 1000, 100), marker);
    EXPECT_EQ(ledger.settle(press, 1000, 100), std::nullopt);
}

TEST(PostLedger, anEventThatIsNeverReportedIsNotWaitedFor)
{
    PostLedger ledger;
    ledger.expect(press, marker, 100);
    ledger.expect(release, marker, 101);
    ledger.passBy(101);
    EXPECT_EQ(ledger.takeOwn(press, 5), std::nullopt);
    EXPECT_EQ(ledger.settle(release, 1000, 101), marker);
}

TEST(PostLedger, theNumbersOfRequestsMayWrap)
{
    PostLedger ledger;
    constexpr RequestSequence last = std::numeric_limits<RequestSequence>::max();
    ledger.expect(press, marker, last);
    ledger.expect(release, marker, 0);
    ledger.passBy(0);
    EXPECT_EQ(ledger.settle(press, 1000, last), std::nullopt);
    EXPECT_EQ(ledger.settle(release, 1000, 0), marker);
}

TEST(PostLedger, aWindowKnowsOursByTheServersTime)
{
    PostLedger ledger;
    ledger.expect(press, marker, 100);
    EXPECT_EQ(ledger.settle(press, 1000, 100), marker);
    EXPECT_EQ(ledger.takeOwn(press, 1001), std::nullopt);
    EXPECT_EQ(ledger.takeOwn(release, 1000), std::nullopt);
    EXPECT_EQ(ledger.takeOwn(press, 1000), marker);
    // The same key in the same millisecond is the user's.
    EXPECT_EQ(ledger.takeOwn(press, 1000), std::nullopt);
}

TEST(PostLedger, aWindowMayBeFasterThanTheReport)
{
    PostLedger ledger;
    ledger.expect(press, marker, 100);
    EXPECT_EQ(ledger.takeOwn(press, 1000), marker);
    EXPECT_EQ(ledger.settle(press, 1000, 100), marker);
}

TEST(PostLedger, whatIsPostedThroughTheDeviceIsOursInItsOrder)
{
    PostLedger ledger;
    ledger.expectPosted(press, 1);
    ledger.expectPosted(release, 2);
    ledger.expectPosted(press, 3);
    ledger.passBy(100);
    EXPECT_EQ(ledger.settle(press, 1000, 0), std::nullopt) << "it belongs to no request";
    EXPECT_EQ(ledger.settlePosted(press, 1000), 1);
    EXPECT_EQ(ledger.settlePosted(press, 1002), 3) << "the release was lost";
    EXPECT_EQ(ledger.settlePosted(release, 1003), std::nullopt);
    EXPECT_EQ(ledger.takeOwn(press, 1000), 1);
    EXPECT_EQ(ledger.takeOwn(press, 1002), 3);
    EXPECT_EQ(ledger.takeOwn(release, 1003), std::nullopt);
}

TEST(PostLedger, ofADeviceThatHasGoneNothingIsWaitedForAnyMore)
{
    PostLedger ledger;
    ledger.expectPosted(press, marker);
    EXPECT_EQ(ledger.settlePosted(press, 1000), marker);
    ledger.expectPosted(release, marker);
    ledger.expect(release, marker, 100);
    ledger.forgetPosted();
    EXPECT_EQ(ledger.settlePosted(release, 1001), std::nullopt);
    EXPECT_EQ(ledger.takeOwn(press, 1000), marker) << "this one has come";
    EXPECT_EQ(ledger.settle(release, 1001, 100), marker) << "and this one was faked at the server";
}

TEST(PostLedger, theOldestIsForgottenFirst)
{
    PostLedger ledger;
    ledger.expect(release, marker, 1);
    for (RequestSequence request = 2; request <= 257; ++request)
        ledger.expect(press, marker, request);
    EXPECT_EQ(ledger.settle(release, 1000, 1), std::nullopt);
    EXPECT_EQ(ledger.settle(press, 1000, 257), marker);
    ledger.clear();
    EXPECT_EQ(ledger.takeOwn(press, 1000), std::nullopt);
}

} // namespace

} // namespace tarvin::x11
