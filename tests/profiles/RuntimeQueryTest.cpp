#include "profiles/ProfileDesktop.h"
#include "support/AllocationCounter.h"

namespace tarvin {

namespace {

using RuntimeQueryTest = ProfileDesktop;

TEST_F(RuntimeQueryTest, theCounterSeesWhatQtAllocates)
{
    const std::uint64_t before = allocationCount();
    const QString text = QString::number(12345);
    EXPECT_GT(allocationCount(), before) << testing::PrintToString(text);
}

TEST_F(RuntimeQueryTest, aKeyEventAllocatesNothing)
{
    bringToFront({u"com.apple.Safari"_qs});
    for (const FKey key : functionRowKeys)
        profile().setConfig(typing(u"a"_qs), key);

    const std::uint64_t before = allocationCount();
    int custom = 0;
    for (const FKey key : allFKeys)
        custom += profile().runtimeCustomConfig(key) != nullptr ? 1 : 0;
    EXPECT_EQ(allocationCount(), before);
    EXPECT_EQ(custom, 12);
}

} // namespace

} // namespace tarvin
