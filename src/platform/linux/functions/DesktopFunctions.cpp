#include "platform/linux/functions/DesktopFunctions.h"

#include "platform/linux/functions/ManagerWishes.h"
#include "platform/linux/services/Programs.h"

#include <QDBusVariant>
#include <QProcess>

#include <algorithm>

namespace tarvin::functions {

using namespace services;

namespace {

constexpr BusObject propertiesOf(const BusObject& object)
{
    return {object.service, object.path, u"org.freedesktop.DBus.Properties"};
}

bool isThere(const QDBusConnection& bus, const Sign& sign)
{
    return (sign.service.isEmpty() || isOnBus(bus, sign.service))
        && (sign.program.isEmpty() || isProgramRunning(sign.program));
}

bool isAnswered(const QDBusMessage& answer)
{
    return answer.type() == QDBusMessage::ReplyMessage || meansSilence(answer);
}

bool flip(const QDBusConnection& bus, const FlipProperty& road)
{
    const BusObject properties = propertiesOf(road.object);
    const QString interface = road.object.interface.toString();
    const QString property = road.property.toString();
    const QDBusMessage answer = askAndWait(bus, callOf(properties, u"Get", {interface, property}));
    if (answer.type() != QDBusMessage::ReplyMessage)
        return false;
    const bool isOn = answer.arguments().value(0).value<QDBusVariant>().variant().toBool();
    return isAnswered(
        askAndWait(bus, callOf(properties, u"Set", {interface, property, QVariant::fromValue(QDBusVariant(!isOn))})));
}

/// What the settings tool prints; nothing where it fails.
std::optional<QByteArray> askSettings(const QStringList& arguments)
{
    constexpr int limitMilliseconds = 2000;
    QProcess tool;
    tool.start(QStringLiteral("gsettings"), arguments);
    if (!tool.waitForFinished(limitMilliseconds) || tool.exitStatus() != QProcess::NormalExit || tool.exitCode() != 0)
        return std::nullopt;
    return tool.readAllStandardOutput().trimmed();
}

bool flip(const FlipSetting& road)
{
    const QString schema = road.schema.toString();
    const QString key = road.key.toString();
    const std::optional<QByteArray> value = askSettings({QStringLiteral("get"), schema, key});
    if (!value)
        return false;
    const QString other = *value == "true" ? QStringLiteral("false") : QStringLiteral("true");
    return askSettings({QStringLiteral("set"), schema, key, other}).has_value();
}

/// Performs the roads that need no window manager; the two others are not for here.
struct BackgroundPerformer
{
    const QDBusConnection& bus;
    const DesktopFunctions::Means& means;

    bool operator()(const AskBus& road) const
    {
        const QVariantList arguments =
            road.argument.isEmpty() ? QVariantList() : QVariantList{road.argument.toString()};
        return isAnswered(askAndWait(bus, callOf(road.object, road.method, arguments)));
    }
    bool operator()(const FlipProperty& road) const { return flip(bus, road); }
    bool operator()(const FlipSetting& road) const { return flip(road); }
    bool operator()(const RunProgram& road) const
    {
        return startProgram(road.program.toString(), road.arguments.toString().split(u' ', Qt::SkipEmptyParts));
    }
    bool operator()(ManagerWish) const { return false; }
    bool operator()(OwnMeans own) const
    {
        if (own != OwnMeans::lockScreen || !means.lockScreen)
            return false;
        means.lockScreen();
        return true;
    }
};

bool isForMainThread(const Road& road)
{
    const auto* const own = std::get_if<OwnMeans>(&road);
    return std::holds_alternative<ManagerWish>(road) || (own && *own == OwnMeans::forceQuitDialog);
}

} // namespace

DesktopFunctions::DesktopFunctions(
    Scheduler& scheduler, desktop::XConnection& connection, Buses::Provider sessionBus, TellUser tellUser, Means means)
    : m_scheduler(scheduler)
    , m_connection(connection)
    , m_sessionBus(std::move(sessionBus))
    , m_tellUser(std::move(tellUser))
    , m_means(std::move(means))
{ }

void DesktopFunctions::perform(x11::DesktopFunction function)
{
    m_scheduler.post([this, function] { performOnMain(function); });
}

void DesktopFunctions::performOnMain(x11::DesktopFunction function)
{
    for (const FunctionRoad& row : functionRoads()) {
        if (row.function != function || !isForMainThread(row.road))
            continue;
        if (const auto* const wish = std::get_if<ManagerWish>(&row.road)) {
            if (!askManager(m_connection, *wish))
                tellMissing(function);
        } else if (m_means.showForceQuitDialog) {
            m_means.showForceQuitDialog();
        }
        return;
    }
    m_scheduler.runInBackground(BackgroundQueue::userInitiated, [this, function] { performInBackground(function); });
}

void DesktopFunctions::performInBackground(x11::DesktopFunction function) const
{
    const QDBusConnection bus = m_sessionBus();
    const auto roads = functionRoads();
    const bool isDone = std::any_of(roads.begin(), roads.end(), [&](const FunctionRoad& row) {
        return row.function == function && isThere(bus, row.sign)
            && std::visit(BackgroundPerformer{bus, m_means}, row.road);
    });
    if (!isDone)
        tellMissing(function);
}

void DesktopFunctions::tellMissing(x11::DesktopFunction function) const
{
    const std::string_view name = x11::nameOf(function);
    m_tellUser(notAvailable(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()))));
}

} // namespace tarvin::functions
