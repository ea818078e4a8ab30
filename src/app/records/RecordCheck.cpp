#include "app/records/RecordCheck.h"

#include "model/RecordJson.h"
#include "model/VocabularyJson.h"

#include <QJsonArray>
#include <QJsonObject>

namespace tarvin {

namespace {

/// Where the given value says something that the understood one does not; absent if it nowhere does.
std::optional<QString> firstDifference(const QJsonValue& given, const QJsonValue& understood, const QString& path)
{
    if (given.isObject() && understood.isObject()) {
        const QJsonObject fields = given.toObject();
        for (auto entry = fields.begin(); entry != fields.end(); ++entry) {
            const QString inner = path.isEmpty() ? entry.key() : path + u'.' + entry.key();
            if (auto found = firstDifference(entry.value(), understood.toObject().value(entry.key()), inner))
                return found;
        }
        return std::nullopt;
    }
    if (given.isArray() && understood.isArray() && given.toArray().size() == understood.toArray().size()) {
        for (qsizetype index = 0; index < given.toArray().size(); ++index) {
            const QString inner = u"%1[%2]"_qs.arg(path).arg(index);
            if (auto found = firstDifference(given.toArray()[index], understood.toArray()[index], inner))
                return found;
        }
        return std::nullopt;
    }
    return given == understood ? std::nullopt : std::optional(path);
}

} // namespace

std::optional<QString> problemWithRecord(const QJsonValue& record)
{
    if (!record.isObject())
        return u"expected an object with \"action\" and its parameters"_qs;
    if (!keyActionFromJson(record.toObject().value(u"action")))
        return u"\"action\" of the record: expected the stored name of an action, such as \"mute\""_qs;
    const std::optional<ConfiguredAction> understood = configuredActionFromJson(record);
    const std::optional<QString> difference = firstDifference(record, toJson(*understood), {});
    if (!difference)
        return std::nullopt;
    return u"the record's field \"%1\" is unknown, or its value is none that the field can have"_qs.arg(*difference);
}

} // namespace tarvin
