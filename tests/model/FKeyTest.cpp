#include "model/FKey.h"

#include "model/ModelPrinters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

namespace tarvin {

namespace {

TEST(FKey, thereAre24KeysInTheOrderThatFilesRelyOn)
{
    QStringList rawValues;
    for (const FKey key : allFKeys)
        rawValues << rawValue(key).toString();
    EXPECT_EQ(rawValues,
        u"F1 F2 F3 F4 F5 F6 F7 F8 F9 F10 F11 F12 CapsLock RightOption RightCommand FnGlobe Section "
        u"F13 F14 F15 F16 F17 F18 F19"_qs.split(u' '));
}

TEST(FKey, theOrderOfAKeyIsItsPlaceInTheList)
{
    for (std::size_t position = 0; position < fKeyCount; ++position)
        EXPECT_EQ(orderOf(allFKeys[position]), position);
    EXPECT_EQ(orderOf(FKey::f1), 0U);
    EXPECT_EQ(orderOf(FKey::capsLock), 12U);
    EXPECT_EQ(orderOf(FKey::f13), 17U);
    EXPECT_EQ(orderOf(FKey::f19), 23U);
}

TEST(FKey, theThreeGroupsPartitionTheKeysInOrder)
{
    std::vector<FKey> joined(functionRowKeys.begin(), functionRowKeys.end());
    joined.insert(joined.end(), primeSpecialKeys.begin(), primeSpecialKeys.end());
    joined.insert(joined.end(), extendedFKeys.begin(), extendedFKeys.end());
    EXPECT_TRUE(std::ranges::equal(joined, allFKeys));

    EXPECT_EQ(functionRowKeys.size(), 12U);
    EXPECT_EQ(functionRowKeys.back(), FKey::f12);
    EXPECT_EQ(primeSpecialKeys.size(), 5U);
    EXPECT_EQ(primeSpecialKeys.front(), FKey::capsLock);
    EXPECT_EQ(primeSpecialKeys.back(), FKey::section);
    EXPECT_EQ(extendedFKeys.size(), 7U);
    EXPECT_EQ(extendedFKeys.front(), FKey::f13);
}

TEST(FKey, capsLockIsTheFirstKeyOutsideTheFunctionRow)
{
    EXPECT_EQ(*std::ranges::find_if_not(allFKeys, isFunctionRowKey), FKey::capsLock);
    EXPECT_EQ(std::ranges::count_if(allFKeys, isFunctionRowKey), 12);
}

TEST(FKey, theExtendedKeysAreNotFunctionRowKeys)
{
    EXPECT_FALSE(isFunctionRowKey(FKey::f13));
    EXPECT_FALSE(isFunctionRowKey(FKey::f19));
    EXPECT_TRUE(isFunctionRowKey(FKey::f12));
}

TEST(FKey, everyKeyIsFoundByItsRawValue)
{
    for (const FKey key : allFKeys)
        EXPECT_EQ(fKeyFromRawValue(rawValue(key)), key);
}

TEST(FKey, rawValuesAreReadExactly)
{
    EXPECT_EQ(fKeyFromRawValue(u"F10"), FKey::f10);
    EXPECT_EQ(fKeyFromRawValue(u"f10"), std::nullopt);
    EXPECT_EQ(fKeyFromRawValue(u"F20"), std::nullopt);
    EXPECT_EQ(fKeyFromRawValue(u"F1 "), std::nullopt);
    EXPECT_EQ(fKeyFromRawValue(u"capsLock"), std::nullopt);
    EXPECT_EQ(fKeyFromRawValue(u"Caps Lock"), std::nullopt);
    EXPECT_EQ(fKeyFromRawValue(u""), std::nullopt);
    EXPECT_EQ(fKeyFromRawValue(QString()), std::nullopt);
}

TEST(FKey, namesAndLabelsReadAsOnTheKeyboard)
{
    EXPECT_EQ(displayName(FKey::f1), u"F1");
    EXPECT_EQ(displayName(FKey::capsLock), u"Caps Lock (⇪)");
    EXPECT_EQ(displayName(FKey::rightOption), u"Right Option (⌥)");
    EXPECT_EQ(displayName(FKey::rightCommand), u"Right Command (⌘)");
    EXPECT_EQ(displayName(FKey::fnGlobe), u"Function / Globe (fn 🌐)");
    EXPECT_EQ(displayName(FKey::section), u"Section (§/±)");
    EXPECT_EQ(displayName(FKey::f16), u"F16");

    EXPECT_EQ(defaultLabel(FKey::f3), u"Mission Control");
    EXPECT_EQ(defaultLabel(FKey::f6), u"Do Not Disturb");
    EXPECT_EQ(defaultLabel(FKey::f8), u"Play/Pause");
    EXPECT_EQ(defaultLabel(FKey::fnGlobe), u"Function / Globe");
    EXPECT_EQ(defaultLabel(FKey::section), u"Section (§/±)");
    EXPECT_EQ(defaultLabel(FKey::f19), u"F19");

    EXPECT_EQ(defaultIcon(FKey::f1), u"sun.min.fill");
    EXPECT_EQ(defaultIcon(FKey::f12), u"speaker.wave.3.fill");
    EXPECT_EQ(defaultIcon(FKey::capsLock), u"capslock.fill");
    EXPECT_EQ(defaultIcon(FKey::section), u"paragraphsign");
    for (const FKey key : extendedFKeys)
        EXPECT_EQ(defaultIcon(key), u"f.cursive");
}

TEST(FKey, factoryActionsOfTheFunctionRow)
{
    EXPECT_EQ(defaultAction(FKey::f1), KeyAction::brightnessDown);
    EXPECT_EQ(defaultAction(FKey::f4), KeyAction::spotlight);
    EXPECT_EQ(defaultAction(FKey::f5), KeyAction::dictation);
    EXPECT_EQ(defaultAction(FKey::f10), KeyAction::mute);
    EXPECT_EQ(defaultAction(FKey::f12), KeyAction::volumeUp);
}

TEST(FKey, rewindAndFastForwardStandForTheTrackActions)
{
    EXPECT_EQ(defaultLabel(FKey::f7), u"Rewind");
    EXPECT_EQ(defaultAction(FKey::f7), KeyAction::previousTrack);
    EXPECT_EQ(defaultLabel(FKey::f9), u"Fast Forward");
    EXPECT_EQ(defaultAction(FKey::f9), KeyAction::nextTrack);
}

TEST(FKey, specialKeysKeepTheirNativeActionAndExtendedKeysHaveNone)
{
    EXPECT_EQ(defaultAction(FKey::capsLock), KeyAction::nativeCapsLock);
    EXPECT_EQ(defaultAction(FKey::rightOption), KeyAction::nativeRightOption);
    EXPECT_EQ(defaultAction(FKey::rightCommand), KeyAction::nativeRightCommand);
    EXPECT_EQ(defaultAction(FKey::fnGlobe), KeyAction::nativeFnGlobe);
    EXPECT_EQ(defaultAction(FKey::section), KeyAction::nativeSection);
    for (const FKey key : extendedFKeys)
        EXPECT_EQ(defaultAction(key), KeyAction::unassigned);
}

TEST(FKey, virtualKeyCodes)
{
    constexpr std::array<std::uint16_t, fKeyCount> codes = {
        122, 120, 99, 118, 96, 97, 98, 100, 101, 109, 103, 111, 57, 61, 54, 63, 10, 105, 107, 113, 106, 64, 79, 80};
    for (const FKey key : allFKeys)
        EXPECT_EQ(virtualKeyCode(key), codes[orderOf(key)]) << key;
    EXPECT_EQ(std::set(codes.begin(), codes.end()).size(), fKeyCount);
}

} // namespace

} // namespace tarvin
