#include "platform/linux/evdev/LinuxInputTaps.h"

#include "platform/keycodes/KeyEvents.h"

#include <memory>
#include <utility>

namespace tarvin::evdev {

namespace {

/// The summon shortcut as an event: K with its two modifiers.
constexpr InputEvent summonEvent{
    .type = InputEventType::keyDown, .keyCode = 40, .flags = EventFlags::option | EventFlags::command};

/// The flag that a modifier key stands for while it is held.
constexpr EventFlags ownFlagOf(FKey key)
{
    if (key == FKey::rightOption)
        return EventFlags::option;
    if (key == FKey::rightCommand)
        return EventFlags::command;
    if (key == FKey::fnGlobe)
        return EventFlags::function;
    return EventFlags::none;
}

constexpr keycodes::KeyMotion motionOf(tapd::KeyMotion motion)
{
    switch (motion) {
    case tapd::KeyMotion::press:
        return keycodes::KeyMotion::press;
    case tapd::KeyMotion::repeat:
        return keycodes::KeyMotion::repeat;
    case tapd::KeyMotion::release:
        break;
    }
    return keycodes::KeyMotion::release;
}

} // namespace

/// A tap that the daemon feeds, and the X session too if it is the session's.
class LinuxInputTaps::FedTap final : public EventTap
{
public:
    /// @param place where the owner knows it while it lives
    /// @param session null for the HID tap
    FedTap(
        LinuxInputTaps& owner, FedTap*& place, std::shared_ptr<TapHandler> handler, std::unique_ptr<EventTap> session)
        : m_owner(owner)
        , m_place(place)
        , m_handler(std::move(handler))
        , m_session(std::move(session))
    {
        m_place = this;
    }

    ~FedTap() override
    {
        m_place = nullptr;
        m_owner.publish();
    }

    FedTap(const FedTap&) = delete;
    FedTap& operator=(const FedTap&) = delete;
    FedTap(FedTap&&) = delete;
    FedTap& operator=(FedTap&&) = delete;

    void attachToMainLoop() override { set(m_isAttached, true, &EventTap::attachToMainLoop); }
    void detachFromMainLoop() override { set(m_isAttached, false, &EventTap::detachFromMainLoop); }
    void enable() override { set(m_isEnabled, true, &EventTap::enable); }
    void disable() override { set(m_isEnabled, false, &EventTap::disable); }
    [[nodiscard]] bool isEnabled() const override
    {
        return m_session ? m_session->isEnabled() : m_isEnabled && m_owner.m_client.isPresent();
    }

    [[nodiscard]] bool isListening() const { return m_isAttached && m_isEnabled; }
    /// Alive during its own call, even if the call destroys the tap.
    [[nodiscard]] std::shared_ptr<TapHandler> handler() const { return m_handler; }

private:
    void set(bool& member, bool value, void (EventTap::*inSession)())
    {
        if (m_session)
            (*m_session.*inSession)();
        if (std::exchange(member, value) != value)
            m_owner.publish();
    }

    LinuxInputTaps& m_owner;
    FedTap*& m_place;
    std::shared_ptr<TapHandler> m_handler;
    std::unique_ptr<EventTap> m_session;
    bool m_isAttached = false;
    bool m_isEnabled = false;
};

/// Hears of the taken keys in the words of the hardware.
class LinuxInputTaps::DaemonHidManager final : public HidManager
{
public:
    DaemonHidManager(LinuxInputTaps& owner, HidHandler handler)
        : m_owner(owner)
        , m_handler(std::move(handler))
    {
        m_owner.m_hidManager = this;
    }
    ~DaemonHidManager() override
    {
        if (m_owner.m_hidManager == this)
            m_owner.m_hidManager = nullptr;
    }
    DaemonHidManager(const DaemonHidManager&) = delete;
    DaemonHidManager& operator=(const DaemonHidManager&) = delete;
    DaemonHidManager(DaemonHidManager&&) = delete;
    DaemonHidManager& operator=(DaemonHidManager&&) = delete;

    [[nodiscard]] bool isOpen() const override { return m_owner.m_client.isPresent(); }

