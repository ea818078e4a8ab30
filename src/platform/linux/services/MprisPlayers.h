#pragma once

#include "platform/linux/services/Buses.h"
#include "platform/linux/services/UserNotice.h"
#include "platform/ports/Scheduler.h"
#include "platform/ports/Script.h"

#include <mutex>

namespace tarvin::services {

/// The media players of the session, by the interface that they share on the bus (MPRIS). Nothing is watched: who plays
/// is asked when a command comes. Any thread.
class MprisPlayers
{
public:
    MprisPlayers(Scheduler& scheduler, Buses::Provider sessionBus, TellUser tellUser);

    /// Gives the command to the player that plays, or else to the one that got the last command, or else to one that is
    /// paused, or to any. Returns at once.
    void send(MediaCommand command);

private:
    struct Player
    {
        QString service;
        QString status; ///< "Playing", "Paused" or "Stopped"
    };

    void sendNow(MediaCommand command);
    [[nodiscard]] static std::vector<Player> playersOn(const QDBusConnection& bus);
    [[nodiscard]] QString chosenAmong(const std::vector<Player>& players);

    Scheduler& m_scheduler;
    Buses::Provider m_sessionBus;
    TellUser m_tellUser;
    std::mutex m_mutex;
    QString m_last; ///< service that got the last command; guarded by the mutex
};

} // namespace tarvin::services
