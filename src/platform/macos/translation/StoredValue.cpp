#include "platform/macos/translation/StoredValue.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tarvin::macos {

namespace {

struct JsonOf
{
    QJsonValue operator()(std::monostate) const { return QJsonValue::Undefined; }
    QJsonValue operator()(bool value) const { return value; }
    QJsonValue operator()(double value) const { return value; }
    QJsonValue operator()(const QString& value) const { return value; }
    QJsonValue operator()(const QByteArray& value) const
    {
        const QJsonDocument document = QJsonDocument::fromJson(value);
        if (document.isArray())
            return document.array();
        return document.isObject() ? QJsonValue(document.object()) : QJsonValue(QJsonValue::Undefined);
    }
};

} // namespace

StoredValue storedValueOf(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool();
    case QJsonValue::Double:
        return value.toDouble();
    case QJsonValue::String:
        return value.toString();
    case QJsonValue::Array:
        return QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact);
    case QJsonValue::Object:
        return QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact);
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        return std::monostate{};
    }
    return std::monostate{};
}

QJsonValue jsonValueOf(const StoredValue& value)
{
    return std::visit(JsonOf{}, value);
}

} // namespace tarvin::macos
