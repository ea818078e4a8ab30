#include "model/FKeySet.h"
#include "support/AllocationCounter.h"
#include "tapd/engine/TapEngine.h"
#include "tapd/support/RecordedKeyboard.h"

#include <gtest/gtest.h>

namespace tarvin::tapd::test {

TEST(TapAllocation, noEventOfAnyKindCostsMemory)
{
    TapEngine engine;
    TapOutcome outcome;
    RecordedKeyboard recorded;
    const KeyboardId keyboard = engine.attach(Output::external);
    engine.publish({.keys = FKeySet{FKey::f5}.bits(), .takesSummon = true});
    const auto events = recorded.record("+a ~a -a +f5 ~f5 -f5 +leftCommand +leftOption +k -k -leftOption -leftCommand "
                                        "+backspace +escape +return -return -escape -backspace +b DROPPED");
    KeyBits down;
    down.set(KEY_C);

    const std::uint64_t before = allocationCount();
    for (int round = 0; round < 100; ++round) {
        outcome.clear();
        engine.feed(keyboard, events, outcome);
        engine.resynchronise(keyboard, down, recorded.now(), outcome);
        static_cast<void>(engine.wayOutDeadline());
    }
    EXPECT_EQ(allocationCount(), before);
    EXPECT_FALSE(outcome.emitted.isEmpty());
    EXPECT_FALSE(outcome.takenKeys().empty());
}

TEST(TapAllocation, theCounterSeesAllocations)
{
    const std::uint64_t before = allocationCount();
    TapEngine engine;
    static_cast<void>(engine.attach(Output::external));
    EXPECT_GT(allocationCount(), before);
}

} // namespace tarvin::tapd::test
