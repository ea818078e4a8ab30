#include "app/cli/Listing.h"

#include "model/ActionSearch.h"
#include "model/RecordJson.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace tarvin {

namespace {

QString s(QStringView text)
{
    return text.toString();
}

QJsonObject actionJson(KeyAction action)
{
    QJsonArray words;
    for (const QStringView word : keywords(action))
        words.append(s(word));
    return {{QStringLiteral("action"), s(rawValue(action))}, {QStringLiteral("title"), s(title(action))},
        {QStringLiteral("subtitle"), s(subtitle(action))}, {QStringLiteral("category"), s(rawValue(category(action)))},
        {QStringLiteral("keywords"), words}};
}

} // namespace

QJsonArray recordsJson(const ProfileMappings& mappings)
{
    QJsonArray records;
    for (const auto& [profile, keys] : mappings) {
        for (const auto& [key, record] : keys) {
            records.append(QJsonObject{{QStringLiteral("profile"), profile}, {QStringLiteral("key"), s(rawValue(key))},
                {QStringLiteral("action"), s(rawValue(record.action))},
                {QStringLiteral("displayTitle"), record.displayTitle()},
                {QStringLiteral("summaryLines"), QJsonArray::fromStringList(record.summaryLines())},
                {QStringLiteral("custom"), record.isEffectivelyCustom(key)},
                {QStringLiteral("record"), toJson(record)}});
        }
    }
    return records;
}

QString recordsText(const ProfileMappings& mappings)
{
    QList<QStringList> rows;
    for (const auto& [profile, keys] : mappings) {
        for (const auto& [key, record] : keys) {
            rows.append({profile, s(rawValue(key)), s(rawValue(record.action)),
                record.displayTitle()
                    + (record.isEffectivelyCustom(key) ? QString() : QStringLiteral(" (as the factory)"))});
        }
    }
    return rows.isEmpty() ? QStringLiteral("No key is customised.") : inColumns(rows);
}

QJsonArray actionsJson(const std::optional<QString>& query)
{
    QJsonArray actions;
    if (!query) {
        for (const KeyAction action : allKeyActions)
            actions.append(actionJson(action));
        return actions;
    }
    for (const ActionMatch& match : searchActions(*query)) {
        QJsonObject action = actionJson(match.action);
        action.insert(QStringLiteral("score"), match.score);
        actions.append(action);
    }
    return actions;
}

QString actionsText(const std::optional<QString>& query)
{
    QList<QStringList> rows;
    const auto add = [&rows](KeyAction action) {
        rows.append({s(rawValue(action)), s(title(action)), s(subtitle(action))});
    };
    if (query) {
        for (const ActionMatch& match : searchActions(*query))
            add(match.action);
        if (rows.isEmpty())
            return QStringLiteral("No action is found by \"%1\".").arg(*query);
    } else {
        std::ranges::for_each(allKeyActions, add);
    }
    return inColumns(rows);
}

QString inColumns(const QList<QStringList>& rows)
{
    QList<qsizetype> widths;
    for (const QStringList& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], row.at(i).size());
    }
    QStringList lines;
    for (const QStringList& row : rows) {
        QString line;
        for (qsizetype i = 0; i < row.size(); ++i)
            line += i + 1 < row.size() ? row.at(i).leftJustified(widths[i] + 2) : row.at(i);
        lines += line;
    }
    return lines.join(u'\n');
}

QString printed(const QJsonArray& json)
{
    return QString::fromUtf8(QJsonDocument(json).toJson()).trimmed();
}

QString printed(const QJsonObject& json)
{
    return QString::fromUtf8(QJsonDocument(json).toJson()).trimmed();
}

} // namespace tarvin
