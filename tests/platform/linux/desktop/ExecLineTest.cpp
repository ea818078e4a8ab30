#include "platform/linux/desktop/ExecLine.h"

#include "support/QtPrinters.h"

namespace tarvin::desktop {

using testing::ElementsAre;

TEST(ExecLine, wordsAreSplitAtBlanksOutsideQuotes)
{
    EXPECT_THAT(splitExecLine(QStringLiteral("prog  \"a b\" c")), ElementsAre(u"prog", u"a b", u"c"));
    EXPECT_THAT(splitExecLine(QStringLiteral("prog \"\"")), ElementsAre(u"prog", u""));
    EXPECT_TRUE(splitExecLine(QString()).isEmpty());
}

TEST(ExecLine, backslashesInQuotesProtectFourCharacters)
{
    EXPECT_THAT(splitExecLine(QStringLiteral(R"("a\"b\$c\`d\\e\f")")), ElementsAre(uR"(a"b$c`d\e\f)"));
}

TEST(ExecLine, fieldCodesAreDropped)
{
    EXPECT_THAT(splitExecLine(QStringLiteral("prog %U --x=%f 100%%")), ElementsAre(u"prog", u"--x=", u"100%"));
}

TEST(ExecLine, aPlainPathNeedsNoQuotes)
{
    EXPECT_EQ(quotedExecArgument(QStringLiteral("/usr/bin/tarvin-1.0")), QStringLiteral("/usr/bin/tarvin-1.0"));
}

TEST(ExecLine, awkwardPathsAreQuoted)
{
    EXPECT_EQ(quotedExecArgument(QStringLiteral("/a b/t")), QStringLiteral("\"/a b/t\""));
    EXPECT_EQ(quotedExecArgument(QStringLiteral(R"(/a"b$c`d\e)")), QStringLiteral(R"("/a\"b\$c\`d\\e")"));
    EXPECT_EQ(quotedExecArgument(QStringLiteral("/50%/t")), QStringLiteral("/50%%/t"));
    EXPECT_EQ(quotedExecArgument(QString()), QStringLiteral("\"\""));
}

TEST(ExecLine, whatIsQuotedIsOneWordAgain)
{
    for (const QString& path : {QStringLiteral("/a b/c"), QStringLiteral(R"(/x"y\z$`'(1)&~#*?<>|;)"),
             QStringLiteral("/100%f"), QStringLiteral("tab\there")})
        EXPECT_THAT(splitExecLine(quotedExecArgument(path)), ElementsAre(path));
}

} // namespace tarvin::desktop
