#include "model/RecordJson.h"

#include "model/VocabularyJson.h"

#include <QJsonArray>
#include <QJsonObject>

#include <array>
#include <utility>

namespace tarvin {

namespace {

namespace field {
constexpr QLatin1StringView id("id");
constexpr QLatin1StringView command("command");
constexpr QLatin1StringView option("option");
constexpr QLatin1StringView control("control");
constexpr QLatin1StringView shift("shift");
constexpr QLatin1StringView keyCode("keyCode");
constexpr QLatin1StringView keyDisplay("keyDisplay");
constexpr QLatin1StringView type("type");
constexpr QLatin1StringView customShortcut("customShortcut");
constexpr QLatin1StringView textSnippet("textSnippet");
constexpr QLatin1StringView customURL("customURL");
constexpr QLatin1StringView delayMs("delayMs");
constexpr QLatin1StringView keyAction("keyAction");
constexpr QLatin1StringView action("action");
constexpr QLatin1StringView screenCaptureMode("screenCaptureMode");
constexpr QLatin1StringView screenCaptureDestination("screenCaptureDestination");
constexpr QLatin1StringView forceQuitMode("forceQuitMode");
constexpr QLatin1StringView customShortcuts("customShortcuts");
constexpr QLatin1StringView multiKeyMode("multiKeyMode");
constexpr QLatin1StringView customAppName("customAppName");
constexpr QLatin1StringView customAppBundleId("customAppBundleId");
constexpr QLatin1StringView customAppPath("customAppPath");
constexpr QLatin1StringView chainSteps("chainSteps");
constexpr QLatin1StringView quickFlipCompanionBundleId("quickFlipCompanionBundleId");
constexpr QLatin1StringView quickFlipCompanionAppName("quickFlipCompanionAppName");
} // namespace field

// A field's reader gives the field's value, or nothing when the JSON value is of the wrong type.

std::optional<QString> textFrom(const QJsonValue& value)
{
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

std::optional<std::int64_t> integerFrom(const QJsonValue& value)
{
    // What is not exactly an integer of 64 bits comes back as the default, so two defaults tell.
    const qint64 integer = value.toInteger(0);
    return integer == value.toInteger(1) ? std::optional<std::int64_t>(integer) : std::nullopt;
}

std::optional<std::uint16_t> keyCodeFrom(const QJsonValue& value)
{
    const std::optional<std::int64_t> integer = integerFrom(value);
    if (!integer || !std::in_range<std::uint16_t>(*integer))
        return std::nullopt;
    return static_cast<std::uint16_t>(*integer);
}

std::optional<QUuid> uuidFrom(const QJsonValue& value)
{
    return value.isString() ? uuidFromText(value.toString()) : std::nullopt;
}

/// A list is read as a whole: one element that cannot be read makes all of it unreadable.
template <typename Element>
std::optional<QList<Element>> listFrom(const QJsonValue& value,
    std::optional<Element> (*elementFrom)(const QJsonValue&, const UuidSource&), const UuidSource& newUuid)
{
    if (!value.isArray())
        return std::nullopt;
    QList<Element> elements;
    const QJsonArray array = value.toArray();
    for (const auto& item : array) {
        std::optional<Element> element = elementFrom(item, newUuid);
        if (!element)
            return std::nullopt;
        elements.append(*std::move(element));
    }
    return elements;
}

template <typename Element> QJsonArray listToJson(const QList<Element>& elements)
{
    QJsonArray array;
    for (const Element& element : elements)
        array.append(toJson(element));
    return array;
}

QJsonValue toJson(const QString& text)
{
    return text;
}

template <typename Value>
void insertIfPresent(QJsonObject& object, QLatin1StringView key, const std::optional<Value>& value)
{
    if (value)
        object.insert(key, toJson(*value));
}

/// The optional field of a strict record: missing and null are absent, anything else must be readable.
/// @returns false if the value is there and cannot be read
template <typename Value> bool readOptional(std::optional<Value>& member, const QJsonValue& value, const auto& read)
{
    if (value.isUndefined() || value.isNull())
        return true;
    member = read(value);
    return member.has_value();
}

struct RetiredActionName
{
    QStringView storedName;
    KeyAction action;
};

constexpr auto retiredActionNames = std::to_array<RetiredActionName>({
    {u"sleep_mac", KeyAction::sleepDevice},
    {u"sleep_computer", KeyAction::sleepDevice},
    {u"system_sleep", KeyAction::sleepDevice},
    {u"shut_down_mac", KeyAction::shutDown},
    {u"shutdown", KeyAction::shutDown},
    {u"power_off", KeyAction::shutDown},
    {u"restart_mac", KeyAction::restart},
    {u"reboot", KeyAction::restart},
});

/// Where an action lands that is missing or that no version knows: such a key opens the calculator.
constexpr KeyAction landingAction = KeyAction::calculator;

KeyAction actionFrom(const QJsonValue& value)
{
    if (const std::optional<KeyAction> known = keyActionFromJson(value))
        return *known;
    const QString text = value.toString();
    for (const RetiredActionName& retired : retiredActionNames) {
        if (retired.storedName == text)
            return retired.action;
    }
    return landingAction;
}

} // namespace

QJsonValue toJson(const CustomShortcut& shortcut)
{
    return QJsonObject{
        {field::id, uuidText(shortcut.id)},
        {field::command, shortcut.command},
        {field::option, shortcut.option},
        {field::control, shortcut.control},
        {field::shift, shortcut.shift},
        {field::keyCode, shortcut.keyCode},
        {field::keyDisplay, shortcut.keyDisplay},
    };
}

QJsonValue toJson(const ActionChainStep& step)
{
    QJsonObject object{
        {field::id, uuidText(step.id)},
        {field::type, toJson(step.type)},
        {field::delayMs, static_cast<qint64>(step.delayMs)},
    };
    insertIfPresent(object, field::customShortcut, step.customShortcut);
    insertIfPresent(object, field::textSnippet, step.textSnippet);
    insertIfPresent(object, field::customURL, step.customURL);
    insertIfPresent(object, field::keyAction, step.keyAction);
    return object;
}

QJsonValue toJson(const ConfiguredAction& record)
{
    QJsonObject object{
        {field::action, toJson(record.action)},
        {field::screenCaptureMode, toJson(record.screenCaptureMode)},
        {field::screenCaptureDestination, toJson(record.screenCaptureDestination)},
        {field::forceQuitMode, toJson(record.forceQuitMode)},
        {field::customShortcuts, listToJson(record.customShortcuts)},
        {field::multiKeyMode, toJson(record.multiKeyMode)},
        {field::chainSteps, listToJson(record.chainSteps)},
    };
    insertIfPresent(object, field::customShortcut, record.customShortcut);
    insertIfPresent(object, field::textSnippet, record.textSnippet);
    insertIfPresent(object, field::customURL, record.customURL);
    insertIfPresent(object, field::customAppName, record.customAppName);
    insertIfPresent(object, field::customAppBundleId, record.customAppBundleId);
    insertIfPresent(object, field::customAppPath, record.customAppPath);
    insertIfPresent(object, field::quickFlipCompanionBundleId, record.quickFlipCompanionBundleId);
    insertIfPresent(object, field::quickFlipCompanionAppName, record.quickFlipCompanionAppName);
    return object;
}

std::optional<CustomShortcut> customShortcutFromJson(const QJsonValue& value, const UuidSource& newUuid)
{
    if (!value.isObject())
        return std::nullopt;
    const QJsonObject object = value.toObject();
    const std::optional<QUuid> id = uuidFrom(object[field::id]);
    return CustomShortcut{
        .id = id ? *id : newUuid(),
        .command = object[field::command].toBool(),
        .option = object[field::option].toBool(),
        .control = object[field::control].toBool(),
        .shift = object[field::shift].toBool(),
        .keyCode = keyCodeFrom(object[field::keyCode]).value_or(0),
        .keyDisplay = object[field::keyDisplay].toString(),
    };
}

std::optional<ActionChainStep> actionChainStepFromJson(const QJsonValue& value, const UuidSource& newUuid)
{
    const QJsonObject object = value.toObject();
    const std::optional<QUuid> id = uuidFrom(object[field::id]);
    const auto type = vocabularyFromJson(object[field::type], actionChainStepTypeFromRawValue);
    const std::optional<std::int64_t> delayMs = integerFrom(object[field::delayMs]);
    if (!id || !type || !delayMs)
        return std::nullopt;

    ActionChainStep step{.id = *id, .type = *type, .delayMs = *delayMs};
    const auto shortcutFrom = [&](const QJsonValue& shortcut) { return customShortcutFromJson(shortcut, newUuid); };
    const bool readable = readOptional(step.customShortcut, object[field::customShortcut], shortcutFrom)
        && readOptional(step.textSnippet, object[field::textSnippet], textFrom)
        && readOptional(step.customURL, object[field::customURL], textFrom)
        && readOptional(step.keyAction, object[field::keyAction], keyActionFromJson);
    return readable ? std::optional(step) : std::nullopt;
}

std::optional<ConfiguredAction> configuredActionFromJson(const QJsonValue& value, const UuidSource& newUuid)
{
    if (value.isString())
        return ConfiguredAction(keyActionFromJson(value).value_or(landingAction));
    if (!value.isObject())
        return std::nullopt;

    const QJsonObject object = value.toObject();
    const ConfiguredAction fresh(actionFrom(object[field::action]));
    // In braces the fields are read in order, so that fresh identities go to the same places in every build.
    return ConfiguredAction{fresh.action,
        vocabularyFromJson(object[field::screenCaptureMode], screenCaptureModeFromRawValue)
            .value_or(fresh.screenCaptureMode),
        vocabularyFromJson(object[field::screenCaptureDestination], screenCaptureDestinationFromRawValue)
            .value_or(fresh.screenCaptureDestination),
        vocabularyFromJson(object[field::forceQuitMode], forceQuitModeFromRawValue).value_or(fresh.forceQuitMode),
        customShortcutFromJson(object[field::customShortcut], newUuid),
        listFrom(object[field::customShortcuts], customShortcutFromJson, newUuid).value_or(fresh.customShortcuts),
        vocabularyFromJson(object[field::multiKeyMode], multiKeyPlaybackModeFromRawValue).value_or(fresh.multiKeyMode),
        textFrom(object[field::textSnippet]), textFrom(object[field::customURL]),
        textFrom(object[field::customAppName]), textFrom(object[field::customAppBundleId]),
        textFrom(object[field::customAppPath]),
        listFrom(object[field::chainSteps], actionChainStepFromJson, newUuid).value_or(fresh.chainSteps),
        textFrom(object[field::quickFlipCompanionBundleId]), textFrom(object[field::quickFlipCompanionAppName])};
}

} // namespace tarvin
