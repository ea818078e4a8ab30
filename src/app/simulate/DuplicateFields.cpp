#include "app/simulate/DuplicateFields.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

namespace tarvin::simulate {

namespace {

/// The position behind the string that begins at the quote mark.
qsizetype endOfString(const QByteArray& json, qsizetype quote)
{
    qsizetype position = quote + 1;
    while (json[position] != '"')
        position += json[position] == '\\' ? 2 : 1;
    return position + 1;
}

bool isFollowedByColon(const QByteArray& json, qsizetype position)
{
    while (position < json.size() && QByteArrayView(" \t\r\n").contains(json[position]))
        ++position;
    return position < json.size() && json[position] == ':';
}

QString decoded(const QByteArray& stringWithQuotes)
{
    return QJsonDocument::fromJson('[' + stringWithQuotes + ']').array().first().toString();
}

} // namespace

std::optional<QString> duplicateField(const QByteArray& json)
{
    QStringList seen;
    int depth = 0;
    for (qsizetype position = 0; position < json.size(); ++position) {
        const char letter = json[position];
        if (letter == '{' || letter == '[') {
            ++depth;
        } else if (letter == '}' || letter == ']') {
            --depth;
        } else if (letter == '"') {
            const qsizetype end = endOfString(json, position);
            if (depth == 1 && isFollowedByColon(json, end)) {
                const QString name = decoded(json.mid(position, end - position));
                if (seen.contains(name))
                    return name;
                seen.append(name);
            }
            position = end - 1;
        }
    }
    return std::nullopt;
}

} // namespace tarvin::simulate
