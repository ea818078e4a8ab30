#include "app/simulate/FieldReader.h"

#include <gtest/gtest.h>

#include <QJsonDocument>

namespace tarvin::simulate {
namespace {

class FieldReaderTest : public testing::Test
{
protected:
    static QJsonObject object(const char* json)
    {
        const QJsonDocument document = QJsonDocument::fromJson(json);
        EXPECT_TRUE(document.isObject()) << json;
        return document.object();
    }

    /// What the type says about one value, or "fine".
    template <typename Value> static std::string verdict(const char* json, const FieldType<Value>& type)
    {
        const QJsonObject fields = object((std::string("{\"x\":") + json + "}").c_str());
        FieldReader reader(fields);
        static_cast<void>(reader.optional(u"x", type));
        reader.finish();
        return reader.error().value_or(u"fine"_qs).toStdString();
    }
};

TEST_F(FieldReaderTest, aMissingFieldIsNamedWithWhatWasExpected)
{
    const QJsonObject fields = object("{}");
    FieldReader reader(fields);
    EXPECT_EQ(reader.required(u"name", field::text()), QString());
    EXPECT_EQ(reader.error(), u"field \"name\" is missing; expected a text"_qs);
}

TEST_F(FieldReaderTest, anUnknownFieldIsNamedWithTheKnownOnes)
{
    const QJsonObject fields = object(R"({"name":"a","nmae":"b"})");
    FieldReader reader(fields);
    EXPECT_EQ(reader.required(u"name", field::text()), u"a"_qs);
    EXPECT_EQ(reader.optional(u"hold", field::milliseconds()), std::nullopt);
    reader.finish();
    EXPECT_EQ(reader.error(), u"unknown field \"nmae\"; expected \"name\" or \"hold\""_qs);
}

TEST_F(FieldReaderTest, theFirstErrorIsKept)
{
    const QJsonObject fields = object(R"({"a":1,"b":2})");
    FieldReader reader(fields);
    static_cast<void>(reader.required(u"a", field::text()));
    static_cast<void>(reader.required(u"b", field::boolean()));
    reader.finish();
    EXPECT_EQ(reader.error(), u"\"a\": expected a text, found 1"_qs);
}

TEST_F(FieldReaderTest, whatWasFoundIsDescribed)
{
    EXPECT_EQ(verdict("null", field::text()), "\"x\": expected a text, found null");
    EXPECT_EQ(verdict("true", field::text()), "\"x\": expected a text, found true");
    EXPECT_EQ(verdict("[1,\"b\"]", field::text()), "\"x\": expected a text, found [1,\"b\"]");
    EXPECT_EQ(verdict("{}", field::text()), "\"x\": expected a text, found an object");
    EXPECT_EQ(verdict("\"yes\"", field::boolean()), "\"x\": expected true or false, found the text \"yes\"");
}

TEST_F(FieldReaderTest, exactlyOneOfSeveralFieldsIsAskedFor)
{
    for (const char* json : {"{}", R"({"a":1,"b":2})"}) {
        const QJsonObject fields = object(json);
        FieldReader reader(fields);
        reader.expectOneOf({u"a"_qs, u"b"_qs});
        EXPECT_EQ(reader.error(), u"expected exactly one of the fields \"a\" or \"b\""_qs) << json;
    }
    const QJsonObject one = object(R"({"b":2})");
    FieldReader reader(one);
    reader.expectOneOf({u"a"_qs, u"b"_qs});
    EXPECT_EQ(reader.error(), std::nullopt);
}

TEST_F(FieldReaderTest, integersHaveTheirRange)
{
    const FieldType<std::int64_t> type = field::integer(-2, 5);
    EXPECT_EQ(verdict("5", type), "fine");
    EXPECT_EQ(verdict("6", type), "\"x\": expected an integer from -2 to 5, found 6");
    EXPECT_EQ(verdict("1.5", type), "\"x\": expected an integer from -2 to 5, found 1.5");
    EXPECT_EQ(verdict("\"1\"", type), "\"x\": expected an integer from -2 to 5, found the text \"1\"");
    EXPECT_EQ(verdict("null", field::integerOrNull()), "fine");
    EXPECT_EQ(verdict("-3", field::integerOrNull()), "fine");
    EXPECT_NE(verdict("3000000000", field::integerOrNull()), "fine");
    EXPECT_EQ(verdict("65535", field::keyCode()), "fine");
    EXPECT_EQ(verdict("65536", field::keyCode()), "\"x\": expected a key code from 0 to 65535, found 65536");
}

TEST_F(FieldReaderTest, millisecondsHaveThreeDecimalsAtMost)
{
    EXPECT_EQ(verdict("0", field::milliseconds()), "fine");
    EXPECT_EQ(verdict("1234567.891", field::milliseconds()), "fine");
    EXPECT_NE(verdict("0.0001", field::milliseconds()), "fine");
    EXPECT_NE(verdict("-1", field::milliseconds()), "fine");
    EXPECT_NE(verdict("1e13", field::milliseconds()), "fine");
    EXPECT_EQ(field::milliseconds().parse(1.0015), std::nullopt);
    EXPECT_EQ(field::milliseconds().parse(1.001), simulated::VirtualTime(1001));
}

TEST_F(FieldReaderTest, instantsAreInUniversalTime)
{
    EXPECT_EQ(
        field::instant().parse(u"1970-01-01T00:00:01.500Z"_qs), Scheduler::WallClock(std::chrono::milliseconds(1500)));
    EXPECT_EQ(verdict("\"2026-01-31T12:00:00\"", field::instant()),
        "\"x\": expected an instant such as \"2026-01-31T12:00:00Z\", found the text \"2026-01-31T12:00:00\"");
    EXPECT_NE(verdict("7", field::instant()), "fine");
}

TEST_F(FieldReaderTest, flagsAreNamesOrBits)
{
    EXPECT_EQ(
        field::eventFlags().parse(QJsonArray{u"shift"_qs, u"command"_qs}), EventFlags::shift | EventFlags::command);
    EXPECT_EQ(field::eventFlags().parse(0x180000), EventFlags::option | EventFlags::command);
    EXPECT_EQ(verdict("[\"alt\"]", field::eventFlags()),
        "\"x\": expected a list of \"shift\", \"control\", \"option\", \"command\" or \"function\", or the number of "
        "the bits, found [\"alt\"]");
    EXPECT_NE(verdict("-1", field::eventFlags()), "fine");
}

TEST_F(FieldReaderTest, keysAndActionsGoByTheirStoredNames)
{
    EXPECT_EQ(field::fKey().parse(u"CapsLock"_qs), FKey::capsLock);
    EXPECT_TRUE(
        QString::fromStdString(verdict("\"F20\"", field::fKey())).endsWith(u"or \"F19\", found the text \"F20\""_qs));
    EXPECT_EQ(field::action().parse(u"mute"_qs), KeyAction::mute);
    EXPECT_EQ(verdict("\"louder\"", field::action()),
        "\"x\": expected the stored name of an action, such as \"mute\", found the text \"louder\"");
}

TEST_F(FieldReaderTest, textOrNullTellsTheTwoApart)
{
    using Parsed = std::optional<std::optional<QString>>;
    EXPECT_EQ(field::textOrNull().parse(QJsonValue()), Parsed(std::in_place));
    EXPECT_EQ(field::textOrNull().parse(u"a"_qs), Parsed(std::in_place, u"a"_qs));
    EXPECT_EQ(field::textOrNull().parse(1), Parsed());
}

TEST_F(FieldReaderTest, listsOfTextsHoldNothingElse)
{
    EXPECT_EQ(field::texts().parse(QJsonArray{u"a"_qs, u"b"_qs}), (QStringList{u"a"_qs, u"b"_qs}));
    EXPECT_EQ(verdict("[\"a\",1]", field::texts()), "\"x\": expected a list of texts, found [\"a\",1]");
}

struct Pair
{
    bool first = false;
};

TEST_F(FieldReaderTest, anErrorInAListNamesTheItem)
{
    const QJsonObject fields = object(R"({"list":[{"a":true},{"a":true,"b":1}],"other":[1]})");
    const auto readPair = [](FieldReader& item) { return Pair{item.required(u"a", field::boolean())}; };
    FieldReader reader(fields);
    EXPECT_EQ(reader.objects<Pair>(u"list", readPair).size(), 2u);
    EXPECT_EQ(reader.error(), u"\"list\", item 2: unknown field \"b\"; expected \"a\""_qs);
    FieldReader other(fields);
    EXPECT_TRUE(other.objects<Pair>(u"other", readPair).empty());
    EXPECT_EQ(other.error(), u"\"other\": expected a list of objects, found [1]"_qs);
}

} // namespace
} // namespace tarvin::simulate
