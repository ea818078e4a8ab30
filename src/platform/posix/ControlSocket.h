#pragma once

#include "platform/posix/UnixSocket.h"

#include <QByteArray>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>

class QSocketNotifier;

namespace tarvin::posix {

/// The other end of one command, in the program that runs.
class ControlCaller
{
public:
    virtual ~ControlCaller() = default;
    /// Sends a line, with its end. It never blocks: what the caller does not fetch is kept for it, up to a limit beyond
    /// which the caller is dropped.
    virtual void send(const QByteArray& line) = 0;
    /// Ends the conversation when everything is sent.
    virtual void finish() = 0;
    /// Called once when the caller is gone, and after it nothing more may be sent.
    virtual void setGoneHandler(std::function<void()> handler) = 0;
};

/// Where the running program takes commands: a socket in the user's run-time folder. A command is one line; the answers
/// are lines, as many as it takes. Only the user can connect, by the rights of the folder and of the socket, and the
/// system's word on who calls is asked besides. Main thread only.
class ControlSocket
{
public:
    /// The caller lives until its goneHandler was called, or it has finished.
    using Handler = std::function<void(const QByteArray& line, ControlCaller& caller)>;

    ControlSocket(const QString& path, Handler handler);
    /// Takes the socket away again.
    ~ControlSocket();
    ControlSocket(const ControlSocket&) = delete;
    ControlSocket& operator=(const ControlSocket&) = delete;

    [[nodiscard]] bool isListening() const { return m_listener.isValid(); }

private:
    class Caller;

    void accept();
    void forget(int descriptor);

    const QString m_path;
    Handler m_handler;
    Descriptor m_listener;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::map<int, std::unique_ptr<Caller>> m_callers; ///< by their descriptor
};

/// The same road from the other side: a command on its way to the running program.
class ControlConnection
{
public:
    /// @return nothing where no program listens
    [[nodiscard]] static std::optional<ControlConnection> open(const QString& path);

    [[nodiscard]] bool send(const QByteArray& line) const;
    /// Waits for the next line, without its end; nothing when the other side has ended, or at the limit.
    /// @param timeout negative waits for ever
    [[nodiscard]] std::optional<QByteArray> readLine(std::chrono::milliseconds timeout);

private:
    explicit ControlConnection(Descriptor descriptor)
        : m_descriptor(std::move(descriptor))
    { }

    Descriptor m_descriptor;
    QByteArray m_received;
};

} // namespace tarvin::posix
