#include "studio/applications/ApplicationSearch.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin {

namespace {

InstalledApplication named(const QString& name, const QString& identifier = u"org.example"_qs)
{
    return {.name = name, .bundleIdentifier = identifier, .path = {}, .icon = {}};
}

int score(const InstalledApplication& application, const QString& query)
{
    return applicationScore(searchTexts(application), query);
}

QStringList namesOf(const QList<InstalledApplication>& applications)
{
    QStringList names;
    for (const InstalledApplication& application : applications)
        names += application.name;
    return names;
}

TEST(ApplicationSearch, theFirstRuleThatAppliesGivesTheScore)
{
    EXPECT_EQ(score(named(u"Terminal"_qs), u"terminal"_qs), 1000);
    EXPECT_EQ(score(named(u"Terminal"_qs), u"term"_qs), 600);
    EXPECT_EQ(score(named(u"Visual Studio Code"_qs), u"code"_qs), 450);
    EXPECT_EQ(score(named(u"Terminal"_qs), u"rmin"_qs), 300);
    EXPECT_EQ(score(named(u"Safari"_qs, u"com.apple.Safari"_qs), u"apple"_qs), 150);
    EXPECT_EQ(score(named(u"Safari"_qs, u"com.apple.Safari"_qs), u"xcode"_qs), 0);
}

TEST(ApplicationSearch, aWordBeginsBehindAnythingThatIsNoLetterAndNoDigit)
{
    EXPECT_EQ(score(named(u"Foo-Bar_baz.qux"_qs), u"bar"_qs), 450);
    EXPECT_EQ(score(named(u"Foo-Bar_baz.qux"_qs), u"baz"_qs), 450);
    EXPECT_EQ(score(named(u"Foo-Bar_baz.qux"_qs), u"qux"_qs), 450);
    EXPECT_EQ(score(named(u"Foo2bar"_qs), u"bar"_qs), 300);
    EXPECT_EQ(score(named(u"Foo-Bar"_qs), u"foo-b"_qs), 600);
}

TEST(ApplicationSearch, capitalsAndBlanksAroundMakeNoDifference)
{
    const ApplicationSearch search({named(u"Safari"_qs), named(u"Terminal"_qs)});
    EXPECT_EQ(namesOf(search.ranked(u"  SAFARI \n"_qs)), QStringList{u"Safari"_qs});
    EXPECT_EQ(namesOf(search.containing(u"  SAFARI \n"_qs)), QStringList{u"Safari"_qs});
}

TEST(ApplicationSearch, equalsStandInTheOrderOfTheirNames)
{
    const ApplicationSearch search({named(u"a term"_qs), named(u"Termite"_qs), named(u"Terms"_qs)});
    EXPECT_EQ(namesOf(search.ranked(u"term"_qs)), (QStringList{u"Termite"_qs, u"Terms"_qs, u"a term"_qs}));
}

TEST(ApplicationSearch, aBlankTextFindsEverything)
{
    const ApplicationSearch search({named(u"Safari"_qs), named(u"Terminal"_qs)});
    EXPECT_EQ(search.ranked(u" \t"_qs).size(), 2);
    EXPECT_EQ(search.containing(QString()).size(), 2);
}

TEST(ApplicationSearch, accentsMatchInEitherForm)
{
    const ApplicationSearch search({named(QStringLiteral("Cafe\u0301"))});
    EXPECT_EQ(search.ranked(QStringLiteral("caf\u00e9")).size(), 1);
}

} // namespace

} // namespace tarvin
