#include "model/TextLength.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin {

namespace {

TEST(TextLength, aCharacterIsWhatAReaderCallsOne)
{
    EXPECT_EQ(userPerceivedLength(u""), 0);
    EXPECT_EQ(userPerceivedLength(QString()), 0);
    EXPECT_EQ(userPerceivedLength(u"abc"), 3);
    EXPECT_EQ(userPerceivedLength(u"é"), 1);
    EXPECT_EQ(userPerceivedLength(u"e\u0301"), 1) << "an accent of its own";
    EXPECT_EQ(userPerceivedLength(u"🌐"), 1) << "two units of storage";
    EXPECT_EQ(userPerceivedLength(u"👍🏽"), 1) << "a skin tone";
    EXPECT_EQ(userPerceivedLength(u"👨\u200D👩\u200D👧"), 1) << "a family";
    EXPECT_EQ(userPerceivedLength(u"🇩🇪🇫🇷"), 2) << "two flags";
    EXPECT_EQ(userPerceivedLength(u"a\r\nb"), 3) << "one line break";
}

TEST(TextLength, theFirstCharactersAreTakenWhole)
{
    EXPECT_EQ(firstUserPerceived(u"abcdef", 4), u"abcd");
    EXPECT_EQ(firstUserPerceived(u"e\u0301e\u0301x", 2), u"e\u0301e\u0301");
    EXPECT_EQ(firstUserPerceived(u"👨\u200D👩\u200D👧🌐x", 1), u"👨\u200D👩\u200D👧");
    EXPECT_EQ(firstUserPerceived(u"🇩🇪🇫🇷", 1), u"🇩🇪");
}

TEST(TextLength, theFirstCharactersOfALongTextAreTakenWholeToo)
{
    const QString tall = u'e' + u"\u0301"_qs.repeated(100);
    EXPECT_EQ(firstUserPerceived(tall.repeated(5), 1), tall) << "one character of 101 units";
    EXPECT_EQ(firstUserPerceived(tall.repeated(5), 2), tall.repeated(2));

    const QString toned = u"👍🏽"_qs;
    for (qsizetype lead = 0; lead < 20; ++lead) {
        const QString text = QString(lead, u'x') + toned.repeated(20);
        const QString expected = QString(lead, u'x') + toned;
        EXPECT_EQ(firstUserPerceived(text, lead + 1), expected) << lead << " letters before";
    }
    // A sign outside the first plane that joins to the letter before it, at every distance from the beginning.
    const QString joined = u'e' + u"\U0001D165"_qs;
    for (qsizetype accents = 0; accents < 40; ++accents) {
        const QString character = u'e' + u"\u0301"_qs.repeated(accents) + u"\U0001D165"_qs;
        EXPECT_EQ(firstUserPerceived(character + joined.repeated(20), 1), character) << accents << " accents before";
    }
}

TEST(TextLength, takingAtLeastAllCharactersGivesTheText)
{
    EXPECT_EQ(firstUserPerceived(u"abc", 3), u"abc");
    EXPECT_EQ(firstUserPerceived(u"abc", 99), u"abc");
    EXPECT_EQ(firstUserPerceived(u"", 5), u"");
}

TEST(TextLength, takingNoneGivesNothing)
{
    EXPECT_EQ(firstUserPerceived(u"abc", 0), u"");
    EXPECT_EQ(firstUserPerceived(u"abc", -1), u"");
}

TEST(TextLength, aTextUpToTheLimitStaysWhole)
{
    EXPECT_EQ(cutText(u"12345", 5, 3), u"12345");
    EXPECT_EQ(cutText(u"123456", 5, 3), u"123...");
    EXPECT_EQ(cutText(u"", 5, 3), u"");
    EXPECT_EQ(cutText(u"👍🏽👍🏽👍🏽", 3, 1), u"👍🏽👍🏽👍🏽");
    EXPECT_EQ(cutText(u"👍🏽👍🏽👍🏽👍🏽", 3, 1), u"👍🏽...");
}

TEST(TextLength, aLongTextIsCountedAsAShortOne)
{
    const QString plain = u"äx"_qs.repeated(500);
    EXPECT_EQ(userPerceivedLength(plain), 1000);
    EXPECT_EQ(userPerceivedLength(plain + u"e\u0301"_qs), 1001);
    EXPECT_EQ(userPerceivedLength(u"e\u0301"_qs + plain), 1001);
    EXPECT_EQ(userPerceivedLength(u"a\r\nb\n\r"_qs.repeated(100)), 500);
    EXPECT_EQ(userPerceivedLength(u"a\r\nb\n\r"_qs.repeated(100) + u"\u4e16"_qs), 501);
}

} // namespace

} // namespace tarvin
