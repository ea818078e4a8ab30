#include "platform/linux/desktop/InstanceSocket.h"

#include <QFile>
#include <QSocketNotifier>

#include <algorithm>
#include <array>
#include <optional>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace tarvin::desktop {

namespace {

const QByteArray acceptedAnswer = "ok\n";

/// More than any command line that a user types; a caller that sends more is dropped.
constexpr qsizetype longestRequest = 65536;

} // namespace

struct InstanceSocket::Caller
{
    explicit Caller(int number)
        : descriptor(number)
        , notifier(std::make_unique<QSocketNotifier>(number, QSocketNotifier::Read))
    { }

    posix::Descriptor descriptor;
    std::unique_ptr<QSocketNotifier> notifier; ///< goes before the descriptor
    QByteArray received;
};

InstanceSocket::InstanceSocket(const QString& path, InstanceRequestHandler handler)
    : m_path(path)
    , m_handler(std::move(handler))
    , m_listener(posix::listenAt(path))
{
    if (!m_listener.isValid())
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_listener.number(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { accept(); });
}

InstanceSocket::~InstanceSocket()
{
    m_notifier.reset();
    if (m_listener.isValid())
        QFile::remove(m_path);
}

void InstanceSocket::accept()
{
    const int descriptor = accept4(m_listener.number(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (descriptor < 0)
        return;
    const auto caller = m_callers.try_emplace(descriptor, descriptor).first;
    QObject::connect(caller->second.notifier.get(), &QSocketNotifier::activated, caller->second.notifier.get(),
        [this, descriptor] { read(descriptor); });
}

void InstanceSocket::read(int descriptor)
{
    const auto caller = m_callers.find(descriptor);
    std::array<char, 4096> buffer{};
    const ssize_t size = ::read(descriptor, buffer.data(), buffer.size());
    QByteArray& received = caller->second.received;
    if (size > 0)
        received.append(buffer.data(), size);
    if (size > 0 && !received.contains('\n') && received.size() < longestRequest)
        return;
    if (const std::optional<InstanceRequest> request = requestFromLine(received)) {
        // Answered first: the caller waits, and what the request brings up may take its time.
        (void)!::send(
            descriptor, acceptedAnswer.constData(), static_cast<std::size_t>(acceptedAnswer.size()), MSG_NOSIGNAL);
        m_handler(*request);
    }
    // The notifier is the sender of what is being handled.
    caller->second.notifier->setEnabled(false);
    caller->second.notifier.release()->deleteLater();
    m_callers.erase(caller);
}

bool InstanceSocket::send(const QString& path, const InstanceRequest& request, std::chrono::milliseconds timeout)
{
    const posix::Descriptor descriptor = posix::connectTo(path);
    if (!descriptor.isValid())
        return false;
    const QByteArray line = toLine(request);
    if (::send(descriptor.number(), line.constData(), static_cast<std::size_t>(line.size()), MSG_NOSIGNAL)
        != line.size())
        return false;
    QByteArray answer(acceptedAnswer.size(), '\0');
    return posix::waitFor(descriptor.number(), POLLIN, timeout)
        && ::read(descriptor.number(), answer.data(), static_cast<std::size_t>(answer.size())) == answer.size()
        && answer == acceptedAnswer;
}

} // namespace tarvin::desktop
