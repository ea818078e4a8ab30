#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <QUuid>

#include <ostream>

// How a failed expectation shows Qt's values. GoogleTest finds these by the argument's namespace,
// which for Qt is the global one.

inline void PrintTo(QStringView text, std::ostream* stream)
{
    *stream << '"' << text.toUtf8().toStdString() << '"';
}

inline void PrintTo(const QString& text, std::ostream* stream)
{
    PrintTo(QStringView(text), stream);
}

inline void PrintTo(const QByteArray& bytes, std::ostream* stream)
{
    *stream << '"' << bytes.toStdString() << '"';
}

inline void PrintTo(const QStringList& texts, std::ostream* stream)
{
    *stream << '[';
    for (qsizetype position = 0; position < texts.size(); ++position) {
        *stream << (position == 0 ? "" : ", ");
        PrintTo(texts[position], stream);
    }
    *stream << ']';
}

inline void PrintTo(const QUuid& id, std::ostream* stream)
{
    *stream << id.toString().toStdString();
}

inline void PrintTo(const QJsonValue& value, std::ostream* stream)
{
    // A document cannot hold a bare value, so it is written inside a list.
    *stream << QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).toStdString();
}

inline void PrintTo(const QJsonObject& object, std::ostream* stream)
{
    *stream << QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}
