#pragma once

#include "platform/ports/InputTaps.h"
#include "platform/simulated/EffectLog.h"

#include <array>
#include <vector>

namespace tarvin::simulated {

class SimulatedPermission;

/// The input paths, fed by hand.
class SimulatedInputTaps final : public InputTaps
{
public:
    SimulatedInputTaps(EffectLog& log, const SimulatedPermission& permission);

    [[nodiscard]] std::unique_ptr<EventTap> createTap(TapLocation location, TapHandler handler) override;
    [[nodiscard]] std::unique_ptr<EventMonitor> addGlobalMonitor(MonitorHandler handler) override;
    [[nodiscard]] std::unique_ptr<EventMonitor> addLocalMonitor(LocalMonitorHandler handler) override;
    [[nodiscard]] std::unique_ptr<HidManager> openHidManager(HidHandler handler) override;
    void publishConsumedKeys(FKeySet customKeys, SummonShortcut summon) override;

    /// Whether a tap can be had at the place from now on; without permission none can.
    void setTapAvailable(TapLocation location, bool available);
    void setGlobalMonitorAvailable(bool available) { m_globalMonitorAvailable = available; }
    void setHidManagerOpens(bool opens) { m_hidManagerOpens = opens; }

    /// Offers the event to the tap. Passes where no enabled tap sits.
    EventVerdict deliverToTap(TapLocation location, const InputEvent& event);
    void deliverToGlobalMonitor(const InputEvent& event);
    EventVerdict deliverToLocalMonitor(const InputEvent& event);
    void deliverHid(const HidValue& value);
    /// Switches the tap off as the system does and, as it does, tells the tap so.
    /// @param reason one of the two types that say it
    void disableBySystem(TapLocation location, InputEventType reason = InputEventType::tapDisabledByTimeout);
    /// The same without a word to the tap.
    void disableSilently(TapLocation location);

    [[nodiscard]] bool hasTap(TapLocation location) const;
    [[nodiscard]] bool isTapEnabled(TapLocation location) const;
    [[nodiscard]] bool hasGlobalMonitor() const { return !m_globalMonitors.empty(); }
    [[nodiscard]] bool hasLocalMonitor() const { return !m_localMonitors.empty(); }
    [[nodiscard]] bool hasHidManager() const { return !m_hidManagers.empty(); }
    [[nodiscard]] FKeySet publishedKeys() const { return m_publishedKeys; }
    [[nodiscard]] SummonShortcut publishedSummon() const { return m_publishedSummon; }

private:
    class Tap;
    class GlobalMonitor;
    class LocalMonitor;
    class Hid;

    [[nodiscard]] Tap* newestTap(TapLocation location) const;
    EventVerdict offer(Tap& tap, const InputEvent& event);

    EffectLog& m_log;
    const SimulatedPermission& m_permission;
    std::array<bool, 2> m_tapAvailable{true, true};
    bool m_globalMonitorAvailable = true;
    bool m_hidManagerOpens = true;
    std::vector<Tap*> m_taps;
    std::vector<GlobalMonitor*> m_globalMonitors;
    std::vector<LocalMonitor*> m_localMonitors;
    std::vector<Hid*> m_hidManagers;
    FKeySet m_publishedKeys;
    SummonShortcut m_publishedSummon = SummonShortcut::released;
};

} // namespace tarvin::simulated
