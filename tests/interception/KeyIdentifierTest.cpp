#include "interception/KeyIdentifier.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <map>

namespace tarvin::test {

namespace {

QString identifier(KeyCode code)
{
    return keyIdentifier(code).value_or(u"none").toString();
}

/// The identifiers of consecutive codes, with a blank between.
QString identifiers(KeyCode first, KeyCode last)
{
    QStringList texts;
    for (KeyCode code = first; code <= last; ++code)
        texts += identifier(code);
    return texts.join(u' ');
}

} // namespace

TEST(KeyIdentifier, lettersAndDigitsAreNamedByTheirCaps)
{
    EXPECT_EQ(identifiers(0, 9), u"A S D F H G Z X C V");
    EXPECT_EQ(identifiers(11, 17), u"B Q W E R Y T");
    EXPECT_EQ(identifiers(18, 23), u"1 2 3 4 6 5");
    EXPECT_EQ(identifiers(25, 26), u"9 7");
    EXPECT_EQ(identifiers(28, 29), u"8 0");
    EXPECT_EQ(identifiers(31, 32), u"O U");
    EXPECT_EQ(identifiers(34, 38), u"I P return L J");
    EXPECT_EQ(identifier(40), u"K");
    EXPECT_EQ(identifiers(45, 46), u"N M");
}

TEST(KeyIdentifier, theOtherKeysOfTheMainBlockAreNamedInWords)
{
    EXPECT_EQ(identifiers(48, 49), u"tab space");
    EXPECT_EQ(identifier(51), u"delete");
    EXPECT_EQ(identifier(53), u"esc");
    EXPECT_EQ(identifiers(123, 126), u"arrow_left arrow_right arrow_down arrow_up");
}

TEST(KeyIdentifier, rightControlAndRightShiftAreDrawnAsTheirTwins)
{
    EXPECT_EQ(identifier(55), u"command_left");
    EXPECT_EQ(identifier(58), u"option_left");
    EXPECT_EQ(identifier(56), u"shift_left");
    EXPECT_EQ(identifier(60), u"shift_left");
    EXPECT_EQ(identifier(59), u"control");
    EXPECT_EQ(identifier(62), u"control");
}

TEST(KeyIdentifier, aCustomisableKeyIsNamedByItsRawValueUnderEachOfItsCodes)
{
    EXPECT_EQ(identifier(122), u"F1");
    EXPECT_EQ(identifier(145), u"F1");
    EXPECT_EQ(identifier(10), u"Section");
    EXPECT_EQ(identifier(80), u"F19");
    EXPECT_EQ(identifier(179), u"FnGlobe");
    for (const detail::RawKeyRow& row : detail::keyCodeRows)
        EXPECT_EQ(identifier(static_cast<KeyCode>(row.number)), rawValue(row.key));
}

TEST(KeyIdentifier, theCustomisableModifiersAreNotDrawnAsTheirTwins)
{
    EXPECT_EQ(identifier(54), u"RightCommand");
    EXPECT_EQ(identifier(57), u"CapsLock");
    EXPECT_EQ(identifier(61), u"RightOption");
}

TEST(KeyIdentifier, punctuationAndUnknownKeysHaveNone)
{
    for (const int code : {24, 27, 30, 33, 39, 41, 42, 43, 44, 47, 50, 52, 65, 82, 92, 114, 121, 128, 255, 65535})
        EXPECT_EQ(identifier(static_cast<KeyCode>(code)), u"none") << code;
}

TEST(KeyIdentifier, nothingIsNamedBeyondTheListedCodes)
{
    int named = 0;
    for (int code = 0; code <= 0xFFFF; ++code)
        named += keyIdentifier(static_cast<KeyCode>(code)) ? 1 : 0;
    constexpr int drawnKeys = 51;
    EXPECT_EQ(named, drawnKeys + static_cast<int>(detail::keyCodeRows.size()));
}

} // namespace tarvin::test
