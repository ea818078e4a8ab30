#include "platform/linux/x11/PressRouter.h"

#include <utility>

namespace tarvin::x11 {

bool PressRouter::isWanted(Keycode keycode, const Situation& now)
{
    if (!now.isTapEnabled)
        return false;
    if (keycode == summonKeycode)
        return now.published.summon == SummonShortcut::taken && containsAll(now.flags, summonFlags);
    const auto key = fKeyOf(keycode);
    return key && now.published.keys.contains(*key);
}

Effects PressRouter::grabbedPress(PhysicalKey key, KeyMotion motion, const Situation& now)
{
    Effects effects{EndGrab{key.device}};
    if (motion == KeyMotion::repeat) {
        // The server itself repeats what the applications know to be held, so only the tap's own keys are left.
        const auto held = m_presses.find(key);
        if (held != m_presses.end() && held->second.fate == Fate::consumed)
            tellTap(key.keycode, motion, now.flags, held->second.id, effects);
        return effects;
    }
    if (isWanted(key.keycode, now)) {
        const PressId id = ++m_lastPress;
        m_presses[key] = {.fate = Fate::consumed, .id = id};
        if (containsAny(now.flags, summonFlags))
            effects.emplace_back(CoverModifiers{});
        tellTap(key.keycode, motion, now.flags | ownFlagOf(key.keycode), id, effects);
    } else {
        m_presses[key] = {.fate = Fate::reposted};
        effects.emplace_back(FakeKey{key.keycode, FakeMotion::press});
        m_held.press(key);
        watch(key, motion, now, effects);
    }
    return effects;
}

Effects PressRouter::rawPress(PhysicalKey key, const Situation& now)
{
    Effects effects;
    m_held.press(key);
    if (fKeyOf(key.keycode))
        m_presses[key] = {.fate = Fate::passed};
    watch(key, KeyMotion::press, now, effects);
    return effects;
}

Effects PressRouter::grabbedRelease(PhysicalKey key, const Situation& now)
{
    return release(key, false, now);
}

Effects PressRouter::rawRelease(PhysicalKey key, const Situation& now)
{
    return release(key, true, now);
}

Effects PressRouter::release(PhysicalKey key, bool applicationsSawIt, const Situation& now)
{
    Effects effects;
    const auto found = m_presses.find(key);
    const Press press = found == m_presses.end() ? Press{} : found->second;
    if (found != m_presses.end())
        m_presses.erase(found);
    if (press.fate == Fate::consumed) {
        tellTap(key.keycode, KeyMotion::release, now.flags, press.id, effects);
        return effects;
    }
    // A faked press leaves the key down on the faking device even after the user's release, and a release that our grab
    // swallowed leaves it down for the applications. One faked release mends both.
    if (press.fate == Fate::reposted || !applicationsSawIt)
        effects.emplace_back(FakeKey{key.keycode, FakeMotion::release});
    if (press.id != 0)
        tellTap(key.keycode, KeyMotion::release, flagsAfter(key, KeyMotion::release, now), press.id, effects);
    watch(key, KeyMotion::release, now, effects);
    m_held.release(key);
    return effects;
}

Effects PressRouter::deviceGone(DeviceId device, const Situation& now)
{
    Effects effects;
    std::vector<PhysicalKey> gone;
    for (const auto& [key, press] : m_presses) {
        if (key.device == device)
            gone.push_back(key);
    }
    for (const PhysicalKey& key : gone) {
        for (Effect& effect : release(key, true, now))
            effects.push_back(std::move(effect));
    }
    m_held.removeDevice(device);
    return effects;
}

Effects PressRouter::everythingGone(const Situation& now)
{
    Effects effects;
    while (!m_presses.empty()) {
        for (Effect& effect : deviceGone(m_presses.begin()->first.device, now))
            effects.push_back(std::move(effect));
    }
    m_held.clear();
    return effects;
}

Effects PressRouter::repost(PressId press, Keycode keycode)
{
    Effects effects{FakeKey{keycode, FakeMotion::press}};
    for (auto& [key, held] : m_presses) {
        if (held.id == press) {
            held.fate = Fate::reposted;
            m_held.press(key);
            return effects;
        }
    }
    effects.emplace_back(FakeKey{keycode, FakeMotion::release});
    return effects;
}

void PressRouter::adopt(const KeycodeSet& down)
{
    for (std::size_t keycode = 0; keycode < down.size(); ++keycode) {
        if (down[keycode])
            m_held.press({.device = HeldKeys::unknownDevice, .keycode = static_cast<Keycode>(keycode)});
    }
}

void PressRouter::watch(PhysicalKey key, KeyMotion motion, const Situation& now, Effects& effects) const
{
    const bool isSummon = key.keycode == summonKeycode && motion == KeyMotion::press
        && now.published.summon == SummonShortcut::taken && containsAll(now.flags, summonFlags);
    const bool isForMonitor = now.hasGlobalMonitor && (isSummon || fKeyOf(key.keycode).has_value());
    const bool isForTap = now.isTapEnabled && now.isStudioActive;
    if (!isForMonitor && !isForTap)
        return;
    const auto event = makeKeyEvent(key.keycode, motion, flagsAfter(key, motion, now));
    if (!event)
        return;
    if (isForMonitor)
        effects.emplace_back(Delivery{Audience::globalMonitor, key.keycode, *event, motion});
    if (isForTap)
        effects.emplace_back(Delivery{Audience::tapWatching, key.keycode, *event, motion});
}

EventFlags PressRouter::flagsAfter(PhysicalKey key, KeyMotion motion, const Situation& now) const
{
    const EventFlags own = ownFlagOf(key.keycode);
    if (motion != KeyMotion::release)
        return now.flags | own;
    return m_held.isFlagHeldBesides(key) ? now.flags : without(now.flags, own);
}

void PressRouter::tellTap(Keycode keycode, KeyMotion motion, EventFlags flags, PressId press, Effects& effects)
{
    if (const auto event = makeKeyEvent(keycode, motion, flags))
        effects.emplace_back(Delivery{Audience::tap, keycode, *event, motion, press});
}

} // namespace tarvin::x11
