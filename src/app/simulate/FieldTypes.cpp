#include "app/simulate/FieldTypes.h"

#include "model/VocabularyJson.h"

#include <QDateTime>
#include <QJsonArray>

#include <cmath>
#include <limits>

namespace tarvin::simulate::field {

namespace {

/// Beyond it a double no longer holds every microsecond.
constexpr double longestMilliseconds = 1e12;

std::optional<QString> textFrom(const QJsonValue& json)
{
    return json.isString() ? std::optional(json.toString()) : std::nullopt;
}

std::optional<std::int64_t> integerFrom(const QJsonValue& json)
{
    // What is not exactly an integer of 64 bits comes back as the default, so two defaults tell.
    const qint64 integer = json.toInteger(0);
    return integer == json.toInteger(1) ? std::optional<std::int64_t>(integer) : std::nullopt;
}

std::optional<simulated::VirtualTime> millisecondsFrom(const QJsonValue& json)
{
    const double milliseconds = json.toDouble(-1);
    const double microseconds = std::round(milliseconds * 1000);
    const bool isExact = std::abs(milliseconds * 1000 - microseconds) < 1e-3;
    if (milliseconds < 0 || milliseconds > longestMilliseconds || !isExact)
        return std::nullopt;
    return simulated::VirtualTime(static_cast<std::int64_t>(microseconds));
}

std::optional<Scheduler::WallClock> instantFrom(const QJsonValue& json)
{
    const QDateTime instant = QDateTime::fromString(json.toString(), Qt::ISODateWithMs);
    if (!instant.isValid() || instant.timeSpec() != Qt::UTC)
        return std::nullopt;
    return Scheduler::WallClock(std::chrono::milliseconds(instant.toMSecsSinceEpoch()));
}

std::optional<EventFlags> flagsFrom(const QJsonValue& json)
{
    if (const std::optional<std::int64_t> bits = integerFrom(json); bits && *bits >= 0)
        return static_cast<EventFlags>(*bits);
    if (!json.isArray())
        return std::nullopt;
    EventFlags flags = EventFlags::none;
    const QJsonArray names = json.toArray();
    for (const auto& name : names) {
        const std::optional<EventFlags> flag = simulated::valueIn(simulated::eventFlagNames, name.toString());
        if (!flag)
            return std::nullopt;
        flags |= *flag;
    }
    return flags;
}

} // namespace

QString alternatives(const QStringList& names)
{
    QString joined;
    for (qsizetype index = 0; index < names.size(); ++index) {
        if (index > 0)
            joined += index + 1 == names.size() ? u" or "_qs : u", "_qs;
        joined += u'"' + names[index] + u'"';
    }
    return joined;
}

FieldType<QString> text()
{
    return {u"a text"_qs, textFrom};
}

FieldType<std::optional<QString>> textOrNull()
{
    return {u"a text or null"_qs, [](const QJsonValue& json) -> std::optional<std::optional<QString>> {
                if (!json.isNull() && !json.isString())
                    return std::nullopt;
                return std::optional<std::optional<QString>>(std::in_place, textFrom(json));
            }};
}

FieldType<QStringList> texts()
{
    return {u"a list of texts"_qs, [](const QJsonValue& json) -> std::optional<QStringList> {
                if (!json.isArray())
                    return std::nullopt;
                QStringList texts;
                const QJsonArray items = json.toArray();
                for (const auto& item : items) {
                    if (!item.isString())
                        return std::nullopt;
                    texts.append(item.toString());
                }
                return texts;
            }};
}

FieldType<bool> boolean()
{
    return {u"true or false"_qs,
        [](const QJsonValue& json) { return json.isBool() ? std::optional(json.toBool()) : std::nullopt; }};
}

FieldType<bool> onlyTrue()
{
    return {u"true"_qs, [](const QJsonValue& json) { return json.toBool() ? std::optional(true) : std::nullopt; }};
}

FieldType<double> number()
{
    return {u"a number"_qs,
        [](const QJsonValue& json) { return json.isDouble() ? std::optional(json.toDouble()) : std::nullopt; }};
}

FieldType<double> positiveNumber()
{
    return {u"a number from 0 on"_qs,
        [](const QJsonValue& json) { return json.toDouble(-1) >= 0 ? std::optional(json.toDouble()) : std::nullopt; }};
}

FieldType<std::int64_t> integer(std::int64_t least, std::int64_t most)
{
    return {u"an integer from %1 to %2"_qs.arg(least).arg(most),
        [least, most](const QJsonValue& json) -> std::optional<std::int64_t> {
            const std::optional<std::int64_t> integer = integerFrom(json);
            return integer && *integer >= least && *integer <= most ? integer : std::nullopt;
        }};
}

FieldType<QJsonValue> integerOrNull()
{
    return {u"an integer of 32 bits or null"_qs, [](const QJsonValue& json) -> std::optional<QJsonValue> {
                const std::optional<std::int64_t> integer = integerFrom(json);
                const bool isInteger = integer && std::in_range<std::int32_t>(*integer);
                return json.isNull() || isInteger ? std::optional(json) : std::nullopt;
            }};
}

FieldType<QJsonValue> anything()
{
    return {u"a value"_qs, [](const QJsonValue& json) { return std::optional(json); }};
}

FieldType<QJsonValue> object()
{
    return {
        u"an object"_qs, [](const QJsonValue& json) { return json.isObject() ? std::optional(json) : std::nullopt; }};
}

FieldType<simulated::VirtualTime> milliseconds()
{
    return {u"a number of milliseconds from 0 on, with up to three decimals"_qs, millisecondsFrom};
}

FieldType<Scheduler::WallClock> instant()
{
    return {u"an instant such as \"2026-01-31T12:00:00Z\""_qs, instantFrom};
}

FieldType<KeyCode> keyCode()
{
    constexpr std::int64_t most = std::numeric_limits<KeyCode>::max();
    return {u"a key code from 0 to %1"_qs.arg(most), [](const QJsonValue& json) -> std::optional<KeyCode> {
                const std::optional<std::int64_t> integer = integerFrom(json);
                return integer && std::in_range<KeyCode>(*integer) ? std::optional(static_cast<KeyCode>(*integer))
                                                                   : std::nullopt;
            }};
}

FieldType<FKey> fKey()
{
    QStringList names;
    for (const FKey key : allFKeys)
        names.append(rawValue(key).toString());
    return {alternatives(names), [](const QJsonValue& json) { return fKeyFromJson(json); }};
}

FieldType<KeyAction> action()
{
    return {u"the stored name of an action, such as \"mute\""_qs,
        [](const QJsonValue& json) { return keyActionFromJson(json); }};
}

FieldType<EventFlags> eventFlags()
{
    return {
        u"a list of %1, or the number of the bits"_qs.arg(alternatives(simulated::namesIn(simulated::eventFlagNames))),
        flagsFrom};
}

} // namespace tarvin::simulate::field
