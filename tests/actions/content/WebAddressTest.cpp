#include "actions/content/WebAddress.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin {

namespace {

TEST(WebAddress, aBareDomainBetweenBlanksGoesOverHttps)
{
    EXPECT_EQ(webAddress(u" \n example.org\t"_qs), u"https://example.org"_qs);
    EXPECT_EQ(webAddress(u"Example.org/Path?a=B#c"_qs), u"https://Example.org/Path?a=B#c"_qs);
}

TEST(WebAddress, anAddressWithSchemeStaysAsItIs)
{
    EXPECT_EQ(webAddress(u"http://example.org"_qs), u"http://example.org"_qs);
    EXPECT_EQ(webAddress(u"https://example.org/a%20b"_qs), u"https://example.org/a%20b"_qs);
}

TEST(WebAddress, anyOtherSchemeGetsOneInFront)
{
    EXPECT_EQ(webAddress(u"HTTP://example.org"_qs), u"https://HTTP://example.org"_qs);
    EXPECT_EQ(webAddress(u"localhost:8080"_qs), u"https://localhost:8080"_qs);
}

TEST(WebAddress, nothingAndBlanksMeanTheDefaultAddress)
{
    const std::optional<QString> standard = webAddress(std::nullopt);
    ASSERT_TRUE(standard);
    EXPECT_TRUE(standard->startsWith(u"https://"));
    EXPECT_EQ(webAddress(u""_qs), standard);
    EXPECT_EQ(webAddress(u" \n"_qs), standard);
}

TEST(WebAddress, whatAnAddressMayNotHoldIsEscaped)
{
    EXPECT_EQ(webAddress(u"example.org/a b"_qs), u"https://example.org/a%20b"_qs);
    EXPECT_EQ(webAddress(u"example.org/ü"_qs), u"https://example.org/%C3%BC"_qs);
}

TEST(WebAddress, aTextThatMakesNoAddressMakesNone)
{
    EXPECT_EQ(webAddress(u"exa mple.org"_qs), std::nullopt);
    EXPECT_EQ(webAddress(u"http://example.org:port"_qs), std::nullopt);
}

TEST(AssistantAddress, theQuestionIsTheQuery)
{
    const QString page = assistantAddress(QString());
    EXPECT_TRUE(page.startsWith(u"https://"));
    EXPECT_TRUE(page.endsWith(u"/app"));
    EXPECT_EQ(assistantAddress(u"why"_qs), page + u"?q=why"_qs);
    EXPECT_EQ(assistantAddress(u"a b\n\"ü\" 100%"_qs), page + u"?q=a%20b%0A%22%C3%BC%22%20100%25"_qs);
}

TEST(AssistantAddress, whatAQueryMayHoldStaysAsItIs)
{
    const QString page = assistantAddress(QString());
    EXPECT_EQ(assistantAddress(u"a&b=c?d/e:f+g!"_qs), page + u"?q=a&b=c?d/e:f+g!"_qs);
    EXPECT_EQ(assistantAddress(u"#[]{}"_qs), page + u"?q=%23%5B%5D%7B%7D"_qs);
}

TEST(AssistantAddress, halfACharacterMakesAnEmptyQuestion)
{
    EXPECT_EQ(assistantAddress(QString(QChar(0xD800))), assistantAddress(QString()) + u"?q="_qs);
}

} // namespace

} // namespace tarvin
