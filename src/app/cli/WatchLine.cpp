#include "app/cli/WatchLine.h"

namespace tarvin {

namespace {

QString nameOf(KeyOutcome outcome)
{
    switch (outcome) {
    case KeyOutcome::paused:
        return QStringLiteral("paused");
    case KeyOutcome::notCustomised:
        return QStringLiteral("notCustomised");
    case KeyOutcome::alreadyFired:
        return QStringLiteral("alreadyFired");
    case KeyOutcome::fired:
        return QStringLiteral("fired");
    }
    return {};
}

/// The last column, for people.
QString meaningOf(const QString& outcome, const QString& title)
{
    if (outcome == u"fired")
        return title;
    if (outcome == u"alreadyFired")
        return QStringLiteral("%1 (fired already by this press)").arg(title);
    if (outcome == u"paused")
        return QStringLiteral("factory behaviour: a switch is off");
    return QStringLiteral("factory behaviour: not customised");
}

} // namespace

QJsonObject toJson(const KeyObservation& observation)
{
    return {{QStringLiteral("key"), rawValue(observation.key).toString()},
        {QStringLiteral("path"), rawValue(observation.source).toString()},
        {QStringLiteral("outcome"), nameOf(observation.outcome)},
        {QStringLiteral("profile"), observation.profileId ? QJsonValue(*observation.profileId) : QJsonValue()},
        {QStringLiteral("action"), observation.title ? QJsonValue(*observation.title) : QJsonValue()}};
}

QString watchText(const QJsonObject& observation)
{
    const auto cell = [&observation](QStringView field) {
        const QString text = observation.value(field).toString();
        return text.isEmpty() ? QStringLiteral("-") : text;
    };
    return QStringLiteral("%1  %2  %3  %4")
        .arg(cell(u"key"), -13)
        .arg(cell(u"path"), -20)
        .arg(cell(u"profile"), -24)
        .arg(meaningOf(observation.value(u"outcome").toString(), observation.value(u"action").toString()));
}

} // namespace tarvin
