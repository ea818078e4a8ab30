#pragma once

#include "model/FKey.h"
#include "model/KeyAction.h"
#include "platform/ports/Scheduler.h"
#include "platform/simulated/Effect.h"
#include "platform/simulated/Names.h"

#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace tarvin::simulate {

/// What a field of an instruction may hold: how to read it, and the words for whoever wrote something else.
template <typename Value> struct FieldType
{
    QString expected;
    /// Absent if the JSON value is not of this type.
    std::function<std::optional<Value>(const QJsonValue&)> parse;
};

namespace field {

[[nodiscard]] FieldType<QString> text();
/// Absent stands for null.
[[nodiscard]] FieldType<std::optional<QString>> textOrNull();
[[nodiscard]] FieldType<QStringList> texts();
[[nodiscard]] FieldType<bool> boolean();
[[nodiscard]] FieldType<bool> onlyTrue();
[[nodiscard]] FieldType<double> number();
[[nodiscard]] FieldType<double> positiveNumber();
[[nodiscard]] FieldType<std::int64_t> integer(std::int64_t least, std::int64_t most);
[[nodiscard]] FieldType<QJsonValue> integerOrNull();
/// Any JSON value, null included.
[[nodiscard]] FieldType<QJsonValue> anything();
[[nodiscard]] FieldType<QJsonValue> object();
/// A duration or a moment, told in milliseconds with up to three decimals.
[[nodiscard]] FieldType<simulated::VirtualTime> milliseconds();
/// An instant as ISO 8601 tells it, in universal time.
[[nodiscard]] FieldType<Scheduler::WallClock> instant();
[[nodiscard]] FieldType<KeyCode> keyCode();
[[nodiscard]] FieldType<FKey> fKey();
[[nodiscard]] FieldType<KeyAction> action();
/// A list of names, or the number of the bits.
[[nodiscard]] FieldType<EventFlags> eventFlags();

/// "a", "b" or "c".
[[nodiscard]] QString alternatives(const QStringList& names);

/// One of the names of the table.
template <typename Value, std::size_t count>
[[nodiscard]] FieldType<Value> oneOf(const std::array<simulated::NamedValue<Value>, count>& table)
{
    return {alternatives(simulated::namesIn(table)), [&table](const QJsonValue& json) -> std::optional<Value> {
                return json.isString() ? simulated::valueIn(table, json.toString()) : std::nullopt;
            }};
}

} // namespace field

} // namespace tarvin::simulate
