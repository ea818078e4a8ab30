#pragma once

#include "tapd/devices/DeviceMonitor.h"
#include "tapd/devices/KeyboardDevice.h"
#include "tapd/devices/SeatWatch.h"
#include "tapd/main/GuardLink.h"
#include "tapd/main/Listener.h"
#include "tapd/main/OutputDevices.h"
#include "tapd/main/Poller.h"
#include "tapd/service/TapService.h"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace tarvin::tapd {

/// The daemon's one loop: reads keyboards, re-emits, and keeps the devices in order. What is decided is decided by the
/// service.
///
/// A keyboard is
///
///     closed    while nobody wants keyboards
///     waiting   open, not grabbed yet: a key is down, or another program has it
///     grabbed   ours; given back, by closing it, when nobody wants it and nothing is held on it
class TapDaemon
{
public:
    TapDaemon(GuardLink guard, Listener listener, std::optional<uid_t> fixedUser);

    /// Does not return unless the devices can't be made. @return the exit code
    [[nodiscard]] int run();

private:
    struct Keyboard
    {
        KeyboardDevice device;
        std::optional<KeyboardId> id; ///< while it is grabbed
    };
    using Keyboards = std::map<std::uint32_t, Keyboard>;

    /// Takes the time anew and shows the guard that we are getting on.
    void noteProgress();
    void handle(const Poller::Ready& ready);
    void readKeyboard(std::uint32_t name);
    void readWaitingKeyboard(Keyboards::iterator keyboard);
    void readGrabbedKeyboard(Keyboards::iterator keyboard);
    void readLights(Output output);
    void acceptApplication();
    void followDevices();
    void followSeat();

    void openKeyboards();
    void open(const std::string& path);
    void tryToGrab(Keyboards::iterator keyboard);
    /// What the keyboard sent before, the system has had.
    void feedWhatCameSince(EventTime start, const Keyboard& keyboard);
    Keyboards::iterator close(Keyboards::iterator keyboard);
    void closeEverything();
    /// Makes the keyboards what the service wants them to be.
    void reconcile();
    void beginAnewAfterTakeOver();
    void beginAnewAfterFailure();
    [[nodiscard]] bool makeOutputs();
    /// When there will be something to do without anything happening.
    [[nodiscard]] std::optional<EventTime> deadline() const;

    GuardLink m_guard;
    Listener m_listener;
    SeatWatch m_seat;
    Poller m_poller;
    DeviceMonitor m_monitor;
    OutputDevices m_outputs;
    TapService m_service;

    Keyboards m_keyboards;
    std::map<std::string, std::uint32_t> m_nameByPath;
    std::uint32_t m_lastName = 0;
    std::array<input_event, TapOutcome::mostTakenKeys> m_readBuffer{};
    EventTime m_now{0};
    EventTime m_outputsReadyAt{0}; ///< when the session has noticed the outputs
    std::optional<EventTime> m_retryAt; ///< for keyboards that another program has
    uid_t m_applicationUser = 0;
    bool m_areOpen = false; ///< the keyboards, as far as they can be
};

} // namespace tarvin::tapd
