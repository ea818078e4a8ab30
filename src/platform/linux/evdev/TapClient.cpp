#include "platform/linux/evdev/TapClient.h"

#include "platform/ports/Scheduler.h"

#include <QFileInfo>
#include <QtGlobal>

#include <algorithm>
#include <utility>
#include <variant>

namespace tarvin::evdev {

using namespace std::chrono_literals;

namespace {

constexpr auto firstRetry = 500ms;
constexpr auto longestRetry = 30'000ms;

} // namespace

TapClient::TapClient(Scheduler& scheduler, std::string socketPath, LogHandler log)
    : m_scheduler(scheduler)
    , m_socketPath(std::move(socketPath))
    , m_log(std::move(log))
    , m_retryDelay(firstRetry)
{
    connect();
    if (m_state == State::absent)
        m_log(QStringLiteral("[Tarvin] Tap daemon absent: keys are taken in the X session only."));
}

TapClient::~TapClient()
{
    m_postingRoad->close();
}

std::string TapClient::defaultSocketPath()
{
    return qEnvironmentVariable(tapd::socketPathVariable, QString::fromLatin1(tapd::defaultSocketPath)).toStdString();
}

void TapClient::setWayOutHandler(std::function<void()> handler)
{
    m_wayOutHandler = std::move(handler);
    if (std::exchange(m_isWayOutUntold, false))
        noteWayOut();
}

void TapClient::lookAgain()
{
    if (isPresent() || !QFileInfo::exists(QString::fromStdString(m_socketPath)))
        return;
    // The socket may be there a moment before anybody listens.
    m_state = State::lost;
    m_retryDelay = firstRetry;
    connect();
}

void TapClient::publish(FKeySet keys, SummonShortcut summon)
{
    m_published = {.keys = keys, .summon = summon};
    publishAgain();
}

void TapClient::post(std::uint16_t evdevCode, tapd::KeyMotion motion)
{
    if (m_state == State::connected)
        send(tapd::Post{.code = evdevCode, .motion = motion});
}

void TapClient::connect()
{
    m_retry.reset();
    m_socket = tapd::FrameSocket::connectTo(m_socketPath);
    if (!m_socket.isOpen()) {
        if (m_state == State::lost)
            lose();
        return;
    }
    m_state = State::connecting;
    m_notifier = std::make_unique<QSocketNotifier>(m_socket.descriptor(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { read(); });
}

void TapClient::lose()
{
    if (m_state == State::connected)
        m_log(QStringLiteral("[Tarvin] Tap daemon gone: keys are taken in the X session only, until it is back."));
    else if (m_state == State::connecting)
        m_log(QStringLiteral("[Tarvin] Tap daemon refused the connection: it serves the user at the seat, by a "
                             "protocol of its own version."));
    m_state = State::lost;
    m_postingRoad->close();
    if (m_notifier) {
        // It may be what is calling us.
        m_notifier->setEnabled(false);
        m_notifier.release()->deleteLater();
    }
    m_socket.close();
    m_retry = m_scheduler.startOneShot(m_retryDelay, [this] { connect(); });
    m_retryDelay = std::min<std::chrono::milliseconds>(2 * m_retryDelay, longestRetry);
}

void TapClient::read()
{
    while (m_socket.isOpen()) {
        switch (m_socket.receive()) {
        case tapd::FrameSocket::Received::nothing:
            return;
        case tapd::FrameSocket::Received::closed:
            lose();
            return;
        case tapd::FrameSocket::Received::message:
            break;
        }
        const auto frame = tapd::decodeDaemonFrame(m_socket.message());
        if (!frame) {
            lose();
            return;
        }
        std::visit([this](const auto& each) { handle(each); }, *frame);
    }
}

void TapClient::handle(const tapd::Welcome& welcome)
{
    m_state = State::connected;
    m_retryDelay = firstRetry;
    m_postingRoad->open(m_socket.share());
    m_wayOutsSeen = welcome.wayOuts;
    m_log(QStringLiteral("[Tarvin] Tap daemon connected: keys are taken at the keyboard."));
    if (welcome.isOut)
        noteWayOut();
    publishAgain();
}

void TapClient::handle(const tapd::KeyTaken& taken) const
{
    if (m_handlers.keyTaken)
        m_handlers.keyTaken(taken);
}

void TapClient::handle(const tapd::SummonTaken& taken) const
{
    if (m_handlers.summonTaken)
        m_handlers.summonTaken(taken.motion);
}

void TapClient::handle(const tapd::Ping& ping)
{
    send(tapd::Pong{.number = ping.number});
}

void TapClient::handle(const tapd::WayOut& wayOut)
{
    m_wayOutsSeen = wayOut.wayOuts;
    noteWayOut();
}

void TapClient::noteWayOut()
{
    m_log(QStringLiteral("[Tarvin] The keyboards were given back by hand."));
    if (m_wayOutHandler)
        m_wayOutHandler();
    else
        m_isWayOutUntold = true;
}

void TapClient::publishAgain()
{
    if (m_state != State::connected)
        return;
    send(tapd::Publish{.keys = m_published.keys.bits(),
        .takesSummon = m_published.summon == SummonShortcut::taken,
        .wayOutsSeen = m_wayOutsSeen});
}

void TapClient::send(const tapd::ApplicationFrame& frame)
{
    if (!m_socket.send(tapd::encode(frame).bytes()))
        lose();
}

} // namespace tarvin::evdev
