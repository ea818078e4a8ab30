#include "app/cli/RecordArguments.h"

#include "app/records/RecordCheck.h"
#include "model/RecordJson.h"
#include "platform/keycodes/KeyCodeTable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace tarvin {

namespace {

struct ModifierName
{
    QStringView name;
    QStringView field;
};
constexpr auto modifierNames = std::to_array<ModifierName>({
    {u"cmd", u"command"},
    {u"command", u"command"},
    {u"super", u"command"},
    {u"opt", u"option"},
    {u"option", u"option"},
    {u"alt", u"option"},
    {u"ctrl", u"control"},
    {u"control", u"control"},
    {u"shift", u"shift"},
});

/// The fields whose values are no texts.
constexpr std::array<QStringView, 3> structuredFields = {u"customShortcut", u"customShortcuts", u"chainSteps"};

std::optional<QJsonValue> structured(const QString& text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (document.isObject())
        return QJsonValue(document.object());
    if (document.isArray())
        return QJsonValue(document.array());
    return std::nullopt;
}

} // namespace

std::variant<QJsonObject, QString> shortcutFromText(const QString& text)
{
    QJsonObject shortcut;
    const QStringList words = text.split(u'+');
    for (const QString& word : words.first(words.size() - 1)) {
        const auto modifier = std::ranges::find(modifierNames, QStringView(word.toLower()), &ModifierName::name);
        if (modifier == modifierNames.end()) {
            return QStringLiteral("\"%1\" is no modifier; expected cmd, opt, ctrl or shift before the key").arg(word);
        }
        shortcut.insert(modifier->field, true);
    }
    const QByteArray key = words.last().toLower().toUtf8();
    const auto row = std::ranges::find_if(keyCodeTable, [&key](const KeyCodeRow& candidate) {
        return candidate.form == KeyForm::key
            && key.compare(QByteArray(candidate.name.data(), static_cast<qsizetype>(candidate.name.size())),
                   Qt::CaseInsensitive)
            == 0;
    });
    if (row == keyCodeTable.end())
        return QStringLiteral("\"%1\" is the name of no key").arg(words.last());
    shortcut.insert(u"keyCode", row->code);
    shortcut.insert(u"keyDisplay", QString::fromUtf8(key).toUpper());
    return shortcut;
}

RecordOrProblem recordFromArguments(const QString& action, const QStringList& parameters, const UuidSource& newUuid)
{
    if (!keyActionFromRawValue(action)) {
        return QStringLiteral("\"%1\" is no action; \"tarvin actions\" lists them").arg(action);
    }
    QJsonObject record{{QStringLiteral("action"), action}};
    for (const QString& parameter : parameters) {
        const qsizetype sign = parameter.indexOf(u'=');
        if (sign <= 0)
            return QStringLiteral("\"%1\" is no parameter; expected FIELD=VALUE").arg(parameter);
        QString field = parameter.left(sign);
        const QString text = parameter.mid(sign + 1);
        QJsonValue value(text);
        if (field == u"shortcut") {
            const auto shortcut = shortcutFromText(text);
            if (const auto* const problem = std::get_if<QString>(&shortcut))
                return *problem;
            field = QStringLiteral("customShortcut");
            value = std::get<QJsonObject>(shortcut);
        } else if (std::ranges::find(structuredFields, QStringView(field)) != structuredFields.end()) {
            const std::optional<QJsonValue> json = structured(text);
            if (!json)
                return QStringLiteral("the value of \"%1\" is no JSON object or list").arg(field);
            value = *json;
        }
        if (field == u"action" || record.contains(field))
            return QStringLiteral("the field \"%1\" is given twice").arg(field);
        record.insert(field, value);
    }
    if (const std::optional<QString> problem = problemWithRecord(record))
        return *problem;
    return *configuredActionFromJson(record, newUuid);
}

} // namespace tarvin
