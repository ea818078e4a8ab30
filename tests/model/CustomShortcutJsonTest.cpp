#include "model/RecordJson.h"

#include "model/JsonText.h"
#include "model/ModelPrinters.h"

#include <gtest/gtest.h>

#include <QJsonObject>

namespace tarvin {

namespace {

const QUuid storedId = QUuid::fromString(u"0123ABCD-45EF-6789-90AB-CDEF01234567");
const QUuid freshId = QUuid::fromString(u"FFFFFFFF-0000-4000-8000-000000000001");

const CustomShortcut shortcut{.id = storedId,
    .command = true,
    .option = true,
    .control = true,
    .shift = true,
    .keyCode = 65535,
    .keyDisplay = u"Ä🌐"_qs};

std::optional<CustomShortcut> read(const QJsonValue& value)
{
    return customShortcutFromJson(value, [] { return freshId; });
}

TEST(CustomShortcutJson, isWrittenUnderItsOwnNames)
{
    EXPECT_EQ(toJson(CustomShortcut{.id = storedId, .option = true, .keyCode = 8, .keyDisplay = u"C"_qs}), json(R"({
        "id": "0123ABCD-45EF-6789-90AB-CDEF01234567", "command": false, "option": true, "control": false,
        "shift": false, "keyCode": 8, "keyDisplay": "C" })"));
}

TEST(CustomShortcutJson, comesBackAsItWas)
{
    EXPECT_EQ(read(throughText(toJson(shortcut))), shortcut);
    const CustomShortcut plain{.id = QUuid()};
    EXPECT_EQ(read(throughText(toJson(plain))), plain);
}

TEST(CustomShortcutJson, anEmptyObjectIsAShortcutWithAFreshIdentity)
{
    EXPECT_EQ(read(json("{}")), CustomShortcut{.id = freshId});
}

TEST(CustomShortcutJson, freshIdentitiesDifferByDefault)
{
    const auto first = customShortcutFromJson(json("{}"));
    const auto second = customShortcutFromJson(json("{}"));
    ASSERT_TRUE(first && second);
    EXPECT_FALSE(first->id.isNull());
    EXPECT_NE(first->id, second->id);
}

TEST(CustomShortcutJson, aKnownIdentityAsksForNoFreshOne)
{
    int asked = 0;
    const auto read = customShortcutFromJson(toJson(shortcut), [&asked] {
        ++asked;
        return freshId;
    });
    EXPECT_EQ(read, shortcut);
    EXPECT_EQ(asked, 0);
}

TEST(CustomShortcutJson, onlyAnObjectCanBeRead)
{
    for (const char* text : {"null", "true", "1", R"("x")", "[]", "[{}]"})
        EXPECT_EQ(read(json(text)), std::nullopt) << text;
    EXPECT_EQ(read(QJsonValue(QJsonValue::Undefined)), std::nullopt);
}

TEST(CustomShortcutJson, eachFieldFallsBackByItself)
{
    const std::map<QString, std::function<void(CustomShortcut&)>> fallbacks = {
        {u"id"_qs, [](CustomShortcut& other) { other.id = freshId; }},
        {u"command"_qs, [](CustomShortcut& other) { other.command = false; }},
        {u"option"_qs, [](CustomShortcut& other) { other.option = false; }},
        {u"control"_qs, [](CustomShortcut& other) { other.control = false; }},
        {u"shift"_qs, [](CustomShortcut& other) { other.shift = false; }},
        {u"keyCode"_qs, [](CustomShortcut& other) { other.keyCode = 0; }},
        {u"keyDisplay"_qs, [](CustomShortcut& other) { other.keyDisplay.clear(); }},
    };
    const QJsonObject whole = toJson(shortcut).toObject();
    ASSERT_EQ(static_cast<std::size_t>(whole.size()), fallbacks.size());
    for (const auto& [key, fallBack] : fallbacks) {
        CustomShortcut expected = shortcut;
        fallBack(expected);

        QJsonObject object = whole;
        object.remove(key);
        EXPECT_EQ(read(object), expected) << key.toStdString() << " missing";
        for (const char* wrong : {"null", "[]", "{}", "[true]"}) {
            object.insert(key, json(wrong));
            EXPECT_EQ(read(object), expected) << key.toStdString() << " " << wrong;
        }
    }
}

TEST(CustomShortcutJson, valuesOfOtherTypesAreNotConverted)
{
    const CustomShortcut fresh{.id = freshId};
    EXPECT_EQ(read(json(R"({"command": 1, "option": "true", "control": "1", "shift": 1.0})")), fresh);
    EXPECT_EQ(read(json(R"({"keyCode": "8"})")), fresh);
    EXPECT_EQ(read(json(R"({"keyCode": true})")), fresh);
    EXPECT_EQ(read(json(R"({"keyDisplay": 5})")), fresh);
    EXPECT_EQ(read(json(R"({"id": 5})")), fresh);
}

TEST(CustomShortcutJson, anIdentityInAnotherFormIsReplaced)
{
    EXPECT_EQ(read(json(R"({"id": "{0123ABCD-45EF-6789-90AB-CDEF01234567}"})"))->id, freshId);
    EXPECT_EQ(read(json(R"({"id": "nonsense"})"))->id, freshId);
    EXPECT_EQ(read(json(R"({"id": "0123abcd-45ef-6789-90ab-cdef01234567"})"))->id, storedId);
}

TEST(CustomShortcutJson, aKeyCodeIsAnIntegerOf16Bits)
{
    const auto keyCode = [](const char* number) {
        return read(json(QByteArray(R"({"keyCode": )").append(number).append('}').constData()))->keyCode;
    };
    EXPECT_EQ(keyCode("65535"), 65535);
    EXPECT_EQ(keyCode("8.0"), 8) << "an integer in another notation";
    EXPECT_EQ(keyCode("1e2"), 100);
    EXPECT_EQ(keyCode("8.5"), 0);
    EXPECT_EQ(keyCode("65536"), 0);
    EXPECT_EQ(keyCode("-1"), 0);
    EXPECT_EQ(keyCode("65544"), 0) << "65536 and 8";
    EXPECT_EQ(keyCode("4294967304"), 0) << "2 to the 32 and 8";
    EXPECT_EQ(keyCode("1e300"), 0);
}

} // namespace

} // namespace tarvin
