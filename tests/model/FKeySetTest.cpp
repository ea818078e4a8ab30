#include "model/FKeySet.h"

#include "model/ModelPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin {

namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

TEST(FKeySet, aNewSetIsEmpty)
{
    const FKeySet set;
    EXPECT_TRUE(set.empty());
    EXPECT_EQ(set.size(), 0U);
    EXPECT_EQ(set.bits(), 0U);
    for (const FKey key : allFKeys)
        EXPECT_FALSE(set.contains(key));
}

TEST(FKeySet, aKeyIsInTheSetFromInsertionToRemoval)
{
    for (const FKey key : allFKeys) {
        FKeySet set{FKey::f1, FKey::f19};
        set.insert(key);
        set.insert(key);
        EXPECT_TRUE(set.contains(key));
        EXPECT_EQ(set.size(), key == FKey::f1 || key == FKey::f19 ? 2U : 3U);
        set.remove(key);
        set.remove(key);
        EXPECT_FALSE(set.contains(key));
        EXPECT_EQ(set.contains(FKey::f1), key != FKey::f1);
    }
}

TEST(FKeySet, keysComeInEnumerationOrder)
{
    const FKeySet set{FKey::f19, FKey::section, FKey::f2, FKey::capsLock, FKey::f2};
    EXPECT_THAT(set, ElementsAre(FKey::f2, FKey::capsLock, FKey::section, FKey::f19));
    EXPECT_THAT(FKeySet::all(), ElementsAreArray(allFKeys));
}

TEST(FKeySet, theWordHasOneBitPerKeyInOrder)
{
    EXPECT_EQ(FKeySet{FKey::f1}.bits(), 1U);
    EXPECT_EQ(FKeySet{FKey::f19}.bits(), 1U << 23);
    EXPECT_EQ(FKeySet::all().bits(), 0xFFFFFFU);
    EXPECT_EQ(FKeySet::fromBits(FKeySet{FKey::f3, FKey::fnGlobe}.bits()), (FKeySet{FKey::fnGlobe, FKey::f3}));
}

TEST(FKeySet, bitsOfNoKeyAreDropped)
{
    EXPECT_EQ(FKeySet::fromBits(0xFFFFFFFF), FKeySet::all());
    EXPECT_TRUE(FKeySet::fromBits(0xFF000000).empty());
}

TEST(FKeySet, setsAreEqualWhenTheirKeysAre)
{
    EXPECT_EQ((FKeySet{FKey::f1, FKey::f2}), (FKeySet{FKey::f2, FKey::f1}));
    EXPECT_NE((FKeySet{FKey::f1}), (FKeySet{FKey::f1, FKey::f2}));
}

static_assert(FKeySet{FKey::f5}.contains(FKey::f5));
static_assert(std::forward_iterator<FKeySet::Iterator>);

} // namespace

} // namespace tarvin
