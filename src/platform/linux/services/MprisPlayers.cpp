#include "platform/linux/services/MprisPlayers.h"

#include <QDBusConnectionInterface>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <algorithm>
#include <utility>

namespace tarvin::services {

namespace {

const QString servicePrefix = QStringLiteral("org.mpris.MediaPlayer2.");
/// Stands for another player, which is asked itself.
const QString standIn = QStringLiteral("org.mpris.MediaPlayer2.playerctld");

constexpr QStringView playerPath = u"/org/mpris/MediaPlayer2";
constexpr QStringView playerInterface = u"org.mpris.MediaPlayer2.Player";

/// A player that hangs keeps the others waiting no longer than this.
constexpr int statusTimeMilliseconds = 500;

QStringView methodOf(MediaCommand command)
{
    switch (command) {
    case MediaCommand::playPause:
        return u"PlayPause";
    case MediaCommand::next:
        return u"Next";
    case MediaCommand::previous:
        return u"Previous";
    }
    return {};
}

} // namespace

MprisPlayers::MprisPlayers(Scheduler& scheduler, Buses::Provider sessionBus, TellUser tellUser)
    : m_scheduler(scheduler)
    , m_sessionBus(std::move(sessionBus))
    , m_tellUser(std::move(tellUser))
{ }

void MprisPlayers::send(MediaCommand command)
{
    m_scheduler.runInBackground(BackgroundQueue::userInitiated, [this, command] { sendNow(command); });
}

void MprisPlayers::sendNow(MediaCommand command)
{
    const QDBusConnection bus = m_sessionBus();
    const QString service = chosenAmong(playersOn(bus));
    if (service.isEmpty()) {
        m_tellUser(QStringLiteral("No Media Player"));
        return;
    }
    const QDBusMessage answer = askAndWait(bus, callOf({service, playerPath, playerInterface}, methodOf(command)));
    if (answer.type() == QDBusMessage::ErrorMessage && !meansSilence(answer))
        m_tellUser(refused(QStringLiteral("Media key"), answer.errorMessage()));
}

std::vector<MprisPlayers::Player> MprisPlayers::playersOn(const QDBusConnection& bus)
{
    if (!bus.isConnected())
        return {};
    const QStringList services = bus.interface()->registeredServiceNames().value();
    std::vector<std::pair<QString, QDBusPendingCall>> questions;
    for (const QString& service : services) {
        if (!service.startsWith(servicePrefix) || service == standIn)
            continue;
        const QDBusMessage question = callOf({service, playerPath, u"org.freedesktop.DBus.Properties"}, u"Get",
            {playerInterface.toString(), QStringLiteral("PlaybackStatus")});
        questions.emplace_back(service, bus.asyncCall(question, statusTimeMilliseconds));
    }
    std::vector<Player> players;
    for (auto& [service, question] : questions) {
        question.waitForFinished();
        const QDBusPendingReply<QDBusVariant> answer = question;
        if (answer.isValid())
            players.push_back({.service = service, .status = answer.value().variant().toString()});
    }
    return players;
}

QString MprisPlayers::chosenAmong(const std::vector<Player>& players)
{
    const std::lock_guard lock(m_mutex);
    const auto rank = [this](const Player& player) {
        return std::tuple(player.status != u"Playing", player.service != m_last, player.status != u"Paused");
    };
    const auto best = std::min_element(
        players.begin(), players.end(), [&](const Player& a, const Player& b) { return rank(a) < rank(b); });
    if (best == players.end())
        return {};
    m_last = best->service;
    return best->service;
}

} // namespace tarvin::services
