#include "model/RecordJson.h"

#include "model/JsonText.h"
#include "model/ModelPrinters.h"

#include <gtest/gtest.h>

#include <QJsonObject>

#include <limits>

namespace tarvin {

namespace {

const QUuid storedId = QUuid::fromString(u"0123ABCD-45EF-6789-90AB-CDEF01234567");
const QUuid freshId = QUuid::fromString(u"FFFFFFFF-0000-4000-8000-000000000001");

const ActionChainStep fullStep{.id = storedId,
    .type = ActionChainStepType::keyAction,
    .customShortcut = CustomShortcut{.id = storedId, .command = true, .keyCode = 8, .keyDisplay = u"C"_qs},
    .textSnippet = u"text"_qs,
    .customURL = u"address"_qs,
    .delayMs = 250,
    .keyAction = KeyAction::mute};

std::optional<ActionChainStep> read(const QJsonValue& value)
{
    return actionChainStepFromJson(value, [] { return freshId; });
}

/// The full step with @p key set to the JSON value @p text.
QJsonObject with(const QString& key, const char* text)
{
    QJsonObject object = toJson(fullStep).toObject();
    object.insert(key, json(text));
    return object;
}

QJsonObject without(const QString& key)
{
    QJsonObject object = toJson(fullStep).toObject();
    object.remove(key);
    return object;
}

TEST(ActionChainStepJson, isWrittenUnderItsOwnNames)
{
    EXPECT_EQ(toJson(fullStep), json(R"({
        "id": "0123ABCD-45EF-6789-90AB-CDEF01234567", "type": "key_action", "textSnippet": "text",
        "customURL": "address", "delayMs": 250, "keyAction": "mute",
        "customShortcut": { "id": "0123ABCD-45EF-6789-90AB-CDEF01234567", "command": true, "option": false,
            "control": false, "shift": false, "keyCode": 8, "keyDisplay": "C" } })"));
}

TEST(ActionChainStepJson, absentFieldsAreLeftOut)
{
    EXPECT_EQ(toJson(ActionChainStep{.id = storedId, .type = ActionChainStepType::delay, .delayMs = 0}),
        json(R"({ "id": "0123ABCD-45EF-6789-90AB-CDEF01234567", "type": "delay", "delayMs": 0 })"));
}

TEST(ActionChainStepJson, comesBackAsItWas)
{
    EXPECT_EQ(read(throughText(toJson(fullStep))), fullStep);
    for (const ActionChainStepType type : allActionChainStepTypes) {
        const ActionChainStep step{.id = storedId, .type = type};
        EXPECT_EQ(read(throughText(toJson(step))), step);
    }
    const ActionChainStep emptyTexts{.id = storedId, .textSnippet = u""_qs, .customURL = QString()};
    EXPECT_EQ(read(throughText(toJson(emptyTexts))), emptyTexts);
}

TEST(ActionChainStepJson, delaysOf64BitsKeepEveryDigit)
{
    for (const std::int64_t delay : {std::numeric_limits<std::int64_t>::min(), std::int64_t{-1},
             (std::int64_t{1} << 53) + 1, std::numeric_limits<std::int64_t>::max()}) {
        const ActionChainStep step{.id = storedId, .type = ActionChainStepType::delay, .delayMs = delay};
        EXPECT_EQ(read(throughText(toJson(step))), step);
    }
}

TEST(ActionChainStepJson, aDelayIsAnInteger)
{
    EXPECT_EQ(read(with(u"delayMs"_qs, "250.0")), fullStep);
    EXPECT_EQ(read(with(u"delayMs"_qs, "2.5e2")), fullStep);
    for (const char* wrong : {"250.5", "9223372036854775808", "-1e19", "1e300", R"("250")", "true", "null", "[]"})
        EXPECT_EQ(read(with(u"delayMs"_qs, wrong)), std::nullopt) << wrong;
}

TEST(ActionChainStepJson, identityTypeAndDelayAreRequired)
{
    for (const QString& key : {u"id"_qs, u"type"_qs, u"delayMs"_qs}) {
        EXPECT_EQ(read(without(key)), std::nullopt) << key.toStdString();
        EXPECT_EQ(read(with(key, "null")), std::nullopt) << key.toStdString();
        EXPECT_EQ(read(with(key, "{}")), std::nullopt) << key.toStdString();
        EXPECT_EQ(read(with(key, R"("unknown")")), std::nullopt) << key.toStdString();
    }
    EXPECT_EQ(read(with(u"type"_qs, R"("Delay")")), std::nullopt);
}

TEST(ActionChainStepJson, theOtherFieldsMayBeMissingOrNull)
{
    const std::map<QString, std::function<void(ActionChainStep&)>> absences = {
        {u"customShortcut"_qs, [](ActionChainStep& step) { step.customShortcut.reset(); }},
        {u"textSnippet"_qs, [](ActionChainStep& step) { step.textSnippet.reset(); }},
        {u"customURL"_qs, [](ActionChainStep& step) { step.customURL.reset(); }},
        {u"keyAction"_qs, [](ActionChainStep& step) { step.keyAction.reset(); }},
    };
    for (const auto& [key, makeAbsent] : absences) {
        ActionChainStep expected = fullStep;
        makeAbsent(expected);
        EXPECT_EQ(read(without(key)), expected) << key.toStdString();
        EXPECT_EQ(read(with(key, "null")), expected) << key.toStdString();
    }
}

TEST(ActionChainStepJson, anOtherFieldOfTheWrongTypeSpoilsTheStep)
{
    for (const QString& key : {u"customShortcut"_qs, u"textSnippet"_qs, u"customURL"_qs, u"keyAction"_qs}) {
        for (const char* wrong : {"1", "true", "[]"})
            EXPECT_EQ(read(with(key, wrong)), std::nullopt) << key.toStdString() << " " << wrong;
    }
    EXPECT_EQ(read(with(u"customShortcut"_qs, R"("C")")), std::nullopt);
    EXPECT_EQ(read(with(u"textSnippet"_qs, "{}")), std::nullopt);
}

TEST(ActionChainStepJson, anUnknownActionSpoilsTheStepAndRetiredNamesAreUnknown)
{
    EXPECT_EQ(read(with(u"keyAction"_qs, R"("no_such_action")")), std::nullopt);
    EXPECT_EQ(read(with(u"keyAction"_qs, R"("sleep_mac")")), std::nullopt);
}

TEST(ActionChainStepJson, theShortcutOfAStepIsReadTolerantly)
{
    ActionChainStep expected = fullStep;
    expected.customShortcut = CustomShortcut{.id = freshId, .keyCode = 9};
    EXPECT_EQ(read(with(u"customShortcut"_qs, R"({"keyCode": 9, "shift": "yes"})")), expected);
}

TEST(ActionChainStepJson, onlyAnObjectCanBeRead)
{
    for (const char* text : {"null", "true", "1", R"("delay")", "[]", "{}"})
        EXPECT_EQ(read(json(text)), std::nullopt) << text;
}

} // namespace

} // namespace tarvin
