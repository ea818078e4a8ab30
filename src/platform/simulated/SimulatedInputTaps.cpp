#include "platform/simulated/SimulatedInputTaps.h"

#include "platform/simulated/SimulatedPermission.h"

#include <algorithm>

namespace tarvin::simulated {

namespace {

InputPath pathOf(TapLocation location)
{
    return location == TapLocation::hid ? InputPath::hidTap : InputPath::sessionTap;
}

} // namespace

class SimulatedInputTaps::Tap final : public EventTap
{
public:
    Tap(SimulatedInputTaps& owner, TapLocation where, TapHandler tapHandler)
        : location(where)
        , handler(std::move(tapHandler))
        , m_owner(owner)
    {
        m_owner.m_taps.push_back(this);
        report(TapStep::created);
    }
    ~Tap() override
    {
        std::erase(m_owner.m_taps, this);
        report(TapStep::removed);
    }

    void attachToMainLoop() override
    {
        attached = true;
        report(TapStep::attached);
    }
    void detachFromMainLoop() override
    {
        attached = false;
        report(TapStep::detached);
    }
    void enable() override
    {
        enabled = true;
        report(TapStep::enabled);
    }
    void disable() override
    {
        enabled = false;
        report(TapStep::disabled);
    }
    [[nodiscard]] bool isEnabled() const override { return enabled; }

    void report(TapStep step) { m_owner.m_log.record(TapChanged{location, step}); }

    TapLocation location;
    TapHandler handler;
    bool attached = false;
    bool enabled = false;

private:
    SimulatedInputTaps& m_owner;
};

class SimulatedInputTaps::GlobalMonitor final : public EventMonitor
{
public:
    GlobalMonitor(SimulatedInputTaps& owner, MonitorHandler monitorHandler)
        : handler(std::move(monitorHandler))
        , m_owner(owner)
    {
        m_owner.m_globalMonitors.push_back(this);
        m_owner.m_log.record(MonitorChanged{InputPath::globalMonitor, MonitorStep::added});
    }
    ~GlobalMonitor() override
    {
        std::erase(m_owner.m_globalMonitors, this);
        m_owner.m_log.record(MonitorChanged{InputPath::globalMonitor, MonitorStep::removed});
    }

    MonitorHandler handler;

private:
    SimulatedInputTaps& m_owner;
};

class SimulatedInputTaps::LocalMonitor final : public EventMonitor
{
public:
    LocalMonitor(SimulatedInputTaps& owner, LocalMonitorHandler monitorHandler)
        : handler(std::move(monitorHandler))
        , m_owner(owner)
    {
        m_owner.m_localMonitors.push_back(this);
        m_owner.m_log.record(MonitorChanged{InputPath::localMonitor, MonitorStep::added});
    }
    ~LocalMonitor() override
    {
        std::erase(m_owner.m_localMonitors, this);
        m_owner.m_log.record(MonitorChanged{InputPath::localMonitor, MonitorStep::removed});
    }

    LocalMonitorHandler handler;

private:
    SimulatedInputTaps& m_owner;
};

class SimulatedInputTaps::Hid final : public HidManager
{
public:
    Hid(SimulatedInputTaps& owner, HidHandler hidHandler, bool open)
        : handler(std::move(hidHandler))
        , m_owner(owner)
        , m_open(open)
    {
        m_owner.m_hidManagers.push_back(this);
        m_owner.m_log.record(HidManagerChanged{open ? HidManagerStep::opened : HidManagerStep::openFailed});
    }
    ~Hid() override
    {
        std::erase(m_owner.m_hidManagers, this);
        m_owner.m_log.record(HidManagerChanged{HidManagerStep::closed});
    }
    [[nodiscard]] bool isOpen() const override { return m_open; }