    void report(const tapd::KeyTaken& taken) const
    {
        constexpr std::uint32_t pageShift = 16;
        constexpr std::uint32_t usageMask = 0xFFFF;
        const std::uint32_t page = taken.scan >> pageShift;
        // A keyboard that is no HID device has numbers of its own there, all of them small.
        if (page == 0 || taken.motion == tapd::KeyMotion::repeat)
            return;
        m_handler(
            {.page = page, .usage = taken.scan & usageMask, .value = taken.motion == tapd::KeyMotion::press ? 1 : 0});
    }

private:
    LinuxInputTaps& m_owner;
    HidHandler m_handler;
};

LinuxInputTaps::LinuxInputTaps(InputTaps& session, TapClient& client)
    : m_session(session)
    , m_client(client)
{
    m_client.setHandlers({.keyTaken = [this](const tapd::KeyTaken& taken) { receive(taken); },
        .summonTaken = [this](tapd::KeyMotion motion) { receiveSummon(motion); }});
}

LinuxInputTaps::~LinuxInputTaps()
{
    m_client.setHandlers({});
}

std::unique_ptr<EventTap> LinuxInputTaps::createTap(TapLocation location, TapHandler handler)
{
    const auto shared = std::make_shared<TapHandler>(std::move(handler));
    switch (location) {
    case TapLocation::session:
        if (auto session =
                m_session.createTap(location, [shared](const InputEvent& event) { return (*shared)(event); }))
            return std::make_unique<FedTap>(*this, m_sessionTap, shared, std::move(session));
        return nullptr;
    case TapLocation::hid:
        break;
    }
    if (m_hidTap != nullptr || !m_client.isPresent())
        return nullptr;
    return std::make_unique<FedTap>(*this, m_hidTap, shared, nullptr);
}

LinuxInputTaps::FedTap* LinuxInputTaps::listeningTap() const
{
    for (FedTap* const tap : {m_hidTap, m_sessionTap}) {
        if (tap != nullptr && tap->isListening())
            return tap;
    }
    return nullptr;
}

std::unique_ptr<EventMonitor> LinuxInputTaps::addGlobalMonitor(MonitorHandler handler)
{
    return m_session.addGlobalMonitor(std::move(handler));
}

std::unique_ptr<EventMonitor> LinuxInputTaps::addLocalMonitor(LocalMonitorHandler handler)
{
    return m_session.addLocalMonitor(std::move(handler));
}

std::unique_ptr<HidManager> LinuxInputTaps::openHidManager(HidHandler handler)
{
    return std::make_unique<DaemonHidManager>(*this, std::move(handler));
}

void LinuxInputTaps::publishConsumedKeys(FKeySet customKeys, SummonShortcut summon)
{
    m_session.publishConsumedKeys(customKeys, summon);
    m_customKeys = customKeys;
    m_summon = summon;
    publish();
}

void LinuxInputTaps::setRecording(bool recording)
{
    if (std::exchange(m_isRecording, recording) != recording)
        publish();
}

void LinuxInputTaps::publish()
{
    const bool isTaking = listeningTap() != nullptr && !m_isRecording;
    m_client.publish(isTaking ? m_customKeys : FKeySet(), isTaking ? m_summon : SummonShortcut::released);
}

void LinuxInputTaps::receive(const tapd::KeyTaken& taken)
{
    const KeyCodeRow* const row = keyRowOfEvdevCode(taken.code);
    const auto key = row == nullptr ? std::nullopt : fKeyOf(*row);
    if (!key)
        return;
    const auto flags = taken.motion == tapd::KeyMotion::release ? EventFlags::none : ownFlagOf(*key);
    auto verdict = EventVerdict::pass;
    if (const auto event = keycodes::makeKeyEvent(*row, motionOf(taken.motion), flags)) {
        if (const FedTap* const tap = listeningTap()) {
            const auto handler = tap->handler();
            verdict = (*handler)(*event);
        }
        repostIfPassed(taken, verdict);
    }
    // After the tap: a report of Caps Lock says press or release only by turns, and the first one counts.
    if (m_hidManager != nullptr)
        m_hidManager->report(taken);
}

/// What was published has changed since the daemon took the press. The press alone decides for the whole stroke.
void LinuxInputTaps::repostIfPassed(const tapd::KeyTaken& taken, EventVerdict verdict)
{
    switch (taken.motion) {
    case tapd::KeyMotion::press:
        m_reposted.set(taken.code, verdict == EventVerdict::pass);
        if (verdict == EventVerdict::pass)
            m_client.post(taken.code, taken.motion);
        break;
    case tapd::KeyMotion::repeat:
        break;
    case tapd::KeyMotion::release:
        if (m_reposted[taken.code])
            m_client.post(taken.code, taken.motion);
        m_reposted.reset(taken.code);
        break;
    }
}

void LinuxInputTaps::receiveSummon(tapd::KeyMotion motion)
{
    const FedTap* const tap = listeningTap();
    if (tap == nullptr)
        return;
    InputEvent event = summonEvent;
    event.autorepeat = motion == tapd::KeyMotion::repeat ? 1 : 0;
    const auto handler = tap->handler();
    static_cast<void>((*handler)(event));
}

} // namespace tarvin::evdev
