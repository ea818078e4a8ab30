#include "app/cli/CommandMessages.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tarvin {

namespace {

QByteArray line(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

void insertBytes(QJsonObject& object, const QString& field, const std::optional<QByteArray>& bytes)
{
    // A file may hold anything, JSON text only characters.
    if (bytes)
        object.insert(field, QString::fromLatin1(bytes->toBase64()));
}

std::optional<QByteArray> bytesOf(const QJsonObject& object, QStringView field)
{
    const QJsonValue value = object.value(field);
    return value.isString() ? std::optional(QByteArray::fromBase64(value.toString().toLatin1())) : std::nullopt;
}

} // namespace

QByteArray toLine(const CommandRequest& request)
{
    QJsonObject object{{QStringLiteral("command"), request.command},
        {QStringLiteral("words"), QJsonArray::fromStringList(request.words)}};
    insertBytes(object, QStringLiteral("input"), request.input);
    return line(object);
}

QByteArray toLine(const CommandReply& reply)
{
    QJsonObject object{{QStringLiteral("exitCode"), reply.exitCode}, {QStringLiteral("output"), reply.output},
        {QStringLiteral("error"), reply.error}};
    insertBytes(object, QStringLiteral("file"), reply.file);
    return line(object);
}

std::optional<CommandRequest> commandRequestFromLine(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    if (!object.value(u"command").isString() || !object.value(u"words").isArray())
        return std::nullopt;
    CommandRequest request{
        .command = object.value(u"command").toString(), .words = {}, .input = bytesOf(object, u"input")};
    const QJsonArray words = object.value(u"words").toArray();
    for (const auto& word : words)
        request.words += word.toString();
    return request;
}

std::optional<CommandReply> commandReplyFromLine(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    if (!object.value(u"exitCode").isDouble())
        return std::nullopt;
    return CommandReply{.exitCode = object.value(u"exitCode").toInt(),
        .output = object.value(u"output").toString(),
        .error = object.value(u"error").toString(),
        .file = bytesOf(object, u"file")};
}

} // namespace tarvin
