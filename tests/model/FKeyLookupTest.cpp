#include "model/FKeyLookup.h"

#include "model/FKey.h"

#include "model/ModelPrinters.h"

#include <gtest/gtest.h>

#include <map>

namespace tarvin {

namespace {

// Whole answers are compared, so that a number that should mean nothing is proved as well as one that does.

TEST(FKeyLookup, everyKeyCodeAndNoOther)
{
    const std::map<int, FKey> expected = {{122, FKey::f1}, {145, FKey::f1}, {120, FKey::f2}, {144, FKey::f2},
        {99, FKey::f3}, {160, FKey::f3}, {118, FKey::f4}, {131, FKey::f4}, {177, FKey::f4}, {96, FKey::f5},
        {127, FKey::f5}, {178, FKey::f5}, {97, FKey::f6}, {180, FKey::f6}, {98, FKey::f7}, {130, FKey::f7},
        {100, FKey::f8}, {133, FKey::f8}, {101, FKey::f9}, {132, FKey::f9}, {109, FKey::f10}, {146, FKey::f10},
        {103, FKey::f11}, {147, FKey::f11}, {111, FKey::f12}, {148, FKey::f12}, {57, FKey::capsLock},
        {61, FKey::rightOption}, {54, FKey::rightCommand}, {63, FKey::fnGlobe}, {179, FKey::fnGlobe},
        {10, FKey::section}, {105, FKey::f13}, {107, FKey::f14}, {113, FKey::f15}, {106, FKey::f16}, {64, FKey::f17},
        {79, FKey::f18}, {80, FKey::f19}};
    for (int code = 0; code <= 65535; ++code) {
        const auto found = expected.find(code);
        const std::optional<FKey> key = found == expected.end() ? std::nullopt : std::optional(found->second);
        ASSERT_EQ(fromKeyCode(static_cast<std::uint16_t>(code)), key) << code;
    }
}

TEST(FKeyLookup, keyCodesThatAreEasilyMistaken)
{
    EXPECT_EQ(fromKeyCode(127), FKey::f5);
    EXPECT_EQ(fromKeyCode(179), FKey::fnGlobe);
    EXPECT_EQ(fromKeyCode(0), std::nullopt);
    EXPECT_EQ(fromKeyCode(65535), std::nullopt);
    EXPECT_EQ(fromKeyCode(256 + 122), std::nullopt) << "the high byte counts";
    EXPECT_EQ(fromKeyCode(50), std::nullopt) << "the section key answers to 10 only";
    for (const int leftModifier : {55, 56, 58, 59})
        EXPECT_EQ(fromKeyCode(static_cast<std::uint16_t>(leftModifier)), std::nullopt);
}

TEST(FKeyLookup, thePrimaryCodeOfEveryKeyFindsTheKey)
{
    for (const FKey key : allFKeys)
        EXPECT_EQ(fromKeyCode(virtualKeyCode(key)), key);
}

TEST(FKeyLookup, everySystemKeyTypeAndNoOther)
{
    const std::map<int, FKey> expected = {{0, FKey::f12}, {1, FKey::f11}, {2, FKey::f2}, {3, FKey::f1}, {7, FKey::f10},
        {16, FKey::f8}, {17, FKey::f9}, {18, FKey::f7}, {21, FKey::f6}, {22, FKey::f5}};
    for (int type = -300; type <= 300; ++type) {
        const auto found = expected.find(type);
        const std::optional<FKey> key = found == expected.end() ? std::nullopt : std::optional(found->second);
        ASSERT_EQ(fromSystemKeyType(type), key) << type;
    }
}

TEST(FKeyLookup, systemKeyTypesOutsideTheTableAreAbsent)
{
    EXPECT_EQ(fromSystemKeyType(19), std::nullopt);
    EXPECT_EQ(fromSystemKeyType(23), std::nullopt);
    EXPECT_EQ(fromSystemKeyType(-1), std::nullopt);
    EXPECT_EQ(fromSystemKeyType(std::numeric_limits<int>::min()), std::nullopt);
    EXPECT_EQ(fromSystemKeyType(std::numeric_limits<int>::max()), std::nullopt);
}

/// What a usage means whatever its page.
const std::map<std::uint32_t, FKey> usagesOfAnyPage = {{3, FKey::fnGlobe}, {50, FKey::section}, {57, FKey::capsLock},
    {58, FKey::f1}, {59, FKey::f2}, {60, FKey::f3}, {61, FKey::f4}, {62, FKey::f5}, {63, FKey::f6}, {64, FKey::f7},
    {65, FKey::f8}, {66, FKey::f9}, {67, FKey::f10}, {68, FKey::f11}, {69, FKey::f12}, {100, FKey::section},
    {104, FKey::f13}, {105, FKey::f14}, {106, FKey::f15}, {107, FKey::f16}, {108, FKey::f17}, {109, FKey::f18},
    {110, FKey::f19}, {230, FKey::rightOption}, {231, FKey::rightCommand}, {669, FKey::fnGlobe}};

constexpr std::uint32_t usagesToTry = 1024;

void expectPage(std::uint32_t page, const std::map<std::uint32_t, FKey>& ofThePage)
{
    std::map<std::uint32_t, FKey> expected = ofThePage;
    expected.insert(usagesOfAnyPage.begin(), usagesOfAnyPage.end());
    for (std::uint32_t usage = 0; usage < usagesToTry; ++usage) {
        const auto found = expected.find(usage);
        const std::optional<FKey> key = found == expected.end() ? std::nullopt : std::optional(found->second);
        ASSERT_EQ(fromPageUsage(page, usage), key) << "page " << page << " usage " << usage;
    }
}

TEST(FKeyLookup, everyHidUsageAndNoOther)
{
    for (std::uint32_t usage = 0; usage < usagesToTry; ++usage) {
        const auto found = usagesOfAnyPage.find(usage);
        const std::optional<FKey> key = found == usagesOfAnyPage.end() ? std::nullopt : std::optional(found->second);
        ASSERT_EQ(fromHidUsage(usage), key) << usage;
    }
    EXPECT_EQ(fromHidUsage(0xFFFFFFFF), std::nullopt);
    EXPECT_EQ(fromHidUsage(0x10000 + 58), std::nullopt);
}

TEST(FKeyLookup, leftHandModifiersAreNoKeysOfTheVocabulary)
{
    EXPECT_EQ(fromHidUsage(226), std::nullopt);
    EXPECT_EQ(fromHidUsage(227), std::nullopt);
}

TEST(FKeyLookup, theVendorPageNamesItsOwnUsages)
{
    expectPage(65281,
        {{3, FKey::fnGlobe}, {4, FKey::f3}, {16, FKey::f3}, {32, FKey::f3}, {33, FKey::f4}, {48, FKey::f4},
            {49, FKey::f5}, {207, FKey::f5}, {47, FKey::f6}, {50, FKey::f6}});
}

TEST(FKeyLookup, theConsumerPageNamesItsOwnUsages)
{
    expectPage(12,
        {{111, FKey::f1}, {112, FKey::f2}, {182, FKey::f7}, {176, FKey::f8}, {205, FKey::f8}, {181, FKey::f9},
            {226, FKey::f10}, {234, FKey::f11}, {233, FKey::f12}, {669, FKey::fnGlobe}});
}

TEST(FKeyLookup, anyOtherPageDoesNotMatter)
{
    for (const std::uint32_t page : {0U, 1U, 7U, 11U, 13U, 0xFF00U, 0xFF02U, 0xFFFFFFFFU})
        expectPage(page, {});
    EXPECT_EQ(fromPageUsage(7, 58), FKey::f1);
    EXPECT_EQ(fromPageUsage(1, 58), FKey::f1);
}

TEST(FKeyLookup, thePageTableTakesPrecedence)
{
    EXPECT_EQ(fromPageUsage(12, 50), FKey::section);
    EXPECT_EQ(fromPageUsage(65281, 50), FKey::f6);
    EXPECT_EQ(fromPageUsage(12, 226), FKey::f10);
    EXPECT_EQ(fromPageUsage(7, 226), std::nullopt);
}

static_assert(fromKeyCode(122) == FKey::f1, "the look-ups cost nothing where the number is known");
static_assert(fromPageUsage(0xFF01, 50) == FKey::f6);

} // namespace

} // namespace tarvin
