// The part of the stage where keys are pressed.

#include "app/simulate/Stage.h"
#include "platform/simulated/SimulatedPlatform.h"

namespace tarvin::simulate {

Problem Stage::apply(const SetTapAvailable& tap)
{
    m_platform.inputTaps().setTapAvailable(tap.location, tap.available);
    return std::nullopt;
}

Problem Stage::apply(const SetGlobalMonitorAvailable& monitor)
{
    m_platform.inputTaps().setGlobalMonitorAvailable(monitor.available);
    return std::nullopt;
}

Problem Stage::apply(const SetHidManagerOpens& manager)
{
    m_platform.inputTaps().setHidManagerOpens(manager.opens);
    return std::nullopt;
}

Problem Stage::apply(const SetPostingPossible& posting)
{
    if (posting.keyCode)
        m_platform.poster().setCanMakeKey(*posting.keyCode, posting.possible);
    else
        m_platform.poster().setCanMakeClick(posting.possible);
    return std::nullopt;
}

Problem Stage::apply(const PressKey& press)
{
    m_keyboard.press(press);
    return std::nullopt;
}

Problem Stage::apply(const DeliverEvent& delivery)
{
    simulated::SimulatedInputTaps& taps = m_platform.inputTaps();
    switch (delivery.path) {
    case simulated::InputPath::hidTap:
        static_cast<void>(taps.deliverToTap(TapLocation::hid, delivery.event));
        break;
    case simulated::InputPath::sessionTap:
        static_cast<void>(taps.deliverToTap(TapLocation::session, delivery.event));
        break;
    case simulated::InputPath::globalMonitor:
        taps.deliverToGlobalMonitor(delivery.event);
        break;
    case simulated::InputPath::localMonitor:
        static_cast<void>(taps.deliverToLocalMonitor(delivery.event));
        break;
    }
    return std::nullopt;
}

Problem Stage::apply(const DeliverHidValue& delivery)
{
    m_platform.inputTaps().deliverHid(delivery.value);
    return std::nullopt;
}

Problem Stage::apply(const DisableTap& disabled)
{
    simulated::SimulatedInputTaps& taps = m_platform.inputTaps();
    if (!taps.hasTap(disabled.location))
        return u"there is no such tap now; expected one to switch off"_qs;
    switch (disabled.reason) {
    case DisableReason::timeout:
        taps.disableBySystem(disabled.location, InputEventType::tapDisabledByTimeout);
        break;
    case DisableReason::userInput:
        taps.disableBySystem(disabled.location, InputEventType::tapDisabledByUserInput);
        break;
    case DisableReason::silent:
        taps.disableSilently(disabled.location);
        break;
    }
    return std::nullopt;
}

} // namespace tarvin::simulate
