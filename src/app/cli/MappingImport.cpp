#include "app/cli/MappingImport.h"

#include "app/records/RecordCheck.h"
#include "model/RecordJson.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace tarvin {

namespace {

/// "line 3, column 7" of a place in the text.
QString placeIn(const QByteArray& content, qsizetype offset)
{
    const QByteArray before = content.left(offset);
    const qsizetype line = before.count('\n') + 1;
    const qsizetype column = before.size() - before.lastIndexOf('\n');
    return QStringLiteral("line %1, column %2").arg(line).arg(column);
}

void readRecord(MappingImport& import, const QString& profile, const QString& name, const QJsonValue& value,
    const UuidSource& newUuid)
{
    const QString place = profile + u'.' + name;
    const std::optional<FKey> key = fKeyFromRawValue(name);
    if (!key) {
        import.problems += QStringLiteral("%1: \"%2\" is the stored name of no key").arg(place, name);
        return;
    }
    // The form of the first versions is the action alone.
    const QJsonValue record = value.isString() ? QJsonValue(QJsonObject{{QStringLiteral("action"), value}}) : value;
    if (const std::optional<QString> problem = problemWithRecord(record)) {
        import.problems += place + QStringLiteral(": ") + *problem;
        return;
    }
    import.mappings[profile].insert_or_assign(*key, *configuredActionFromJson(record, newUuid));
    ++import.records;
}

} // namespace

MappingImport checkMappings(const QByteArray& content, const UuidSource& newUuid)
{
    MappingImport import;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(content, &error);
    if (error.error != QJsonParseError::NoError) {
        import.problems += QStringLiteral("%1: %2").arg(placeIn(content, error.offset), error.errorString());
        return import;
    }
    if (!document.isObject()) {
        import.problems += QStringLiteral("expected an object of profiles");
        return import;
    }
    const QJsonObject profiles = document.object();
    for (auto profile = profiles.begin(); profile != profiles.end(); ++profile) {
        if (profile.key().isEmpty()) {
            import.problems += QStringLiteral("a profile has an empty name");
            continue;
        }
        if (!profile.value().isObject()) {
            import.problems += QStringLiteral("%1: expected an object of keys").arg(profile.key());
            continue;
        }
        import.mappings[profile.key()];
        const QJsonObject keys = profile.value().toObject();
        for (auto key = keys.begin(); key != keys.end(); ++key)
            readRecord(import, profile.key(), key.key(), key.value(), newUuid);
    }
    return import;
}

ProfileMappings merged(ProfileMappings mappings, const ProfileMappings& imported)
{
    for (const auto& [profile, keys] : imported) {
        KeyMappings& present = mappings[profile];
        for (const auto& [key, record] : keys) {
            if (record.isEffectivelyCustom(key))
                present.insert_or_assign(key, record);
            else
                present.erase(key);
        }
    }
    return mappings;
}

} // namespace tarvin
