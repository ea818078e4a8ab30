#pragma once

#include "app/cli/CommandService.h"
#include "platform/posix/ControlSocket.h"

#include <QJsonObject>

#include <functional>
#include <vector>

namespace tarvin {

class SharedObjects;

/// The commands in the running program: they come over the socket and act on the program's own objects. Main thread
/// only.
class ProgramCommands
{
public:
    /// What the commands ask of the platform.
    struct Surroundings
    {
        std::function<void()> settleKeys; ///< returns when the keys that are customised now are taken from the session
        std::function<qint64()> installedApplications{}; ///< how many are known; empty where nobody counts them
    };

    /// Listens from now on; what comes waits for the event loop. An answer goes out when what it tells is in force: a
    /// press after it finds the key taken, or free.
    ProgramCommands(SharedObjects& objects, const QString& controlPath, Surroundings surroundings);
    ~ProgramCommands();
    ProgramCommands(const ProgramCommands&) = delete;
    ProgramCommands& operator=(const ProgramCommands&) = delete;

private:
    void handle(const QByteArray& line, posix::ControlCaller& caller);
    void addWatcher(posix::ControlCaller& caller);
    void updateObserver();
    [[nodiscard]] QJsonObject status() const;
    [[nodiscard]] CommandService& service();

    SharedObjects& m_objects;
    Surroundings m_surroundings;
    std::optional<CommandService> m_service;
    std::vector<posix::ControlCaller*> m_watchers;
    posix::ControlSocket m_socket;
};

} // namespace tarvin
