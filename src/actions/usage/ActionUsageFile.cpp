#include "actions/usage/ActionUsageFile.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringBuilder>

#include <optional>

namespace tarvin {

namespace {

namespace field {
constexpr QLatin1StringView useCount("useCount");
constexpr QLatin1StringView lastUsed("lastUsed");
} // namespace field

std::optional<ActionUsageRecord> usageRecordFrom(const QJsonValue& value)
{
    const QJsonValue useCount = value[field::useCount];
    const QJsonValue lastUsed = value[field::lastUsed];
    // A number that is no integer of 64 bits comes back as whatever default is asked for.
    const bool isInteger = useCount.toInteger(0) == useCount.toInteger(1);
    if (!isInteger || !lastUsed.isDouble())
        return std::nullopt;
    return ActionUsageRecord{useCount.toInteger(), UsageDate(lastUsed.toDouble())};
}

} // namespace

QByteArray encodeUsageRecords(const ActionUsageRecords& records)
{
    QJsonObject object;
    for (const auto& [action, record] : records) {
        object.insert(rawValue(action),
            QJsonObject{
                {field::useCount, static_cast<qint64>(record.useCount)},
                {field::lastUsed, record.lastUsed.count()},
            });
    }
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

std::variant<ActionUsageRecords, FileError> decodeUsageRecords(const QByteArray& content)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(content, &error);
    if (error.error != QJsonParseError::NoError)
        return FileError{error.errorString()};
    if (!document.isObject())
        return FileError{u"not an object"_qs};

    ActionUsageRecords records;
    const QJsonObject object = document.object();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const std::optional<ActionUsageRecord> record = usageRecordFrom(entry.value());
        if (!record)
            return FileError{u"not a usage record: " % entry.key()};
        if (const std::optional<KeyAction> action = keyActionFromRawValue(entry.key()))
            records.emplace(*action, *record);
    }
    return records;
}

} // namespace tarvin
