#include "platform/linux/x11/InputEngine.h"

#include "platform/linux/x11/KeyEvents.h"

#include <algorithm>
#include <chrono>
#include <utility>
#include <variant>

#include <poll.h>

namespace tarvin::x11 {

namespace {

/// A posted key comes back within a few milliseconds. One that does not will not.
constexpr std::chrono::milliseconds arrivalPatience{100};

} // namespace

std::optional<ServerEvent> InputEngine::takeEvent()
{
    if (m_readEarly.empty())
        return readEvent();
    const ServerEvent event = m_readEarly.front();
    m_readEarly.pop_front();
    return event;
}

std::optional<ServerEvent> InputEngine::readEvent()
{
    auto event = m_connection->nextEvent();
    const RawKey* const raw = event ? std::get_if<RawKey>(&event->content) : nullptr;
    if (raw != nullptr && isPostingDevice(raw->key.device)) {
        m_posted.noteReport(
            {raw->key.keycode, raw->motion == KeyMotion::press ? FakeMotion::press : FakeMotion::release});
    }
    return event;
}

bool InputEngine::isPostingPossible() const
{
    // The daemon may serve another session than the one of this server.
    const bool reachesSession = m_keyboards.posting != 0 || m_keyboards.areOfAnotherSession;
    return reachesSession && m_keyPosting && m_keyPosting->isOpen();
}

bool InputEngine::canBePosted(const StrokePlayer::Fakes& fakes, KeycodeSet down, const KeycodeSet& heldByUser) const
{
    KeycodeSet posted;
    return std::ranges::all_of(fakes, [&](const MarkedFake& fake) {
        const Keycode keycode = fake.key.keycode;
        if (keyRowOfXKeycode(keycode) == nullptr)
            return false;
        if (fake.key.motion == FakeMotion::press) {
            const bool isUp = !down[keycode] && !heldByUser[keycode];
            down.set(keycode);
            posted.set(keycode);
            return isUp;
        }
        const bool isOursOrUp = posted[keycode] || m_posted.isDown(keycode) || !down[keycode];
        down.reset(keycode);
        posted.reset(keycode);
        return isOursOrUp;
    });
}

void InputEngine::post(const StrokePlayer::Fakes& fakes)
{
    for (const MarkedFake& each : fakes) {
        // The device drops the release of what is up, and nobody would report it.
        if (each.key.motion == FakeMotion::release && !m_posted.isDown(each.key.keycode))
            continue;
        if (!post(each.key, each.userData))
            fake(each.key, each.userData);
    }
    m_connection->flush();
}

bool InputEngine::post(FakeKey key, std::int64_t userData)
{
    if (std::exchange(m_areFakesUnsettled, false))
        m_connection->sync();
    // In a Wayland session only our own windows see it on this server.
    const bool isSeen = m_keyboards.posting != 0;
    if (isSeen || m_shared.isStudioActive)
        m_shared.ledger.expectPosted(key, userData);
    m_posted.notePost(key);
    if (!isSeen)
        m_posted.noteAllArrived();
    if (m_keyPosting && m_keyPosting->post(key))
        return true;
    m_posted.noteAllArrived();
    m_shared.ledger.forgetPosted();
    return false;
}

/// The device has gone, and what was held on it went up with it.
void InputEngine::forgetPosted()
{
    if (m_posted.isAnyDown())
        m_player = {};
    m_posted = {};
    m_shared.ledger.forgetPosted();
}

/// What is faked at the server would overtake what takes the way through the kernel.
void InputEngine::awaitPosted()
{
    const auto deadline = std::chrono::steady_clock::now() + arrivalPatience;
    while (m_posted.isUnderWay()) {
        while (auto event = readEvent())
            m_readEarly.push_back(*event);
        if (!m_posted.isUnderWay())
            return;
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0 || isBroken()) {
            m_posted.noteAllArrived();
            m_shared.ledger.forgetPosted();
            return;
        }
        pollfd server{fileDescriptor(), POLLIN, 0};
        poll(&server, 1, static_cast<int>(left.count()));
    }
}

} // namespace tarvin::x11
