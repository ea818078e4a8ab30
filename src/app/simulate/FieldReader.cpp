#include "app/simulate/FieldReader.h"

#include <QJsonDocument>

#include <algorithm>

namespace tarvin::simulate {

FieldReader::FieldReader(const QJsonObject& object, const QString& where)
    : m_object(object)
    , m_where(where)
{ }

void FieldReader::fail(const QString& message)
{
    if (!m_error)
        m_error = m_where + message;
}

void FieldReader::expectOneOf(const QStringList& names)
{
    const auto present = std::ranges::count_if(names, [this](const QString& name) { return has(name); });
    if (present != 1)
        fail(u"expected exactly one of the fields %1"_qs.arg(field::alternatives(names)));
}

void FieldReader::finish()
{
    for (auto entry = m_object.begin(); entry != m_object.end(); ++entry) {
        if (!m_known.contains(entry.key()))
            fail(u"unknown field \"%1\"; expected %2"_qs.arg(entry.key(), field::alternatives(m_known)));
    }
}

QString FieldReader::describe(const QJsonValue& json)
{
    switch (json.type()) {
    case QJsonValue::Null:
        return u"null"_qs;
    case QJsonValue::Array:
        return QString::fromUtf8(QJsonDocument(json.toArray()).toJson(QJsonDocument::Compact));
    case QJsonValue::Object:
        return u"an object"_qs;
    case QJsonValue::Bool:
    case QJsonValue::Double:
        return json.toVariant().toString();
    case QJsonValue::String:
        return u"the text \"%1\""_qs.arg(json.toString());
    case QJsonValue::Undefined:
        break;
    }
    return u"nothing"_qs;
}

FieldType<QJsonArray> FieldReader::listOfObjects()
{
    return {u"a list of objects"_qs, [](const QJsonValue& json) -> std::optional<QJsonArray> {
                const QJsonArray list = json.toArray();
                const bool allObjects =
                    std::ranges::all_of(list, [](const QJsonValue& item) { return item.isObject(); });
                return json.isArray() && allObjects ? std::optional(list) : std::nullopt;
            }};
}

} // namespace tarvin::simulate
