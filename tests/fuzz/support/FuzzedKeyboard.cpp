#include "fuzz/support/FuzzedKeyboard.h"

#include "interception/SummonGesture.h"
#include "interception/support/InputEvents.h"

#include <algorithm>

namespace tarvin::test {

using namespace std::chrono_literals;

namespace {

/// The media key type that stands for the key; absent for most.
std::optional<std::uint32_t> mediaTypeOf(FKey key)
{
    const auto row = std::ranges::find(detail::systemKeyTypeRows, key, &detail::RawKeyRow::key);
    return row == detail::systemKeyTypeRows.end() ? std::nullopt : std::optional(row->number);
}

bool isModifier(FKey key)
{
    return flagOf(key) != EventFlags::none || key == FKey::capsLock;
}

} // namespace

FuzzedKeyboard::FuzzedKeyboard(InterceptionDesktop& desktop, Chance& chance)
    : m_desktop(desktop)
    , m_chance(chance)
{
    m_desktop.actions.onExecute = [this](const ConfiguredAction& config) {
        const FKey key = fKeyFromRawValue(config.textSnippet.value_or(QString())).value();
        ++m_firings[orderOf(key)];
        m_unended.insert(key);
    };
}

void FuzzedKeyboard::map(FKeySet keys)
{
    KeyMappings mappings = m_desktop.profile.currentMappings();
    for (const FKey key : keys) {
        ConfiguredAction config(KeyAction::textSnippet);
        config.textSnippet = rawValue(key).toString();
        mappings.insert_or_assign(key, config);
    }
    m_desktop.profile.setCurrentMappings(mappings);
}

void FuzzedKeyboard::press(FKey key)
{
    m_held.insert(key);
    if (mediaTypeOf(key) && m_chance.percent(40))
        m_asMedia.insert(key);
    report(key, KeyMotion::down);
}

void FuzzedKeyboard::repeat(FKey key)
{
    if (!isModifier(key))
        report(key, KeyMotion::repeat);
}

void FuzzedKeyboard::release(FKey key)
{
    m_held.remove(key);
    report(key, KeyMotion::up);
    m_asMedia.remove(key);
}

void FuzzedKeyboard::releaseEverything()
{
    m_heldTwins = {};
    for (const FKey key : m_held)
        release(key);
}

void FuzzedKeyboard::setLeftTwinHeld(FKey rightModifier, bool held)
{
    if (held)
        m_heldTwins.insert(rightModifier);
    else
        m_heldTwins.remove(rightModifier);
}

void FuzzedKeyboard::settle()
{
    for (const auto& [road, arrival] : m_lastArrival)
        m_desktop.platform.scheduler().advanceTo(arrival);
}

EventVerdict FuzzedKeyboard::offer(TapLocation location, const InputEvent& event)
{
    const simulated::SimulatedInputTaps& taps = m_desktop.platform.inputTaps();
    const std::optional<FKey> key = keyOf(event);
    const bool isKeyboardEvent =
        event.type != InputEventType::tapDisabledByTimeout && event.type != InputEventType::tapDisabledByUserInput;
    const bool isPromised = isKeyboardEvent && taps.isTapEnabled(location) && !event.isSelfPosted()
        && (isSummonGesture(event) || (key && taps.publishedKeys().contains(*key)));
    const EventVerdict verdict = m_desktop.tap(location, event);
    m_brokenPromises += (verdict == EventVerdict::consume) == isPromised ? 0 : 1;
    return verdict;
}

void FuzzedKeyboard::report(FKey key, KeyMotion motion)
{
    if (motion != KeyMotion::repeat)
        later(Road::hardware, key, [this, key, motion] { deliverHardware(key, motion == KeyMotion::down); });
    const InputEvent event = eventOf(key, motion);
    const bool endsThePress = motion == KeyMotion::up && !(isModifier(key) && containsAny(event.flags, flagOf(key)));
    later(Road::event, key, [this, key, event, endsThePress] { deliverEvent(key, event, endsThePress); });
}

void FuzzedKeyboard::later(Road road, FKey key, std::function<void()> delivery)
{
    simulated::SimulatedScheduler& scheduler = m_desktop.platform.scheduler();
    const auto delay =
        std::chrono::milliseconds(m_chance.below(static_cast<std::uint64_t>(m_longestDelay.count()) + 1));
    simulated::VirtualTime& last = m_lastArrival[{road, key}];
    last = std::max(last, scheduler.virtualTime() + delay);
    scheduler.postAfter(
        std::chrono::ceil<std::chrono::milliseconds>(last - scheduler.virtualTime()), std::move(delivery));
}

void FuzzedKeyboard::deliverHardware(FKey key, bool isDown)
{
    const bool isHeard = isInterceptionEnabled();
    m_desktop.hid(7, hidUsageOf(key), isDown ? 1 : 0);
    if (!isDown && isHeard)
        m_unended.remove(key);
}

void FuzzedKeyboard::deliverEvent(FKey key, const InputEvent& event, bool endsThePress)
{
    const simulated::SimulatedInputTaps& taps = m_desktop.platform.inputTaps();
    bool isHeard = isInterceptionEnabled();
    const bool isConsumed = offer(TapLocation::hid, event) == EventVerdict::consume
        || offer(TapLocation::session, event) == EventVerdict::consume;
    if (!isConsumed && m_desktop.platform.appShell().isActive()) {
        isHeard = isHeard && taps.hasLocalMonitor();
        m_desktop.local(event);
    } else if (!isConsumed) {
        isHeard = isHeard && taps.hasGlobalMonitor();
        m_desktop.global(event);
    }
    if (endsThePress && isHeard)
        m_unended.remove(key);
}

InputEvent FuzzedKeyboard::eventOf(FKey key, KeyMotion motion) const
{
    if (isModifier(key))
        return flagsChanged(key, flags());
    if (m_asMedia.contains(key)) {
        const std::uint32_t type = *mediaTypeOf(key);
        return motion == KeyMotion::up  ? mediaUp(type)
            : motion == KeyMotion::down ? mediaDown(type)
                                        : mediaRepeat(type);
    }
    if (motion == KeyMotion::up)
        return keyUp(key, flags());
    return motion == KeyMotion::down ? keyDown(key, flags()) : keyRepeat(key, flags());
}

EventFlags FuzzedKeyboard::flags() const
{
    EventFlags flags = EventFlags::none;
    for (const FKey key : FKeySet::fromBits(m_held.bits() | m_heldTwins.bits()))
        flags |= flagOf(key);
    return flags;
}

} // namespace tarvin::test
