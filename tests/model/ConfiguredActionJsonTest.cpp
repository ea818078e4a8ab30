#include "model/RecordJson.h"

#include "model/JsonText.h"
#include "model/ModelPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QJsonObject>

namespace tarvin {

namespace {

const QUuid storedId = QUuid::fromString(u"0123ABCD-45EF-6789-90AB-CDEF01234567");

/// Fresh identities 1, 2, 3 … in the order in which they are asked for.
class CountedIds
{
public:
    QUuid operator()() { return nth(++m_given); }
    static QUuid nth(std::uint32_t number) { return {number, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}; }

private:
    std::uint32_t m_given = 0;
};

std::optional<ConfiguredAction> read(const QJsonValue& value)
{
    return configuredActionFromJson(value, CountedIds());
}

CustomShortcut shortcutOf(const QString& keyDisplay)
{
    return {.id = QUuid::createUuid(), .keyCode = 3, .keyDisplay = keyDisplay};
}

/// A record in which no field has the value of a new one.
ConfiguredAction fullRecord()
{
    ConfiguredAction record(KeyAction::actionChain);
    record.screenCaptureMode = ScreenCaptureMode::window;
    record.screenCaptureDestination = ScreenCaptureDestination::file;
    record.forceQuitMode = ForceQuitMode::systemDialog;
    record.customShortcut = shortcutOf(u"A"_qs);
    record.customShortcuts = {shortcutOf(u"B"_qs), shortcutOf(u"C"_qs)};
    record.multiKeyMode = MultiKeyPlaybackMode::sequential;
    record.textSnippet = u"text"_qs;
    record.customURL = u"address"_qs;
    record.customAppName = u"name"_qs;
    record.customAppBundleId = u"bundle"_qs;
    record.customAppPath = u"path"_qs;
    record.chainSteps = {ActionChainStep{.id = QUuid::createUuid(), .type = ActionChainStepType::delay, .delayMs = 5},
        ActionChainStep{.id = QUuid::createUuid(), .textSnippet = u"x"_qs}};
    record.quickFlipCompanionBundleId = u"companion"_qs;
    record.quickFlipCompanionAppName = u"companion name"_qs;
    return record;
}

TEST(ConfiguredActionJson, isWrittenUnderItsOwnNamesWithoutAbsentFields)
{
    EXPECT_EQ(toJson(ConfiguredAction(KeyAction::toggleFullscreen)), json(R"({
        "action": "toggle_fullscreen", "screenCaptureMode": "Region", "screenCaptureDestination": "Clipboard",
        "forceQuitMode": "Frontmost app", "customShortcuts": [], "multiKeyMode": "simultaneous", "chainSteps": [] })"));
}

TEST(ConfiguredActionJson, everyFieldWithAValueIsWritten)
{
    ConfiguredAction record = fullRecord();
    record.customShortcut = CustomShortcut{.id = storedId, .shift = true, .keyCode = 1, .keyDisplay = u"S"_qs};
    record.customShortcuts = {*record.customShortcut};
    record.chainSteps = {ActionChainStep{.id = storedId, .type = ActionChainStepType::delay, .delayMs = 7}};
    record.textSnippet = u""_qs;
    EXPECT_EQ(toJson(record), json(R"json({
        "action": "action_chain", "screenCaptureMode": "Window", "screenCaptureDestination": "File",
        "forceQuitMode": "Force Quit dialog (⌥⌘⎋)", "multiKeyMode": "sequential", "textSnippet": "",
        "customShortcut": { "id": "0123ABCD-45EF-6789-90AB-CDEF01234567", "command": false, "option": false,
            "control": false, "shift": true, "keyCode": 1, "keyDisplay": "S" },
        "customShortcuts": [{ "id": "0123ABCD-45EF-6789-90AB-CDEF01234567", "command": false, "option": false,
            "control": false, "shift": true, "keyCode": 1, "keyDisplay": "S" }],
        "customURL": "address", "customAppName": "name", "customAppBundleId": "bundle", "customAppPath": "path",
        "chainSteps": [{ "id": "0123ABCD-45EF-6789-90AB-CDEF01234567", "type": "delay", "delayMs": 7 }],
        "quickFlipCompanionBundleId": "companion", "quickFlipCompanionAppName": "companion name"
})json"));
}

TEST(ConfiguredActionJson, comesBackAsItWas)
{
    const ConfiguredAction full = fullRecord();
    EXPECT_EQ(read(throughText(toJson(full))), full);
    for (const KeyAction action : allKeyActions)
        EXPECT_EQ(read(throughText(toJson(ConfiguredAction(action)))), ConfiguredAction(action));
}

TEST(ConfiguredActionJson, emptyTextsStayApartFromAbsentOnes)
{
    ConfiguredAction record(KeyAction::mute);
    record.textSnippet = u""_qs;
    record.quickFlipCompanionAppName = QString();
    const auto back = read(throughText(toJson(record)));
    ASSERT_TRUE(back);
    EXPECT_TRUE(back->textSnippet.has_value());
    EXPECT_TRUE(back->quickFlipCompanionAppName.has_value());
    EXPECT_FALSE(back->customURL.has_value());
    EXPECT_EQ(back, record);
}

TEST(ConfiguredActionJson, anOldPlainStringIsARecordOfThatAction)
{
    EXPECT_EQ(read(json(R"("mute")")), ConfiguredAction(KeyAction::mute));
    for (const KeyAction action : allKeyActions)
        EXPECT_EQ(read(toJson(action)), ConfiguredAction(action));
    EXPECT_EQ(read(json(R"("no_such_action")")), ConfiguredAction(KeyAction::calculator));
    EXPECT_EQ(read(json(R"("")")), ConfiguredAction(KeyAction::calculator));
}

TEST(ConfiguredActionJson, retiredNamesAreMappedInsideAnObjectOnly)
{
    EXPECT_EQ(read(json(R"("sleep_mac")")), ConfiguredAction(KeyAction::calculator));
    EXPECT_EQ(read(json(R"({"action": "sleep_mac"})")), ConfiguredAction(KeyAction::sleepDevice));
}

TEST(ConfiguredActionJson, everyRetiredName)
{
    const std::map<QString, KeyAction> retired = {{u"sleep_mac"_qs, KeyAction::sleepDevice},
        {u"sleep_computer"_qs, KeyAction::sleepDevice}, {u"system_sleep"_qs, KeyAction::sleepDevice},
        {u"shut_down_mac"_qs, KeyAction::shutDown}, {u"shutdown"_qs, KeyAction::shutDown},
        {u"power_off"_qs, KeyAction::shutDown}, {u"restart_mac"_qs, KeyAction::restart},
        {u"reboot"_qs, KeyAction::restart}};
    for (const auto& [name, action] : retired) {
        EXPECT_EQ(read(QJsonObject{{u"action"_qs, name}}), ConfiguredAction(action));
        EXPECT_EQ(read(QJsonObject{{u"action"_qs, name.toUpper()}}), ConfiguredAction(KeyAction::calculator));
        EXPECT_EQ(read(QJsonValue(name)), ConfiguredAction(KeyAction::calculator));
    }
}

TEST(ConfiguredActionJson, anUnknownOrMissingActionOpensTheCalculator)
{
    for (const char* text : {"{}", R"({"action": null})", R"({"action": 5})", R"({"action": ["mute"]})",
             R"({"action": {}})", R"({"action": "no_such_action"})", R"({"action": ""})", R"({"action": "Mute"})"})
        EXPECT_EQ(read(json(text)), ConfiguredAction(KeyAction::calculator)) << text;
}

TEST(ConfiguredActionJson, onlyAStringOrAnObjectCanBeRead)
{
    for (const char* text : {"null", "true", "1", "[]", R"(["mute"])"})
        EXPECT_EQ(read(json(text)), std::nullopt) << text;
    EXPECT_EQ(read(QJsonValue(QJsonValue::Undefined)), std::nullopt);
}

TEST(ConfiguredActionJson, anUnknownCaptureModeLeavesTheOtherFieldsAlone)
{
    ConfiguredAction expected(KeyAction::screenCapture);
    expected.screenCaptureDestination = ScreenCaptureDestination::file;
    expected.textSnippet = u"kept"_qs;
    EXPECT_EQ(read(json(R"({"action": "screen_capture", "screenCaptureMode": "Everything",
                  "screenCaptureDestination": "File", "textSnippet": "kept"})")),
        expected);
    EXPECT_EQ(expected.screenCaptureMode, ScreenCaptureMode::region);
}

TEST(ConfiguredActionJson, eachFieldFallsBackByItself)
{
    using Change = std::function<void(ConfiguredAction&)>;
    const std::map<QString, Change> fallbacks = {
        {u"action"_qs, [](ConfiguredAction& record) { record.action = KeyAction::calculator; }},
        {u"screenCaptureMode"_qs,
            [](ConfiguredAction& record) { record.screenCaptureMode = ScreenCaptureMode::region; }},
        {u"screenCaptureDestination"_qs,
            [](ConfiguredAction& record) { record.screenCaptureDestination = ScreenCaptureDestination::clipboard; }},
        {u"forceQuitMode"_qs, [](ConfiguredAction& record) { record.forceQuitMode = ForceQuitMode::activeApp; }},
        {u"customShortcut"_qs, [](ConfiguredAction& record) { record.customShortcut = record.customShortcuts[0]; }},
        {u"customShortcuts"_qs, [](ConfiguredAction& record) { record.customShortcuts = {*record.customShortcut}; }},
        {u"multiKeyMode"_qs,
            [](ConfiguredAction& record) { record.multiKeyMode = MultiKeyPlaybackMode::simultaneous; }},
        {u"textSnippet"_qs, [](ConfiguredAction& record) { record.textSnippet.reset(); }},
        {u"customURL"_qs, [](ConfiguredAction& record) { record.customURL.reset(); }},
        {u"customAppName"_qs, [](ConfiguredAction& record) { record.customAppName.reset(); }},
        {u"customAppBundleId"_qs, [](ConfiguredAction& record) { record.customAppBundleId.reset(); }},
        {u"customAppPath"_qs, [](ConfiguredAction& record) { record.customAppPath.reset(); }},
        {u"chainSteps"_qs, [](ConfiguredAction& record) { record.chainSteps.clear(); }},
        {u"quickFlipCompanionBundleId"_qs, [](ConfiguredAction& record) { record.quickFlipCompanionBundleId.reset(); }},
        {u"quickFlipCompanionAppName"_qs, [](ConfiguredAction& record) { record.quickFlipCompanionAppName.reset(); }},
    };
    const ConfiguredAction full = fullRecord();
    const QJsonObject whole = toJson(full).toObject();
    ASSERT_EQ(static_cast<std::size_t>(whole.size()), fallbacks.size());
    for (const auto& [key, fallBack] : fallbacks) {
        ConfiguredAction expected = full;
        fallBack(expected);
        ASSERT_NE(expected, full);

        QJsonObject object = whole;
        object.remove(key);
        EXPECT_EQ(read(object), expected) << key.toStdString() << " missing";
        for (const char* wrong : {"null", "1", "true", "[1]", "[null]"}) {
            object.insert(key, json(wrong));
            EXPECT_EQ(read(object), expected) << key.toStdString() << " " << wrong;
        }
        if (key != u"customShortcut") {
            object.insert(key, json("{}"));
            EXPECT_EQ(read(object), expected) << key.toStdString() << " an object";
        }
    }
}

TEST(ConfiguredActionJson, unknownNamesOfTheOtherEnumerationsFallBack)
{
    EXPECT_EQ(read(json(R"({"action": "mute", "screenCaptureDestination": "clipboard", "forceQuitMode": "Frontmost App",
                  "multiKeyMode": "Sequence", "screenCaptureMode": ""})")),
        ConfiguredAction(KeyAction::mute));
}

TEST(ConfiguredActionJson, unknownKeysAreIgnored)
{
    EXPECT_EQ(read(json(R"({"action": "mute", "id": 5, "Action": "copy"})")), ConfiguredAction(KeyAction::mute));
}

TEST(ConfiguredActionJson, theFirstOfTheListBecomesTheMissingShortcut)
{
    const auto record = read(json(R"({"customShortcuts": [{"keyCode": 1}, {"keyCode": 2}]})"));
    ASSERT_TRUE(record);
    ASSERT_EQ(record->customShortcuts.size(), 2);
    EXPECT_EQ(record->customShortcuts[0].keyCode, 1);
    EXPECT_EQ(record->customShortcuts[1].keyCode, 2);
    EXPECT_EQ(record->customShortcut, record->customShortcuts[0]) << "the identity included";
}

TEST(ConfiguredActionJson, aLoneShortcutBecomesTheList)
{
    const auto record = read(json(R"({"customShortcut": {"keyCode": 1}})"));
    ASSERT_TRUE(record && record->customShortcut);
    EXPECT_EQ(record->customShortcuts, QList{*record->customShortcut}) << "the identity included";
}

TEST(ConfiguredActionJson, aLoneShortcutWithoutAKeyBecomesTheListToo)
{
    const auto record = read(json(R"({"customShortcut": {}})"));
    ASSERT_TRUE(record);
    EXPECT_EQ(record->customShortcuts.size(), 1);
    EXPECT_EQ(record->allShortcuts().size(), 1);
}

TEST(ConfiguredActionJson, shortcutFieldsThatDifferStayAsRead)
{
    const auto record = read(json(R"({"customShortcut": {"keyCode": 9}, "customShortcuts": [{"keyCode": 1}]})"));
    ASSERT_TRUE(record && record->customShortcut);
    EXPECT_EQ(record->customShortcut->keyCode, 9);
    ASSERT_EQ(record->customShortcuts.size(), 1);
    EXPECT_EQ(record->customShortcuts[0].keyCode, 1);
}

TEST(ConfiguredActionJson, oneElementThatIsNoObjectLosesAllShortcutsOfTheList)
{
    for (const char* element : {"null", "1", R"("x")", "[]"}) {
        const QByteArray text = QByteArray(R"({"customShortcuts": [{"keyCode": 1}, )").append(element).append("]}");
        EXPECT_EQ(read(json(text.constData())), ConfiguredAction(KeyAction::calculator)) << element;
    }
}

TEST(ConfiguredActionJson, oneUnreadableStepLosesTheMacroAndNothingElse)
{
    ConfiguredAction expected(KeyAction::actionChain);
    expected.textSnippet = u"kept"_qs;
    EXPECT_EQ(read(json(R"({"action": "action_chain", "textSnippet": "kept", "chainSteps": [
                  {"id": "0123ABCD-45EF-6789-90AB-CDEF01234567", "type": "delay", "delayMs": 5},
                  {"id": "0123ABCD-45EF-6789-90AB-CDEF01234567", "type": "dance", "delayMs": 5}]})")),
        expected);
}

TEST(ConfiguredActionJson, stepsKeepTheirOrder)
{
    const auto record = read(json(R"({"action": "action_chain", "chainSteps": [
        {"id": "0123ABCD-45EF-6789-90AB-CDEF01234567", "type": "delay", "delayMs": 5},
        {"id": "0123ABCD-45EF-6789-90AB-CDEF01234568", "type": "key_action", "delayMs": 0, "keyAction": "copy"}]})"));
    ASSERT_TRUE(record);
    ASSERT_EQ(record->chainSteps.size(), 2);
    EXPECT_EQ(record->chainSteps[0].delayMs, 5);
    EXPECT_EQ(record->chainSteps[1].keyAction, KeyAction::copy);
}

TEST(ConfiguredActionJson, freshIdentitiesAreGivenInTheOrderOfTheFields)
{
    const auto record = read(json(R"({"customShortcut": {}, "customShortcuts": [{}, {}], "chainSteps": [
        {"id": "0123ABCD-45EF-6789-90AB-CDEF01234567", "type": "shortcut", "delayMs": 0, "customShortcut": {}}]})"));
    ASSERT_TRUE(record && record->customShortcut);
    ASSERT_EQ(record->customShortcuts.size(), 2);
    ASSERT_EQ(record->chainSteps.size(), 1);
    EXPECT_EQ(record->customShortcut->id, CountedIds::nth(1));
    EXPECT_EQ(record->customShortcuts[0].id, CountedIds::nth(2));
    EXPECT_EQ(record->customShortcuts[1].id, CountedIds::nth(3));
    EXPECT_EQ(record->chainSteps[0].customShortcut->id, CountedIds::nth(4));
}

} // namespace
} // namespace tarvin
