#pragma once

#include "app/cli/CommandService.h"
#include "platform/linux/desktop/ControlSocket.h"

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
    /// Listens from now on; what comes waits for the event loop.
    /// @param platformStatus what the platform adds to the answer to `status`. By the time it returns, the keys that
    /// the answer names are taken from the session.
    ProgramCommands(SharedObjects& objects, const QString& controlPath, std::function<QJsonObject()> platformStatus);
    ~ProgramCommands();
    ProgramCommands(const ProgramCommands&) = delete;
    ProgramCommands& operator=(const ProgramCommands&) = delete;

private:
    void handle(const QByteArray& line, desktop::ControlCaller& caller);
    void addWatcher(desktop::ControlCaller& caller);
    void updateObserver();
    [[nodiscard]] QJsonObject status() const;
    [[nodiscard]] CommandService& service();

    SharedObjects& m_objects;
    std::function<QJsonObject()> m_platformStatus;
    std::optional<CommandService> m_service;
    std::vector<desktop::ControlCaller*> m_watchers;
    desktop::ControlSocket m_socket;
};

} // namespace tarvin
