#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>

namespace tarvin {

/// The JSON value with the given text, a bare string or number included.
[[nodiscard]] inline QJsonValue json(const char* text)
{
    return QJsonDocument::fromJson(QByteArray("[").append(text).append(']')).array().at(0);
}

/// @p value after it was written to a file and read back.
[[nodiscard]] inline QJsonValue throughText(const QJsonValue& value)
{
    return QJsonDocument::fromJson(QJsonDocument(QJsonArray{value}).toJson()).array().at(0);
}

} // namespace tarvin
