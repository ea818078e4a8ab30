#include "platform/linux/x11/X11InputTaps.h"

#include "platform/linux/x11/LocalKeyFilter.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <algorithm>
#include <memory>
#include <utility>

namespace tarvin::x11 {

class X11InputTaps::SessionTap final : public EventTap
{
public:
    SessionTap(X11InputTaps& owner, TapHandler handler)
        : m_owner(owner)
        , m_handler(std::make_shared<TapHandler>(std::move(handler)))
    {
        m_owner.m_tap = this;
    }

    ~SessionTap() override
    {
        m_owner.m_tap = nullptr;
        m_owner.updateTap();
    }

    SessionTap(const SessionTap&) = delete;
    SessionTap& operator=(const SessionTap&) = delete;
    SessionTap(SessionTap&&) = delete;
    SessionTap& operator=(SessionTap&&) = delete;

    void attachToMainLoop() override { set(m_isAttached, true); }
    void detachFromMainLoop() override { set(m_isAttached, false); }
    void enable() override { set(m_isEnabled, true); }
    void disable() override { set(m_isEnabled, false); }
    [[nodiscard]] bool isEnabled() const override { return m_isEnabled && m_owner.m_thread.isConnected(); }

    [[nodiscard]] bool isListening() const { return m_isAttached && m_isEnabled; }
    /// Alive during its own call, even if the call destroys the tap.
    [[nodiscard]] std::shared_ptr<TapHandler> handler() const { return m_handler; }

private:
    void set(bool& member, bool value)
    {
        member = value;
        m_owner.updateTap();
    }

    X11InputTaps& m_owner;
    std::shared_ptr<TapHandler> m_handler;
    bool m_isAttached = false;
    bool m_isEnabled = false;
};

class X11InputTaps::GlobalMonitor final : public EventMonitor
{
public:
    GlobalMonitor(X11InputTaps& owner, MonitorHandler handler)
        : m_owner(owner)
        , m_handler(std::make_shared<MonitorHandler>(std::move(handler)))
    {
        m_owner.m_globalMonitors.push_back(this);
        m_owner.m_thread.setHasGlobalMonitor(true);
    }

    ~GlobalMonitor() override
    {
        std::erase(m_owner.m_globalMonitors, this);
        m_owner.m_thread.setHasGlobalMonitor(!m_owner.m_globalMonitors.empty());
    }

    GlobalMonitor(const GlobalMonitor&) = delete;
    GlobalMonitor& operator=(const GlobalMonitor&) = delete;
    GlobalMonitor(GlobalMonitor&&) = delete;
    GlobalMonitor& operator=(GlobalMonitor&&) = delete;

    [[nodiscard]] std::shared_ptr<MonitorHandler> handler() const { return m_handler; }

private:
    X11InputTaps& m_owner;
    std::shared_ptr<MonitorHandler> m_handler;
};

class X11InputTaps::LocalMonitor final : public EventMonitor
{
public:
    LocalMonitor(InputShared& shared, LocalMonitorHandler handler)
        : m_filter(shared, std::move(handler))
    {
        QCoreApplication::instance()->installEventFilter(&m_filter);
    }

private:
    LocalKeyFilter m_filter;
};

namespace {

/// Hardware values are not to be had from an X server.
class ClosedHidManager final : public HidManager
{
public:
    [[nodiscard]] bool isOpen() const override { return false; }
};

} // namespace

X11InputTaps::X11InputTaps(InputThread& thread)
    : m_thread(thread)
{
    m_thread.setDeliveryHandler([this](const Delivery& delivery) { receive(delivery); });
}

X11InputTaps::~X11InputTaps()
{
    m_thread.setDeliveryHandler({});
    m_thread.setTapEnabled(false);
}

std::unique_ptr<EventTap> X11InputTaps::createTap(TapLocation location, TapHandler handler)
{
    if (location != TapLocation::session || m_tap != nullptr || !isAvailable())
        return nullptr;
    return std::make_unique<SessionTap>(*this, std::move(handler));
}

std::unique_ptr<EventMonitor> X11InputTaps::addGlobalMonitor(MonitorHandler handler)
{
    return std::make_unique<GlobalMonitor>(*this, std::move(handler));
}

std::unique_ptr<EventMonitor> X11InputTaps::addLocalMonitor(LocalMonitorHandler handler)
{
    if (QCoreApplication::instance() == nullptr)
        return nullptr;
    return std::make_unique<LocalMonitor>(m_thread.shared(), std::move(handler));
}

std::unique_ptr<HidManager> X11InputTaps::openHidManager(HidHandler)
{
    return std::make_unique<ClosedHidManager>();
}

void X11InputTaps::publishConsumedKeys(FKeySet customKeys, SummonShortcut summon)
{
    m_thread.publish({.keys = customKeys, .summon = summon});
}

void X11InputTaps::setStudioActive(bool active)
{
    m_thread.setStudioActive(active);
}

bool X11InputTaps::isAvailable() const
{
    return m_thread.isConnected();
}

void X11InputTaps::updateTap()
{
    m_thread.setTapEnabled(m_tap != nullptr && m_tap->isListening());
}

void X11InputTaps::receive(const Delivery& delivery)
{
    switch (delivery.audience) {
    case Audience::tap:
        receiveForTap(delivery);
        return;
    case Audience::tapWatching:
        if (m_tap != nullptr && m_tap->isListening())
            static_cast<void>((*m_tap->handler())(delivery.event));
        return;
    case Audience::globalMonitor:
        // What goes to the program's own windows is the local monitor's.
        if (QGuiApplication::focusWindow() != nullptr)
            return;
        for (const GlobalMonitor* const monitor : std::vector(m_globalMonitors)) {
            if (std::ranges::find(m_globalMonitors, monitor) != m_globalMonitors.end())
                (*monitor->handler())(delivery.event);
        }
        return;
    }
}

void X11InputTaps::receiveForTap(const Delivery& delivery)
{
    auto verdict = EventVerdict::pass;
    if (m_tap != nullptr && m_tap->isListening()) {
        const auto handler = m_tap->handler();
        verdict = (*handler)(delivery.event);
    }
    // The press alone decides for the whole stroke; what is published has changed since the thread took it.
    if (verdict == EventVerdict::pass && delivery.motion == KeyMotion::press)
        m_thread.repost(delivery.press, delivery.keycode);
}

} // namespace tarvin::x11
