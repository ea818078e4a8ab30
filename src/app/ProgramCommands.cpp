#include "app/ProgramCommands.h"

#include "actions/ActionExecutor.h"
#include "actions/TestEnvironment.h"
#include "app/cli/WatchLine.h"
#include "app/core/SharedObjects.h"
#include "interception/EventTapManager.h"
#include "profiles/KeyProfile.h"
#include "profiles/MappingArchive.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace tarvin {

ProgramCommands::ProgramCommands(SharedObjects& objects, const QString& controlPath, Surroundings surroundings)
    : m_objects(objects)
    , m_surroundings(std::move(surroundings))
    , m_socket(controlPath, [this](const QByteArray& line, posix::ControlCaller& caller) { handle(line, caller); })
{ }

ProgramCommands::~ProgramCommands()
{
    m_watchers.clear();
}

void ProgramCommands::handle(const QByteArray& line, posix::ControlCaller& caller)
{
    const std::optional<CommandRequest> request = commandRequestFromLine(line);
    if (request && request->command == u"watch") {
        addWatcher(caller);
        return;
    }
    const CommandReply reply = request
        ? service().perform(*request)
        : CommandReply{.exitCode = exitFailed, .error = QStringLiteral("the running program did not understand")};
    m_surroundings.settleKeys();
    caller.send(toLine(reply));
    caller.finish();
}

void ProgramCommands::addWatcher(posix::ControlCaller& caller)
{
    m_watchers.push_back(&caller);
    caller.setGoneHandler([this, &caller] {
        std::erase(m_watchers, &caller);
        updateObserver();
    });
    updateObserver();
    // Whoever watches knows by this that nothing is missed from now on.
    caller.send("{}\n");
}

void ProgramCommands::updateObserver()
{
    if (m_watchers.empty()) {
        m_objects.eventTapManager().setKeyObserver({});
        return;
    }
    m_objects.eventTapManager().setKeyObserver([this](const KeyObservation& observation) {
        const QByteArray line = QJsonDocument(toJson(observation)).toJson(QJsonDocument::Compact) + '\n';
        // A copy, because one that is dropped takes itself off the list.
        for (posix::ControlCaller* const watcher : std::vector(m_watchers))
            watcher->send(line);
    });
}

QJsonObject ProgramCommands::status() const
{
    const KeyProfile& profile = m_objects.keyProfile();
    QJsonArray keys;
    for (const FKey key : profile.customKeys())
        keys.append(rawValue(key).toString());
    EventTapManager& taps = m_objects.eventTapManager();
    QJsonObject fields{{QStringLiteral("process"), static_cast<qint64>(QCoreApplication::applicationPid())},
        {QStringLiteral("engineRunning"), taps.isRunning()},
        {QStringLiteral("hasPermission"), taps.hasAccessibilityPermission()},
        {QStringLiteral("currentProfile"), profile.currentProfile().id},
        {QStringLiteral("frontApplication"), profile.cachedFrontmostBundleId().value_or(QString())},
        {QStringLiteral("customKeys"), keys},
        {QStringLiteral("testSafeMode"), m_objects.testEnvironment().cause().value_or(QString())}};
    if (m_surroundings.installedApplications)
        fields.insert(QStringLiteral("installedApplications"), m_surroundings.installedApplications());
    return fields;
}

CommandService& ProgramCommands::service()
{
    if (!m_service) {
        m_service.emplace(
            m_objects.keyProfile(), m_objects.mappingArchive(), [] { return QUuid::createUuid(); },
            LiveProgram{.status = [this] { return status(); },
                .run = [this](const ConfiguredAction& action) { m_objects.actionExecutor().execute(action); }});
    }
    return *m_service;
}

} // namespace tarvin
