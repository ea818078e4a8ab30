#include "model/CanonicalEquivalence.h"

#include <QString>

#include <gtest/gtest.h>

namespace tarvin {

namespace {

TEST(CanonicalEquivalence, anAccentMayBeWrittenInOneOrInTwo)
{
    EXPECT_TRUE(areCanonicallyEquivalent(u"caf\u00e9", u"cafe\u0301"));
    EXPECT_TRUE(areCanonicallyEquivalent(u"cafe\u0301s", u"caf\u00e9s"));
    EXPECT_TRUE(areCanonicallyEquivalent(u"caf\u00e9 \u00e9t\u00e9", u"cafe\u0301 e\u0301te\u0301"));
}

TEST(CanonicalEquivalence, accentsThatStandApartMayComeInAnyOrder)
{
    EXPECT_TRUE(areCanonicallyEquivalent(u"e\u0323\u0301", u"e\u0301\u0323"));
    EXPECT_TRUE(areCanonicallyEquivalent(u"x\u1e9d", u"x\u1e9d"));
}

TEST(CanonicalEquivalence, theSameWordInAnotherScriptIsTheSame)
{
    EXPECT_TRUE(areCanonicallyEquivalent(u"\uac00\uac01!", u"\u1100\u1161\u1100\u1161\u11a8!"));
    EXPECT_FALSE(areCanonicallyEquivalent(u"\uac00!", u"\uac01!"));
}

TEST(CanonicalEquivalence, caseAndBlanksCount)
{
    EXPECT_FALSE(areCanonicallyEquivalent(u"a", u"A"));
    EXPECT_FALSE(areCanonicallyEquivalent(u"a", u"a "));
    EXPECT_FALSE(areCanonicallyEquivalent(u" a", u"a"));
}

TEST(CanonicalEquivalence, aMarkMoreIsAnotherText)
{
    EXPECT_FALSE(areCanonicallyEquivalent(u"e", u"e\u0301"));
    EXPECT_FALSE(areCanonicallyEquivalent(u"e\u0301 x", u"e x"));
    EXPECT_FALSE(areCanonicallyEquivalent(u"e x", u"e\u0301 x"));
    EXPECT_FALSE(areCanonicallyEquivalent(u"\u00e9", u"e"));
}

TEST(CanonicalEquivalence, emptyTextsAreTheSame)
{
    EXPECT_TRUE(areCanonicallyEquivalent(u"", u""));
    EXPECT_FALSE(areCanonicallyEquivalent(u"", u"a"));
    EXPECT_FALSE(areCanonicallyEquivalent(u"a", u""));
    EXPECT_FALSE(areCanonicallyEquivalent(u"", u"\u0301"));
}

/// The short way gives what composing both texts whole gives.
TEST(CanonicalEquivalence, itAgreesWithComposingTheWholeTexts)
{
    const QStringList parts = {
        u"a"_qs, u"\u00e9"_qs, u"e\u0301"_qs, u"\u0301"_qs, u"e"_qs, u"\u0323"_qs, u"\uac00"_qs, u"\u1100\u1161"_qs};
    QStringList texts = {QString()};
    for (int length = 0; length < 3; ++length) {
        const QStringList shorter = texts;
        for (const QString& text : shorter) {
            for (const QString& part : parts)
                texts << text + part;
        }
        texts.removeDuplicates();
    }
    for (const QString& left : texts) {
        const QString composedLeft = left.normalized(QString::NormalizationForm_C);
        for (const QString& right : texts) {
            const bool areSame = composedLeft == right.normalized(QString::NormalizationForm_C);
            ASSERT_EQ(areCanonicallyEquivalent(left, right), areSame)
                << left.toStdString() << " and " << right.toStdString();
        }
    }
}

} // namespace

} // namespace tarvin
