// The program as a process, its files and settings, and the system services it asks.

#include "app/simulate/InstructionReader.h"
#include "app/simulate/RecordFields.h"

#include <QJsonDocument>

namespace tarvin::simulate {

namespace {

using simulated::FailureSpan;
using simulated::FileOperation;

constexpr auto fileOperationNames = std::to_array<simulated::NamedValue<FileOperation>>({
    {FileOperation::read, u"read"},
    {FileOperation::write, u"write"},
    {FileOperation::append, u"append"},
});

QString path(FieldReader& fields)
{
    return fields.required(u"path", field::text());
}

Instruction readProcess(FieldReader& fields)
{
    return DescribeProcess{
        .arguments = fields.optional(u"arguments", field::texts()),
        .name = fields.optional(u"name", field::text()),
        .bundlePath = fields.optional(u"bundlePath", field::text()),
        .bundleName = fields.optional(u"bundleName", field::textOrNull()),
        .bundleIdentifier = fields.optional(u"bundleIdentifier", field::textOrNull()),
        .loginItem = fields.optional(u"loginItem", field::boolean()),
    };
}

Instruction readUptime(FieldReader& fields)
{
    return SetUptime{fields.required(u"seconds", field::positiveNumber())};
}

Instruction readClock(FieldReader& fields)
{
    return SetClock{fields.required(u"now", field::instant())};
}

Instruction readFile(FieldReader& fields)
{
    fields.expectOneOf({u"text"_qs, u"json"_qs});
    const QString where = path(fields);
    const std::optional<QString> text = fields.optional(u"text", field::text());
    const std::optional<QJsonValue> json = fields.optional(u"json", field::anything());
    if (!json)
        return PutFile{where, text.value_or(QString()).toUtf8()};
    if (json->isArray())
        return PutFile{where, QJsonDocument(json->toArray()).toJson()};
    if (!json->isObject())
        fields.fail(u"\"json\": expected an object or a list, found "_qs + FieldReader::describe(*json));
    return PutFile{where, QJsonDocument(json->toObject()).toJson()};
}

Instruction readRemoveFile(FieldReader& fields)
{
    return RemoveFile{path(fields)};
}

Instruction readFailFile(FieldReader& fields)
{
    return FailFile{
        .path = path(fields),
        .operation = fields.required(u"operation", field::oneOf(fileOperationNames)),
        .error = fields.required(u"error", field::textOrNull()),
        .span = fields.optionalOr(u"once", field::boolean(), false) ? FailureSpan::once : FailureSpan::always,
    };
}

Instruction readMap(FieldReader& fields)
{
    return MapKey{
        .profile = fields.optionalOr(u"profile", field::text(), u"global"_qs),
        .key = fields.required(u"key", field::fKey()),
        .record = readRecord(fields),
    };
}

Instruction readSetting(FieldReader& fields)
{
    return StoreSetting{
        .key = fields.required(u"key", field::text()), .value = fields.required(u"value", field::anything())};
}

Instruction readPermission(FieldReader& fields)
{
    return SetPermission{fields.required(u"granted", field::boolean())};
}

Instruction readScripts(FieldReader& fields)
{
    return AnswerScripts{
        .canBuild = fields.optionalOr(u"canBuild", field::boolean(), true),
        .error = fields.optionalOr(u"error", field::textOrNull(), std::optional<QString>()),
        .text = fields.optionalOr(u"text", field::textOrNull(), std::optional<QString>()),
    };
}

Instruction readSystemTools(FieldReader& fields)
{
    return ArrangeSystemTools{fields.required(u"error", field::textOrNull())};
}

Instruction readUser(FieldReader& fields)
{
    constexpr std::int64_t longestOffset = 24 * 60;
    DescribeUser user{.homeDirectory = fields.optional(u"home", field::text())};
    if (const auto minutes = fields.optional(u"utcOffset", field::integer(-longestOffset, longestOffset)))
        user.utcOffset = std::chrono::minutes(*minutes);
    return user;
}

Instruction readFunctionKeyTool(FieldReader& fields)
{
    return ArrangeFunctionKeyTool{
        .available = fields.optional(u"available", field::boolean()),
        .stored = fields.optional(u"stored", field::text()),
        .launchError = fields.optional(u"error", field::textOrNull()),
    };
}

Instruction readLoginItem(FieldReader& fields)
{
    return ArrangeLoginItem{.enabled = fields.optional(u"enabled", field::boolean()),
        .refusal = fields.optional(u"error", field::textOrNull())};
}

constexpr auto rows = std::to_array<InstructionRow>({
    {u"process", Phase::stage, readProcess},
    {u"map", Phase::stage, readMap},
    {u"file", Phase::either, readFile},
    {u"removeFile", Phase::either, readRemoveFile},
    {u"failFile", Phase::either, readFailFile},
    {u"setting", Phase::either, readSetting},
    {u"uptime", Phase::either, readUptime},
    {u"clock", Phase::either, readClock},
    {u"permission", Phase::either, readPermission},
    {u"scripts", Phase::either, readScripts},
    {u"systemTools", Phase::either, readSystemTools},
    {u"user", Phase::either, readUser},
    {u"functionKeyTool", Phase::either, readFunctionKeyTool},
    {u"loginItem", Phase::either, readLoginItem},
});

} // namespace

std::span<const InstructionRow> systemInstructions()
{
    return rows;
}

} // namespace tarvin::simulate
