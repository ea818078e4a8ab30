#include "tapd/service/TapService.h"

#include "platform/keycodes/KeyCodeTable.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace tarvin::tapd {

namespace {

/// A round of reading ends here, so that no application keeps the daemon from the keyboards.
constexpr int mostMessagesAtOnce = 64;

} // namespace

void TapService::accept(FrameSocket socket, EventTime now)
{
    dropApplication();
    m_socket = std::move(socket);
    send(Welcome{.wayOuts = m_wayOuts, .isOut = m_isOut});
    applyPublication(now);
}

void TapService::dropApplication()
{
    m_socket.close();
    m_published = {};
    m_isSilent = false;
    m_heartbeat.turnOff();
    m_engine.publish({});
    for (std::size_t code = 0; m_posted.any(); ++code) {
        if (m_posted[code])
            handle(Post{.code = static_cast<std::uint16_t>(code), .motion = KeyMotion::release}, {});
    }
}

void TapService::readApplication(EventTime now)
{
    for (int count = 0; count < mostMessagesAtOnce && m_socket.isOpen(); ++count) {
        switch (m_socket.receive()) {
        case FrameSocket::Received::nothing:
            return;
        case FrameSocket::Received::closed:
            dropApplication();
            return;
        case FrameSocket::Received::message:
            break;
        }
        const auto frame = decodeApplicationFrame(m_socket.message());
        if (!frame) {
            dropApplication();
            return;
        }
        m_heartbeat.noteAnswer();
        std::visit([this, now](const auto& each) { handle(each, now); }, *frame);
        if (std::exchange(m_isSilent, false))
            applyPublication(now);
    }
}

void TapService::readApplicationAfterPause(EventTime now)
{
    m_isCatchingUp = true;
    readApplication(now);
    m_isCatchingUp = false;
}

void TapService::handle(const Publish& publish, EventTime now)
{
    m_published = {.keys = publish.keys, .takesSummon = publish.takesSummon};
    if (publish.keys != 0 && publish.wayOutsSeen == m_wayOuts)
        m_isOut = false;
    applyPublication(now);
}

void TapService::handle(const Post& post, EventTime)
{
    if (keyRowOfEvdevCode(post.code) == nullptr)
        return;
    const bool isPress = post.motion == KeyMotion::press;
    if (isPress && m_isCatchingUp)
        return;
    m_posted.set(post.code, isPress);
    EventBuffer events;
    events.append(EV_KEY, post.code, isPress ? 1 : 0);
    events.endReport();
    m_outputs.post(events.events());
}

void TapService::applyPublication(EventTime now)
{
    const bool isTaking = m_socket.isOpen() && !m_isOut && !m_isSilent;
    m_engine.publish(isTaking ? m_published : TakenSet{});
    if (m_published.isEmpty() || m_isOut)
        m_heartbeat.turnOff();
    else
        m_heartbeat.turnOn(now);
}

bool TapService::wantsKeyboards() const
{
    return m_socket.isOpen() && !m_isOut && !m_published.isEmpty();
}

void TapService::detach(KeyboardId keyboard)
{
    m_outcome.clear();
    const Output output = m_engine.outputOf(keyboard);
    m_engine.detach(keyboard, m_outcome);
    carryOut(output);
}

void TapService::handleEvents(KeyboardId keyboard, std::span<const input_event> events)
{
    m_outcome.clear();
    m_engine.feed(keyboard, events, m_outcome);
    carryOut(m_engine.outputOf(keyboard));
}

void TapService::resynchronise(KeyboardId keyboard, const KeyBits& down, EventTime now)
{
    m_outcome.clear();
    m_engine.resynchronise(keyboard, down, now, m_outcome);
    carryOut(m_engine.outputOf(keyboard));
}

void TapService::carryOut(Output output)
{
    // The system first: what passes never waits for the application.
    if (!m_outcome.emitted.isEmpty())
        m_outputs.write(output, m_outcome.emitted.events());
    for (const TakenKey& taken : m_outcome.takenKeys()) {
        if (!m_socket.isOpen())
            return;
        const auto motion = static_cast<KeyMotion>(taken.value);
        switch (taken.subject) {
        case TakenKey::Subject::customisedKey:
            send(KeyTaken{.key = taken.key, .code = taken.code, .motion = motion, .scan = taken.scan});
            break;
        case TakenKey::Subject::summonShortcut:
            send(SummonTaken{.motion = motion});
            break;
        }
    }
}

void TapService::send(const DaemonFrame& frame)
{
    if (!m_socket.send(encode(frame).bytes()))
        dropApplication();
}

std::optional<EventTime> TapService::deadline(EventTime now) const
{
    const auto heartbeat = m_heartbeat.deadline(now);
    const auto wayOut = m_isOut ? std::nullopt : m_engine.wayOutDeadline();
    if (heartbeat && wayOut)
        return std::min(*heartbeat, *wayOut);
    return heartbeat ? heartbeat : wayOut;
}

void TapService::tick(EventTime now)
{
    if (m_engine.isWayOutDue(now) && !m_isOut) {
        ++m_wayOuts;
        m_isOut = true;
        m_isReleaseDue = true;
        if (m_socket.isOpen())
            send(WayOut{.wayOuts = m_wayOuts});
        applyPublication(now);
    }
    if (!m_isSilent && m_heartbeat.isSilent(now)) {
        m_isSilent = true;
        applyPublication(now);
    }
    if (m_heartbeat.isPingDue(now)) {
        m_heartbeat.notePing(now);
        send(Ping{.number = ++m_pings});
    }
}

bool TapService::takeWayOut()
{
    return std::exchange(m_isReleaseDue, false);
}

} // namespace tarvin::tapd
