#include "app/simulate/RecordFields.h"

#include "app/records/RecordCheck.h"

namespace tarvin::simulate {

QJsonObject readRecord(FieldReader& fields)
{
    fields.expectOneOf({u"action"_qs, u"record"_qs});
    const std::optional<KeyAction> action = fields.optional(u"action", field::action());
    const std::optional<QJsonValue> record = fields.optional(u"record", field::anything());
    if (action)
        return {{u"action"_qs, rawValue(*action).toString()}};
    if (record) {
        if (const std::optional<QString> problem = problemWithRecord(*record))
            fields.fail(u"\"record\": "_qs + *problem);
    }
    return record.value_or(QJsonValue()).toObject();
}

} // namespace tarvin::simulate
