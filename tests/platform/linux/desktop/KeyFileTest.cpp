#include "platform/linux/desktop/KeyFile.h"

#include "support/QtPrinters.h"

namespace tarvin::desktop {

using testing::ElementsAre;

namespace {

QStringList linesOf(QByteArrayView content)
{
    QStringList lines;
    readKeyFile(content, [&](const KeyFileLine& line) {
        lines += QStringLiteral("%1|%2|%3")
                     .arg(QString::fromUtf8(line.group), QString::fromUtf8(line.key), QString::fromUtf8(line.value));
        return true;
    });
    return lines;
}

} // namespace

TEST(KeyFile, eachKeyComesWithItsGroup)
{
    EXPECT_THAT(linesOf("[A]\nx=1\n[B]\nx=2\n"), ElementsAre(u"A|x|1", u"B|x|2"));
}

TEST(KeyFile, commentsBlankLinesAndBrokenLinesArePassedOver)
{
    EXPECT_THAT(linesOf("# head\n\n[A]\nno entry\n=nothing\n  # more\nx = 1 = 2 \r\n[broken\ny=3"),
        ElementsAre(u"A|x|1 = 2", u"|y|3"));
}

TEST(KeyFile, theVisitorCanStop)
{
    int visits = 0;
    readKeyFile("a=1\nb=2\n", [&](const KeyFileLine&) { return ++visits == 0; });
    EXPECT_EQ(visits, 1);
}

TEST(KeyFile, escapesOfTextAreResolved)
{
    EXPECT_EQ(unescapedValue("a\\sb\\nc\\td\\re\\\\f\\q"), QStringLiteral("a b\nc\td\re\\f\\q"));
    EXPECT_EQ(unescapedValue("ends with \\"), QStringLiteral("ends with \\"));
}

TEST(KeyFile, whatIsEscapedReadsBackAsItWas)
{
    for (const QString& text :
        {QStringLiteral(" leading"), QStringLiteral("a\\b\nc\td\re"), QStringLiteral("ü \\n"), QString()})
        EXPECT_EQ(unescapedValue(escapedValue(text).toUtf8()), text);
    EXPECT_EQ(escapedValue(QStringLiteral("a\nb")), QStringLiteral("a\\nb"));
}

TEST(KeyFile, listsEndTheirPartsWithSemicolons)
{
    EXPECT_THAT(listValue("a;b\\;c;;d"), ElementsAre(u"a", u"b;c", u"d"));
    EXPECT_TRUE(listValue("").isEmpty());
    EXPECT_TRUE(listValue(";").isEmpty());
}

} // namespace tarvin::desktop
