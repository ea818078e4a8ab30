#include "app/simulate/PhysicalKeyboard.h"

#include "app/simulate/PressTable.h"
#include "platform/simulated/SimulatedPlatform.h"

namespace tarvin::simulate {

namespace {

/// What a press consists of, resolved from the key and the form.
struct Reported
{
    std::optional<HidNumber> hid{};
    PressEvent event = PressEvent::keyDown;
    std::uint16_t number = 0; ///< key code, or NX key type of a media event
    EventFlags heldFlag = EventFlags::none;
};

Reported reportedBy(const PressKey& press)
{
    if (const auto* keyCode = std::get_if<KeyCode>(&press.key))
        return {.number = *keyCode};
    const PressRow& row = pressRow(std::get<FKey>(press.key));
    if (press.form == PressForm::printed)
        return {.hid = row.printedHid, .event = row.printedEvent, .number = row.printedNumber};
    return {.hid = row.hid, .event = row.event, .number = virtualKeyCode(row.key), .heldFlag = row.heldFlag};
}

InputEvent eventOf(const Reported& reported, KeyState state, bool repeat, EventFlags flags)
{
    const bool isDown = state == KeyState::down;
    InputEvent event{.keyCode = reported.number, .flags = flags, .autorepeat = repeat ? 1 : 0};
    switch (reported.event) {
    case PressEvent::keyDown:
        event.type = isDown ? InputEventType::keyDown : InputEventType::keyUp;
        break;
    case PressEvent::flagsChanged:
        event.type = InputEventType::flagsChanged;
        if (isDown)
            event.flags |= reported.heldFlag;
        break;
    case PressEvent::media:
        event.type = InputEventType::systemDefined;
        event.keyCode = 0;
        event.autorepeat = 0;
        event.systemDefined =
            SystemDefinedFields{SystemDefinedFields::mediaKeySubtype, mediaKeyData(reported.number, state, repeat)};
        break;
    }
    return event;
}

std::optional<HidValue> hidValueOf(const Reported& reported, KeyState state)
{
    if (!reported.hid)
        return std::nullopt;
    return HidValue{reported.hid->page, reported.hid->usage, state == KeyState::down ? 1 : 0};
}

} // namespace

PhysicalKeyboard::PhysicalKeyboard(simulated::SimulatedPlatform& platform)
    : m_platform(platform)
{ }

void PhysicalKeyboard::press(const PressKey& press)
{
    const Reported reported = reportedBy(press);
    later({}, {hidValueOf(reported, KeyState::down), eventOf(reported, KeyState::down, false, press.flags)});
    // Modifiers do not repeat.
    if (reported.event != PressEvent::flagsChanged) {
        for (simulated::VirtualTime held = repeatDelay; held < press.hold; held += repeatInterval)
            later(held, {std::nullopt, eventOf(reported, KeyState::down, true, press.flags)});
    }
    later(press.hold, {hidValueOf(reported, KeyState::up), eventOf(reported, KeyState::up, false, press.flags)});
}

void PhysicalKeyboard::report(const Report& report)
{
    if (report.hid)
        m_platform.inputTaps().deliverHid(*report.hid);
    m_platform.scheduler().post([this, event = report.event] { offerToHidTap(event); });
}

void PhysicalKeyboard::offerToHidTap(const InputEvent& event)
{
    if (m_platform.inputTaps().deliverToTap(TapLocation::hid, event) == EventVerdict::pass)
        m_platform.scheduler().post([this, event] { offerToSessionTap(event); });
}

void PhysicalKeyboard::offerToSessionTap(const InputEvent& event)
{
    if (m_platform.inputTaps().deliverToTap(TapLocation::session, event) == EventVerdict::pass)
        m_platform.scheduler().post([this, event] { offerToFrontApplication(event); });
}

void PhysicalKeyboard::offerToFrontApplication(const InputEvent& event)
{
    // The monitors see disjoint halves: events for the program's own windows, and events for all others.
    if (m_platform.appShell().isActive()) {
        if (m_platform.inputTaps().deliverToLocalMonitor(event) == EventVerdict::consume)
            return;
    } else {
        m_platform.inputTaps().deliverToGlobalMonitor(event);
    }
    const std::optional<RunningApplication> front = m_platform.workspace().frontmostApplication();
    m_platform.effects().record(
        simulated::EventReceived{front ? std::optional(front->localizedName) : std::nullopt, event});
}

void PhysicalKeyboard::later(simulated::VirtualTime delay, const Report& what)
{
    m_platform.scheduler().callAfter(delay, [this, what] { report(what); });
}

} // namespace tarvin::simulate
