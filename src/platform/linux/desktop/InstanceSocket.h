#pragma once

#include "platform/linux/desktop/InstanceRequest.h"
#include "platform/posix/UnixSocket.h"

#include <chrono>
#include <functional>
#include <memory>
#include <unordered_map>

class QSocketNotifier;

namespace tarvin::desktop {

using InstanceRequestHandler = std::function<void(const InstanceRequest&)>;

/// The way from a second instance to the first where no session bus serves: a socket in the user's run-time folder. A
/// request is one line, and so is the answer.
class InstanceSocket
{
public:
    /// Listens in the first instance, in the place of what an earlier one left there. Requests are handed on the main
    /// thread. Without effect where the path can't be used.
    InstanceSocket(const QString& path, InstanceRequestHandler handler);
    /// Takes the socket away again.
    ~InstanceSocket();
    InstanceSocket(const InstanceSocket&) = delete;
    InstanceSocket& operator=(const InstanceSocket&) = delete;

    [[nodiscard]] bool isListening() const { return m_listener.isValid(); }

    /// In the second instance: hands the request over and waits for the answer.
    /// @return false where nobody listens or nobody answers in time
    [[nodiscard]] static bool send(
        const QString& path, const InstanceRequest& request, std::chrono::milliseconds timeout);

private:
    struct Caller;

    void accept();
    void read(int descriptor);

    QString m_path;
    InstanceRequestHandler m_handler;
    posix::Descriptor m_listener;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::unordered_map<int, Caller> m_callers; ///< by their descriptor
};

} // namespace tarvin::desktop
