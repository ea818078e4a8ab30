#include "actions/system/AppleMenuItem.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin {

namespace {

TEST(AppleMenuItem, dotsBlanksAndCaseMakeNoDifference)
{
    EXPECT_EQ(findMenuItem({u"About"_qs, u"\n SLEEP… "_qs}, {u"Sleep"_qs}), 1);
    EXPECT_EQ(findMenuItem({u"Restart"_qs}, {u"Restart…"_qs}), 0);
}

TEST(AppleMenuItem, aTitleMayGoOnBehindTheTarget)
{
    EXPECT_EQ(findMenuItem({u"Shut Down Now"_qs}, {u"Shut Down"_qs}), 0);
    EXPECT_EQ(findMenuItem({u" Shut Down Now"_qs}, {u"Shut Down"_qs}), std::nullopt);
    EXPECT_EQ(findMenuItem({u"Shut"_qs}, {u"Shut Down"_qs}), std::nullopt);
}

TEST(AppleMenuItem, theFirstItemFromTheTopIsTaken)
{
    EXPECT_EQ(findMenuItem({u"Sleepy"_qs, u"Sleep"_qs}, {u"Sleep"_qs}), 0);
    EXPECT_EQ(findMenuItem({u"Restart…"_qs, u"Shut Down…"_qs}, {u"Shut Down"_qs, u"Restart"_qs}), 0);
}

TEST(AppleMenuItem, anItemWithoutTitleIsPassedOver)
{
    EXPECT_EQ(findMenuItem({QString(), u"Sleep"_qs}, {u"Sleep"_qs}), 1);
    EXPECT_EQ(findMenuItem({}, {u"Sleep"_qs}), std::nullopt);
}

} // namespace

} // namespace tarvin
