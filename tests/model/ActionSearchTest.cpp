#include "model/ActionSearch.h"

#include "model/ModelPrinters.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <random>

namespace tarvin::test {

namespace {

using testing::IsEmpty;

class ActionSearch : public testing::Test
{
protected:
    // Titles of equal rank stand in the order of the user's language.
    ActionSearch() { QLocale::setDefault(QLocale(QLocale::English)); }
    ~ActionSearch() override { QLocale::setDefault(QLocale::system()); }
    Q_DISABLE_COPY_MOVE(ActionSearch)
};

QString found(QStringView query)
{
    QStringList results;
    for (const ActionMatch& match : searchActions(query))
        results += u"%1=%2"_qs.arg(rawValue(match.action)).arg(match.score);
    return results.join(u' ');
}

struct KeptSearch
{
    QString query;
    QString found;
};

/// Reads the table beside this file.
QList<KeptSearch> keptSearches()
{
    QFile file(QStringLiteral(TARVIN_SEARCHES));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QList<KeptSearch> searches;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString& line : lines) {
        if (!line.startsWith(u'"'))
            continue;
        const qsizetype end = line.lastIndexOf(u'"');
        searches.append({line.mid(1, end - 1), line.mid(end + 1).trimmed()});
    }
    return searches;
}

TEST_F(ActionSearch, everyKeptQueryFindsWhatTheRulesSayInTheirOrder)
{
    const QList<KeptSearch> searches = keptSearches();
    EXPECT_GE(searches.size(), 100);
    for (const KeptSearch& search : searches)
        EXPECT_EQ(found(search.query), search.found) << search.query.toStdString();
}

TEST_F(ActionSearch, aBlankQueryIsNoSearch)
{
    for (const QStringView blank : {QStringView(u""), QStringView(u"   "), QStringView(u"\n\t\u2003")}) {
        EXPECT_THAT(searchActions(blank), IsEmpty());
        EXPECT_EQ(searchScore(KeyAction::mute, blank), 0);
    }
}

TEST_F(ActionSearch, aTitleInFullScores3000AndComesFirst)
{
    for (const KeyAction action : allConfigurableKeyActions) {
        const QString typed = title(action).toString().toUpper();
        EXPECT_EQ(searchScore(action, typed), 3000) << typed.toStdString();
        const QList<ActionMatch> matches = searchActions(typed);
        ASSERT_FALSE(matches.isEmpty()) << typed.toStdString();
        // Only the words of a longer title that holds this one can be worth more.
        if (matches.first().action != action) {
            EXPECT_GT(matches.first().score, 3000) << typed.toStdString();
        }
    }
}

TEST_F(ActionSearch, aWholeKeywordScores2600UnlessItIsTheTitle)
{
    for (const KeyAction action : allKeyActions) {
        for (const QStringView keyword : keywords(action)) {
            const int expected = title(action).compare(keyword, Qt::CaseInsensitive) == 0 ? 3000 : 2600;
            EXPECT_EQ(searchScore(action, keyword), expected) << keyword.toString().toStdString();
        }
    }
}

TEST_F(ActionSearch, theBeginningOfATitleScoresAtLeast2200)
{
    for (const KeyAction action : allConfigurableKeyActions) {
        const QStringView whole = title(action);
        for (qsizetype length = 1; length < whole.size(); ++length) {
            const QStringView beginning = whole.first(length);
            EXPECT_GE(searchScore(action, beginning), 2200) << beginning.toString().toStdString();
        }
    }
}

TEST_F(ActionSearch, theHeadingIsTriedBeforeTheAcronymThoughItIsWorthLess)
{
    // "mm" stands in "recommended" and is what "Mute microphone" begins with.
    EXPECT_EQ(searchScore(KeyAction::toggleMicMute, u"mm"), 300);
    EXPECT_EQ(searchScore(KeyAction::forceQuit, u"fq"), 450);
}

TEST_F(ActionSearch, twoLettersOrMoreFindTheBeginningOfAnAcronym)
{
    EXPECT_EQ(searchScore(KeyAction::showActionsRing, u"sar"), 450);
    EXPECT_EQ(searchScore(KeyAction::closeBrowserTab, u"cb"), 450);
    EXPECT_EQ(searchScore(KeyAction::closeBrowserTab, u"bt"), 0);
}

TEST_F(ActionSearch, oneMissingWordCosts400UpToThreeWordsAndEverythingFromFourOn)
{
    EXPECT_EQ(searchScore(KeyAction::nextTrack, u"music song radio"), 850 + 850 - 400);
    EXPECT_EQ(searchScore(KeyAction::nextTrack, u"music song media radio"), 0);
    EXPECT_EQ(searchScore(KeyAction::nextTrack, u"music song media spotify"), 4 * 850 + 1200);
    EXPECT_THAT(searchActions(u"music song media radio"), IsEmpty());
}

TEST_F(ActionSearch, aDiscountNeverGoesBelowZero)
{
    // "/" is worth 200, less than the discount.
    EXPECT_EQ(searchScore(KeyAction::playPause, u"/ qqqq"), 0);
}

TEST_F(ActionSearch, wordsThatStandTogetherEarnMoreTheCloserTheTextIsToTheUser)
{
    EXPECT_EQ(searchScore(KeyAction::snapWindowMaximize, u"full screen"), 1000 + 1000 + 1200 + 1000); // title
    EXPECT_EQ(searchScore(KeyAction::shutDown, u"off display"), 850 - 400); // nowhere
    EXPECT_EQ(searchScore(KeyAction::sleepDisplay, u"off disp"), 850 + 750 + 1200 + 800); // a keyword
    EXPECT_EQ(searchScore(KeyAction::snapWindowLeft, u"front window"), 500 + 1000 + 1200 + 400); // the subtitle
    EXPECT_EQ(searchScore(KeyAction::snapWindowLeft, u"window front"), 1000 + 500 + 1200);
}

TEST_F(ActionSearch, equalScoresStandInTheOrderOfTheirTitlesWhateverTheCase)
{
    for (const QStringView query : {QStringView(u"m"), QStringView(u"other"), QStringView(u"window")}) {
        const QList<ActionMatch> matches = searchActions(query);
        for (qsizetype i = 1; i < matches.size(); ++i) {
            const ActionMatch& before = matches.at(i - 1);
            const ActionMatch& after = matches.at(i);
            EXPECT_GE(before.score, after.score);
            if (before.score == after.score) {
                EXPECT_LE(title(before.action).toString().toLower(), title(after.action).toString().toLower());
            }
        }
    }
}

TEST_F(ActionSearch, letterCaseAndSpaceAroundTheQueryDoNotMatter)
{
    const QList<ActionMatch> expected = searchActions(u"full screen");
    EXPECT_EQ(searchActions(u"  FULL Screen\n"), expected);
    // Between the words they do: the words are found, the phrase is not.
    EXPECT_EQ(searchScore(KeyAction::snapWindowMaximize, u"full   screen"), 3200);
}

TEST_F(ActionSearch, aLetterAndItsAccentMayComeApart)
{
    EXPECT_EQ(searchScore(KeyAction::appExpose, u"expose\u0301"), 1000);
    EXPECT_EQ(searchScore(KeyAction::appExpose, u"expos\u00e9"), 1000);
}

TEST_F(ActionSearch, onlyWhatThePickerOffersIsFound)
{
    EXPECT_GT(searchScore(KeyAction::nativeCapsLock, u"caps lock"), 0);
    for (const ActionMatch& match : searchActions(u"caps lock"))
        EXPECT_LT(static_cast<std::size_t>(match.action), configurableKeyActionCount);
}

TEST_F(ActionSearch, noTextHoweverOddBreaksTheSearch)
{
    std::mt19937 chance(20260101); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts at every run
    std::uniform_int_distribution<int> length(0, 12);
    std::uniform_int_distribution<unsigned short> character(0, 0xffff);
    for (int round = 0; round < 2000; ++round) {
        QString text;
        for (int i = length(chance); i > 0; --i)
            text += QChar(char16_t{character(chance)});
        for (const ActionMatch& match : searchActions(text)) {
            EXPECT_GT(match.score, 0);
            EXPECT_EQ(match.score, searchScore(match.action, text));
        }
    }
}

} // namespace

} // namespace tarvin::test
