#include "platform/posix/ControlSocket.h"

#include <QFile>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <utility>

#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvin::posix {

namespace {

/// More than any file of mappings.
constexpr qsizetype longestCommand = 64 * 1024 * 1024;
/// What a caller may leave unfetched; one that only watches and has stopped reading is dropped beyond it.
constexpr qsizetype longestBacklog = 64 * 1024 * 1024;

} // namespace

class ControlSocket::Caller final : public ControlCaller
{
public:
    Caller(ControlSocket& socket, Descriptor descriptor)
        : m_socket(socket)
        , m_descriptor(std::move(descriptor))
        , m_readNotifier(m_descriptor.number(), QSocketNotifier::Read)
        , m_writeNotifier(m_descriptor.number(), QSocketNotifier::Write)
    {
        m_writeNotifier.setEnabled(false);
        QObject::connect(&m_readNotifier, &QSocketNotifier::activated, &m_readNotifier, [this] { read(); });
        QObject::connect(&m_writeNotifier, &QSocketNotifier::activated, &m_writeNotifier, [this] { write(); });
    }

    void send(const QByteArray& line) override
    {
        m_pending += line;
        write();
    }
    void finish() override
    {
        m_isFinishing = true;
        write();
    }
    void setGoneHandler(std::function<void()> handler) override { m_goneHandler = std::move(handler); }

private:
    void read()
    {
        std::array<char, 65536> buffer{};
        const ssize_t size = ::read(m_descriptor.number(), buffer.data(), buffer.size());
        if (size < 0 && (errno == EAGAIN || errno == EINTR))
            return;
        if (size <= 0 || m_received.size() > longestCommand) {
            leave();
            return;
        }
        // One command for one conversation; what comes behind it is not looked at.
        if (m_isCommandRead)
            return;
        m_received.append(buffer.data(), size);
        const qsizetype end = m_received.indexOf('\n');
        if (end < 0)
            return;
        m_isCommandRead = true;
        m_socket.m_handler(m_received.left(end), *this);
    }

    void write()
    {
        while (!m_pending.isEmpty()) {
            const ssize_t sent =
                sendTo(m_descriptor, m_pending.constData(), static_cast<std::size_t>(m_pending.size()));
            if (sent < 0 && (errno == EAGAIN || errno == EINTR))
                break;
            if (sent < 0) {
                leave();
                return;
            }
            m_pending.remove(0, sent);
        }
        m_writeNotifier.setEnabled(!m_pending.isEmpty());
        if ((m_pending.isEmpty() && m_isFinishing) || m_pending.size() > longestBacklog)
            leave();
    }

    /// On a later turn, because a notifier of ours may be at work.
    void leave()
    {
        if (m_isLeaving)
            return;
        m_isLeaving = true;
        m_readNotifier.setEnabled(false);
        m_writeNotifier.setEnabled(false);
        if (m_goneHandler)
            m_goneHandler();
        QMetaObject::invokeMethod(
            m_socket.m_notifier.get(),
            [socket = &m_socket, descriptor = m_descriptor.number()] { socket->forget(descriptor); },
            Qt::QueuedConnection);
    }

    ControlSocket& m_socket;
    Descriptor m_descriptor; // before the notifiers, which go first
    QSocketNotifier m_readNotifier;
    QSocketNotifier m_writeNotifier;
    QByteArray m_received;
    QByteArray m_pending;
    std::function<void()> m_goneHandler;
    bool m_isCommandRead = false;
    bool m_isFinishing = false;
    bool m_isLeaving = false;
};

ControlSocket::ControlSocket(const QString& path, Handler handler)
    : m_path(path)
    , m_handler(std::move(handler))
    , m_listener(listenAt(path))
{
    if (!m_listener.isValid())
        return;
    chmod(QFile::encodeName(path).constData(), S_IRUSR | S_IWUSR);
    m_notifier = std::make_unique<QSocketNotifier>(m_listener.number(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { accept(); });
}

ControlSocket::~ControlSocket()
{
    m_callers.clear();
    m_notifier.reset();
    if (m_listener.isValid())
        QFile::remove(m_path);
}

void ControlSocket::accept()
{
    Descriptor descriptor = acceptFrom(m_listener);
    if (!descriptor.isValid() || !isOfThisUser(descriptor))
        return;
    const int number = descriptor.number();
    m_callers.insert_or_assign(number, std::make_unique<Caller>(*this, std::move(descriptor)));
}

void ControlSocket::forget(int descriptor)
{
    m_callers.erase(descriptor);
}

std::optional<ControlConnection> ControlConnection::open(const QString& path)
{
    Descriptor descriptor = connectTo(path);
    if (!descriptor.isValid())
        return std::nullopt;
    return ControlConnection(std::move(descriptor));
}

bool ControlConnection::send(const QByteArray& line) const
{
    for (qsizetype sent = 0; sent < line.size();) {
        const ssize_t part =
            sendTo(m_descriptor, line.constData() + sent, static_cast<std::size_t>(line.size() - sent));
        if (part <= 0)
            return false;
        sent += part;
    }
    return true;
}

std::optional<QByteArray> ControlConnection::readLine(std::chrono::milliseconds timeout)
{
    for (;;) {
        if (const qsizetype end = m_received.indexOf('\n'); end >= 0) {
            QByteArray line = m_received.left(end);
            m_received.remove(0, end + 1);
            return line;
        }
        if (!waitFor(m_descriptor.number(), POLLIN, timeout))
            return std::nullopt;
        std::array<char, 65536> buffer{};
        const ssize_t size = ::read(m_descriptor.number(), buffer.data(), buffer.size());
        if (size <= 0)
            return std::nullopt;
        m_received.append(buffer.data(), size);
    }
}

} // namespace tarvin::posix