    HidHandler handler;

private:
    SimulatedInputTaps& m_owner;
    bool m_open;
};

SimulatedInputTaps::SimulatedInputTaps(EffectLog& log, const SimulatedPermission& permission)
    : m_log(log)
    , m_permission(permission)
{ }

std::unique_ptr<EventTap> SimulatedInputTaps::createTap(TapLocation location, TapHandler handler)
{
    m_log.expectMainThread("InputTaps::createTap");
    if (!m_permission.isProcessTrusted() || !m_tapAvailable[static_cast<std::size_t>(location)]) {
        m_log.record(TapChanged{location, TapStep::refused});
        return nullptr;
    }
    return std::make_unique<Tap>(*this, location, std::move(handler));
}

std::unique_ptr<EventMonitor> SimulatedInputTaps::addGlobalMonitor(MonitorHandler handler)
{
    m_log.expectMainThread("InputTaps::addGlobalMonitor");
    if (!m_globalMonitorAvailable) {
        m_log.record(MonitorChanged{InputPath::globalMonitor, MonitorStep::refused});
        return nullptr;
    }
    return std::make_unique<GlobalMonitor>(*this, std::move(handler));
}

std::unique_ptr<EventMonitor> SimulatedInputTaps::addLocalMonitor(LocalMonitorHandler handler)
{
    m_log.expectMainThread("InputTaps::addLocalMonitor");
    return std::make_unique<LocalMonitor>(*this, std::move(handler));
}

std::unique_ptr<HidManager> SimulatedInputTaps::openHidManager(HidHandler handler)
{
    m_log.expectMainThread("InputTaps::openHidManager");
    return std::make_unique<Hid>(*this, std::move(handler), m_hidManagerOpens);
}

void SimulatedInputTaps::publishConsumedKeys(FKeySet customKeys, SummonShortcut summon)
{
    m_log.expectMainThread("InputTaps::publishConsumedKeys");
    m_publishedKeys = customKeys;
    m_publishedSummon = summon;
    m_log.record(ConsumedKeysPublished{customKeys, summon});
}

void SimulatedInputTaps::setTapAvailable(TapLocation location, bool available)
{
    m_tapAvailable[static_cast<std::size_t>(location)] = available;
}

EventVerdict SimulatedInputTaps::deliverToTap(TapLocation location, const InputEvent& event)
{
    Tap* tap = newestTap(location);
    if (tap == nullptr || !tap->attached || !tap->enabled) {
        m_log.record(EventDelivered{pathOf(location), event, EventOutcome::unseen});
        return EventVerdict::pass;
    }
    return offer(*tap, event);
}

void SimulatedInputTaps::deliverToGlobalMonitor(const InputEvent& event)
{
    if (m_globalMonitors.empty()) {
        m_log.record(EventDelivered{InputPath::globalMonitor, event, EventOutcome::unseen});
        return;
    }
    const MonitorHandler handler = m_globalMonitors.back()->handler;
    handler(event);
    m_log.record(EventDelivered{InputPath::globalMonitor, event, EventOutcome::observed});
}

EventVerdict SimulatedInputTaps::deliverToLocalMonitor(const InputEvent& event)
{
    if (m_localMonitors.empty()) {
        m_log.record(EventDelivered{InputPath::localMonitor, event, EventOutcome::unseen});
        return EventVerdict::pass;
    }
    const LocalMonitorHandler handler = m_localMonitors.back()->handler;
    const EventVerdict verdict = handler(event);
    m_log.record(EventDelivered{InputPath::localMonitor, event,
        verdict == EventVerdict::consume ? EventOutcome::consumed : EventOutcome::passed});
    return verdict;
}

void SimulatedInputTaps::deliverHid(const HidValue& value)
{
    if (m_hidManagers.empty() || !m_hidManagers.back()->isOpen()) {
        m_log.record(HidValueDelivered{value, EventOutcome::unseen});
        return;
    }
    const HidHandler handler = m_hidManagers.back()->handler;
    handler(value);
    m_log.record(HidValueDelivered{value, EventOutcome::observed});
}

void SimulatedInputTaps::disableBySystem(TapLocation location, InputEventType reason)
{
    disableSilently(location);
    Tap* tap = newestTap(location);
    if (tap != nullptr && tap->attached)
        offer(*tap, InputEvent{.type = reason});
}

void SimulatedInputTaps::disableSilently(TapLocation location)
{
    if (Tap* tap = newestTap(location)) {
        tap->enabled = false;
        tap->report(TapStep::disabledBySystem);
    }
}

bool SimulatedInputTaps::hasTap(TapLocation location) const
{
    return newestTap(location) != nullptr;
}

bool SimulatedInputTaps::isTapEnabled(TapLocation location) const
{
    const Tap* tap = newestTap(location);
    return tap != nullptr && tap->enabled;
}

SimulatedInputTaps::Tap* SimulatedInputTaps::newestTap(TapLocation location) const
{
    const auto newest =
        std::find_if(m_taps.rbegin(), m_taps.rend(), [location](const Tap* tap) { return tap->location == location; });
    return newest == m_taps.rend() ? nullptr : *newest;
}

EventVerdict SimulatedInputTaps::offer(Tap& tap, const InputEvent& event)
{
    // Copied, because the handler may remove its own tap.
    const TapHandler handler = tap.handler;
    const InputPath path = pathOf(tap.location);
    const EventVerdict verdict = handler(event);
    m_log.record(
        EventDelivered{path, event, verdict == EventVerdict::consume ? EventOutcome::consumed : EventOutcome::passed});
    return verdict;
}

} // namespace tarvin::simulated
