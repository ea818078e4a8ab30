#include "interception/PressLedger.h"
#include "interception/support/Printers.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarvin::test {

namespace {

constexpr PressState idleSince(double time)
{
    return {PressPhase::idle, time};
}

constexpr PressState heldSince(double time)
{
    return {PressPhase::held, time};
}

constexpr double justBefore(double time)
{
    return time - 0.0001;
}

constexpr double justAfter(double time)
{
    return time + 0.0001;
}

} // namespace

TEST(PressLedger, anIdleKeyFiresAndIsHeldFromThen)
{
    EXPECT_EQ(stepPress({}, PressReport::down, 1000), (PressStep{heldSince(1000), PressDecision::fire}));
}

TEST(PressLedger, aHeldKeyReportedAgainWithinTheWindowIsADuplicate)
{
    EXPECT_EQ(
        stepPress(heldSince(1000), PressReport::down, 1000.2), (PressStep{heldSince(1000), PressDecision::duplicate}));
}

TEST(PressLedger, theDuplicateWindowIncludesItsEnd)
{
    EXPECT_EQ(stepPress(heldSince(0), PressReport::down, 0.35), (PressStep{heldSince(0), PressDecision::duplicate}));
    EXPECT_EQ(stepPress(heldSince(0), PressReport::down, std::nextafter(0.35, 1.0)).decision, PressDecision::fire);
}

TEST(PressLedger, aHeldKeyReportedAfterTheWindowHasLostItsReleaseAndFires)
{
    EXPECT_EQ(stepPress(heldSince(1000), PressReport::down, justAfter(1000.35)),
        (PressStep{heldSince(justAfter(1000.35)), PressDecision::fire}));
}

TEST(PressLedger, aReleasedKeyWithinTheBounceWindowDoesNotFire)
{
    EXPECT_EQ(stepPress(idleSince(1000), PressReport::down, justBefore(1000.18)),
        (PressStep{idleSince(1000), PressDecision::bounce}));
}

TEST(PressLedger, theBounceWindowExcludesItsEnd)
{
    EXPECT_EQ(stepPress(idleSince(0), PressReport::down, std::nextafter(0.18, 0.0)).decision, PressDecision::bounce);
    EXPECT_EQ(stepPress(idleSince(0), PressReport::down, 0.18), (PressStep{heldSince(0.18), PressDecision::fire}));
}

TEST(PressLedger, aKeyThatNeverFiredCountsAsFiredAtTimeZero)
{
    EXPECT_EQ(stepPress({}, PressReport::down, 0.1).decision, PressDecision::bounce);
    EXPECT_EQ(stepPress({}, PressReport::down, 0.2).decision, PressDecision::fire);
}

TEST(PressLedger, aReleaseEndsThePressAndKeepsItsTime)
{
    EXPECT_EQ(
        stepPress(heldSince(1000), PressReport::up, 1000.5), (PressStep{idleSince(1000), PressDecision::release}));
}

TEST(PressLedger, aReleaseOfAnIdleKeyChangesNothing)
{
    EXPECT_EQ(
        stepPress(idleSince(1000), PressReport::up, 1000.5), (PressStep{idleSince(1000), PressDecision::release}));
}

TEST(PressLedger, aBounceDoesNotProlongTheBounceWindow)
{
    const PressStep bounced = stepPress(idleSince(1000), PressReport::down, 1000.1);
    EXPECT_EQ(stepPress(bounced.state, PressReport::down, 1000.2).decision, PressDecision::fire);
}

TEST(PressLedger, aDuplicateDoesNotProlongTheDuplicateWindow)
{
    const PressStep repeated = stepPress(heldSince(1000), PressReport::down, 1000.3);
    EXPECT_EQ(stepPress(repeated.state, PressReport::down, 1000.4).decision, PressDecision::fire);
}

TEST(PressLedger, keysDoNotDisturbEachOther)
{
    PressLedger ledger;
    EXPECT_EQ(ledger.apply(FKey::f5, PressReport::down, 1000), PressDecision::fire);
    EXPECT_EQ(ledger.apply(FKey::f6, PressReport::down, 1000.01), PressDecision::fire);
    EXPECT_EQ(ledger.pressedPhysicalKeys(), (FKeySet{FKey::f5, FKey::f6}));
    EXPECT_EQ(ledger.apply(FKey::f5, PressReport::up, 1000.02), PressDecision::release);
    EXPECT_EQ(ledger.pressedPhysicalKeys(), FKeySet{FKey::f6});
    EXPECT_EQ(ledger.lastHandledKeyTime(FKey::f5), 1000);
    EXPECT_EQ(ledger.lastHandledKeyTime(FKey::f6), 1000.01);
    EXPECT_EQ(ledger.lastHandledKeyTime(FKey::f7), 0);
}

} // namespace tarvin::test
