#include "platform/macos/translation/StoredValue.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>

namespace tarvin::macos {

namespace {

TEST(StoredValue, simpleSettingsKeepTheirKind)
{
    EXPECT_EQ(storedValueOf(true), StoredValue(true));
    EXPECT_EQ(storedValueOf(0.35), StoredValue(0.35));
    EXPECT_EQ(storedValueOf(u"hideFromDock"_qs), StoredValue(u"hideFromDock"_qs));
}

TEST(StoredValue, listsAndObjectsAreDataWithTheirJson)
{
    EXPECT_EQ(storedValueOf(QJsonArray{1, u"a"_qs}), StoredValue(QByteArray(R"([1,"a"])")));
    EXPECT_EQ(storedValueOf(QJsonObject{{u"a"_qs, true}}), StoredValue(QByteArray(R"({"a":true})")));
}

TEST(StoredValue, whatIsNothingIsNotStored)
{
    EXPECT_EQ(storedValueOf(QJsonValue::Null), StoredValue());
    EXPECT_EQ(storedValueOf(QJsonValue::Undefined), StoredValue());
    EXPECT_TRUE(jsonValueOf({}).isUndefined());
}

TEST(StoredValue, everyValueComesBackAsItWas)
{
    const QJsonValue values[] = {false, true, 0.0, 0.85, QString(), u"[1]"_qs, QJsonArray(),
        QJsonArray{QJsonObject{{u"text"_qs, u"Größe"_qs}}}, QJsonObject()};
    for (const QJsonValue& value : values)
        EXPECT_EQ(jsonValueOf(storedValueOf(value)), value);
}

TEST(StoredValue, foreignDataIsNothing)
{
    EXPECT_TRUE(jsonValueOf(QByteArray("bplist00\xd1")).isUndefined());
    EXPECT_TRUE(jsonValueOf(QByteArray()).isUndefined());
}

} // namespace

} // namespace tarvin::macos
