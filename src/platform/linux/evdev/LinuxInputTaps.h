#pragma once

#include "platform/linux/evdev/TapClient.h"
#include "platform/ports/InputTaps.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <vector>

namespace tarvin::evdev {

/// All input paths of a Linux session: those of the session itself, and in front of them the HID tap and the HID
/// manager, which the tap daemon feeds. Main thread only.
///
/// What the daemon takes never reaches the session, so each press comes by one of the two taps. The daemon tells only
/// of keys that it takes, and of no modifiers: the flags of an event are the key's own.
///
/// Taps are created when the program starts to take keys. Where the daemon comes later there is no HID tap, and what
/// the daemon takes goes to the session tap's handler.
class LinuxInputTaps final : public InputTaps
{
public:
    /// Both outlive this object.
    LinuxInputTaps(InputTaps& session, TapClient& client);
    ~LinuxInputTaps() override;
    LinuxInputTaps(const LinuxInputTaps&) = delete;
    LinuxInputTaps& operator=(const LinuxInputTaps&) = delete;
    LinuxInputTaps(LinuxInputTaps&&) = delete;
    LinuxInputTaps& operator=(LinuxInputTaps&&) = delete;

    /// The HID tap is empty where there is no daemon, and while there is one already.
    [[nodiscard]] std::unique_ptr<EventTap> createTap(TapLocation location, TapHandler handler) override;
    [[nodiscard]] std::unique_ptr<EventMonitor> addGlobalMonitor(MonitorHandler handler) override;
    [[nodiscard]] std::unique_ptr<EventMonitor> addLocalMonitor(LocalMonitorHandler handler) override;
    [[nodiscard]] std::unique_ptr<HidManager> openHidManager(HidHandler handler) override;
    void publishConsumedKeys(FKeySet customKeys, SummonShortcut summon) override;

    /// Whether a recorder holds the keyboard of the session; the daemon takes nothing meanwhile, so that every key
    /// gets there.
    void setRecording(bool recording);

private:
    class FedTap;
    class DaemonHidManager;

    static constexpr std::size_t evdevCodes = 0x300;

    void receive(const tapd::KeyTaken& taken);
    void receiveSummon(tapd::KeyMotion motion);
    void repostIfPassed(const tapd::KeyTaken& taken, EventVerdict verdict);
    void publish();
    /// Who hears of what the daemon takes; null if nobody does.
    [[nodiscard]] FedTap* listeningTap() const;

    InputTaps& m_session;
    TapClient& m_client;
    FedTap* m_hidTap = nullptr; ///< not owned
    FedTap* m_sessionTap = nullptr; ///< not owned
    DaemonHidManager* m_hidManager = nullptr; ///< not owned
    FKeySet m_customKeys;
    SummonShortcut m_summon = SummonShortcut::released;
    bool m_isRecording = false;
    std::bitset<evdevCodes> m_reposted; ///< taken presses that were given to the session after all
};

} // namespace tarvin::evdev
