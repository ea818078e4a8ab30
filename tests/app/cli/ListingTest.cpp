#include "app/cli/Listing.h"

#include "model/ActionSearch.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QJsonObject>

namespace tarvin {

namespace {

ProfileMappings someMappings()
{
    ProfileMappings mappings;
    ConfiguredAction url(KeyAction::openWebURL);
    url.customURL = u"https://debian.org"_qs;
    mappings[u"global"_qs].emplace(FKey::f5, url);
    mappings[u"global"_qs].emplace(FKey::f8, ConfiguredAction(defaultAction(FKey::f8)));
    mappings[u"safari"_qs].emplace(FKey::capsLock, ConfiguredAction(KeyAction::copy));
    return mappings;
}

TEST(Listing, everyStoredRecordIsOneObjectWithSevenFields)
{
    const QJsonArray records = recordsJson(someMappings());
    ASSERT_EQ(records.size(), 3);
    for (const auto& record : records) {
        EXPECT_THAT(record.toObject().keys(),
            testing::UnorderedElementsAre(u"profile"_qs, u"key"_qs, u"action"_qs, u"displayTitle"_qs,
                u"summaryLines"_qs, u"custom"_qs, u"record"_qs));
    }
    const QJsonObject first = records.at(0).toObject();
    EXPECT_EQ(first.value(u"profile"), QJsonValue(u"global"_qs));
    EXPECT_EQ(first.value(u"key"), QJsonValue(u"F5"_qs));
    EXPECT_EQ(first.value(u"action"), QJsonValue(u"open_web_url"_qs));
    EXPECT_EQ(first.value(u"custom"), QJsonValue(true));
    EXPECT_FALSE(first.value(u"displayTitle").toString().isEmpty());
    EXPECT_GE(first.value(u"summaryLines").toArray().size(), 1);
    EXPECT_EQ(first.value(u"record").toObject().value(u"customURL"), QJsonValue(u"https://debian.org"_qs));
    EXPECT_EQ(records.at(1).toObject().value(u"custom"), QJsonValue(false));
    EXPECT_EQ(records.at(2).toObject().value(u"key"), QJsonValue(u"CapsLock"_qs));
}

TEST(Listing, theTextHasALineForEveryRecord)
{
    const QStringList lines = recordsText(someMappings()).split(u'\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines.at(0).startsWith(u"global  F5        open_web_url  "));
    EXPECT_TRUE(lines.at(1).endsWith(u"(as the factory)"));
    EXPECT_EQ(recordsText({}), u"No key is customised."_qs);
}

TEST(Listing, theCatalogueIsListedInItsOrder)
{
    const QJsonArray actions = actionsJson(std::nullopt);
    ASSERT_EQ(actions.size(), 70);
    const QJsonObject first = actions.at(0).toObject();
    EXPECT_THAT(first.keys(),
        testing::UnorderedElementsAre(u"action"_qs, u"title"_qs, u"subtitle"_qs, u"category"_qs, u"keywords"_qs));
    EXPECT_EQ(first.value(u"action"), QJsonValue(u"screen_capture"_qs));
    EXPECT_EQ(first.value(u"category"), QJsonValue(u"RECOMMENDED"_qs));
    EXPECT_EQ(first.value(u"keywords").toArray().at(0), QJsonValue(u"screenshot"_qs));
    EXPECT_EQ(actionsText(std::nullopt).split(u'\n').size(), 70);
}

TEST(Listing, aSearchIsListedAsThePickerRanksItWithItsScores)
{
    const QList<ActionMatch> matches = searchActions(u"mute audio");
    const QJsonArray actions = actionsJson(u"mute audio"_qs);
    ASSERT_EQ(actions.size(), matches.size());
    for (qsizetype i = 0; i < matches.size(); ++i) {
        EXPECT_EQ(actions.at(i).toObject().value(u"action"), QJsonValue(rawValue(matches.at(i).action).toString()));
        EXPECT_EQ(actions.at(i).toObject().value(u"score"), QJsonValue(matches.at(i).score));
    }
    EXPECT_EQ(actionsText(u"qqqq"_qs), u"No action is found by \"qqqq\"."_qs);
    EXPECT_TRUE(actionsJson(u" "_qs).isEmpty());
}

} // namespace

} // namespace tarvin
