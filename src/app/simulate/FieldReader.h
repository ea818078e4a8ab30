#pragma once

#include "app/simulate/FieldTypes.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace tarvin::simulate {

/// Reads the fields of one JSON object and keeps the first thing that is wrong with it. After an error the remaining
/// fields read as defaults, so that a reader can go on without asking; whoever uses it asks for `error()` at the end.
class FieldReader
{
public:
    /// @param where stands before the errors, for an object within another; may be empty
    explicit FieldReader(const QJsonObject& object, const QString& where = {});

    template <typename Value> [[nodiscard]] Value required(QStringView name, const FieldType<Value>& type)
    {
        std::optional<Value> value = optional(name, type);
        if (!value && !m_object.contains(name))
            fail(u"field \"%1\" is missing; expected %2"_qs.arg(name, type.expected));
        return value ? *std::move(value) : Value{};
    }

    /// Absent only if the field is.
    template <typename Value>
    [[nodiscard]] std::optional<Value> optional(QStringView name, const FieldType<Value>& type)
    {
        m_known.append(name.toString());
        if (!m_object.contains(name))
            return std::nullopt;
        const QJsonValue json = m_object.value(name);
        std::optional<Value> value = type.parse(json);
        if (!value)
            fail(u"\"%1\": expected %2, found %3"_qs.arg(name, type.expected, describe(json)));
        return value;
    }

    template <typename Value>
    [[nodiscard]] Value optionalOr(QStringView name, const FieldType<Value>& type, Value otherwise)
    {
        return optional(name, type).value_or(std::move(otherwise));
    }

    /// Reads a required list of objects, each by a reader of its own.
    template <typename Item> [[nodiscard]] std::vector<Item> objects(QStringView name, Item (*readItem)(FieldReader&))
    {
        std::vector<Item> items;
        const QJsonArray list = required(name, listOfObjects());
        for (qsizetype index = 0; index < list.size(); ++index) {
            FieldReader item(list[index].toObject(), u"\"%1\", item %2: "_qs.arg(name).arg(index + 1));
            items.push_back(readItem(item));
            item.finish();
            if (item.error())
                fail(*item.error());
        }
        return items;
    }

    [[nodiscard]] bool has(QStringView name) const { return m_object.contains(name); }
    /// Keeps the message unless there is one already.
    void fail(const QString& message);
    /// Fails unless exactly one of the fields is there.
    void expectOneOf(const QStringList& names);
    /// Fails on a field that was never asked for.
    void finish();
    [[nodiscard]] const std::optional<QString>& error() const { return m_error; }

    /// A JSON value in a few words, for messages.
    [[nodiscard]] static QString describe(const QJsonValue& json);

private:
    [[nodiscard]] static FieldType<QJsonArray> listOfObjects();

    const QJsonObject& m_object;
    QString m_where;
    QStringList m_known;
    std::optional<QString> m_error;
};

} // namespace tarvin::simulate
