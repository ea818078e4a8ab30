#include "platform/linux/x11/ExactModifiers.h"

#include <utility>

namespace tarvin::x11 {

namespace {

ModifierMask coverNeeded(const ModifierKeys& keys)
{
    return keys.masks.option | keys.masks.command;
}

void tap(Keycode keycode, std::vector<FakeKey>& fakes)
{
    if (keycode == 0)
        return;
    fakes.push_back({keycode, FakeMotion::press});
    fakes.push_back({keycode, FakeMotion::release});
}

} // namespace

ExactModifiers::FakeKeys ExactModifiers::prepare(
    EventFlags flags, const KeycodeSet& down, const KeycodeSet& heldByUser, const ModifierKeys& keys)
{
    const ModifierMask wanted = keys.masks.maskFor(flags);
    FakeKeys fakes;
    const auto unwanted = static_cast<ModifierMask>(keys.masks.all() & ~wanted);
    ModifierMask present = 0;
    bool isCovered = false;
    for (std::size_t keycode = 0; keycode < keycodeCount; ++keycode) {
        if (!down[keycode])
            continue;
        const ModifierMask mask = keys.maskOf[keycode];
        if ((mask & unwanted) == 0) {
            present |= mask;
            continue;
        }
        if ((mask & coverNeeded(keys)) != 0 && !std::exchange(isCovered, true))
            tap(keys.blank, fakes);
        lift(static_cast<Keycode>(keycode), heldByUser[keycode], fakes);
    }
    const std::array<std::pair<EventFlags, Keycode>, 4> candidates{{{EventFlags::shift, keys.shift},
        {EventFlags::control, keys.control}, {EventFlags::option, keys.option}, {EventFlags::command, keys.command}}};
    for (const auto& [flag, keycode] : candidates) {
        if (keycode != 0 && (keys.masks.maskFor(flags & flag) & ~present) != 0)
            hold(keycode, heldByUser[keycode], fakes);
    }
    return fakes;
}

ExactModifiers::FakeKeys ExactModifiers::finish(const KeycodeSet& heldByUser, const ModifierKeys& keys)
{
    FakeKeys fakes;
    bool needsCover = false;
    for (std::size_t index = 0; index < keycodeCount; ++index) {
        const auto keycode = static_cast<Keycode>(index);
        if (m_pressed[index] && !heldByUser[index]) {
            fakes.push_back({keycode, FakeMotion::release});
        } else if (m_pressed[index]) {
            // The user has put the same key down in the meantime, and it is down already.
            m_restored.set(index);
        } else if (m_lifted[index] && heldByUser[index]) {
            fakes.push_back({keycode, FakeMotion::press});
            m_restored.set(index);
            needsCover = needsCover || (keys.maskOf[index] & coverNeeded(keys)) != 0;
        }
    }
    if (needsCover)
        tap(keys.blank, fakes);
    m_pressed.reset();
    m_lifted.reset();
    return fakes;
}

ExactModifiers::FakeKeys ExactModifiers::noteUserRelease(Keycode keycode)
{
    m_lifted.reset(keycode);
    if (!m_restored[keycode])
        return {};
    m_restored.reset(keycode);
    return {{keycode, FakeMotion::release}};
}

ExactModifiers::FakeKeys ExactModifiers::abandon()
{
    FakeKeys fakes;
    const KeycodeSet ours = m_pressed | m_restored;
    for (std::size_t keycode = 0; keycode < keycodeCount; ++keycode) {
        if (ours[keycode])
            fakes.push_back({static_cast<Keycode>(keycode), FakeMotion::release});
    }
    *this = {};
    return fakes;
}

void ExactModifiers::lift(Keycode keycode, bool isHeldByUser, FakeKeys& fakes)
{
    fakes.push_back({keycode, FakeMotion::release});
    m_pressed.reset(keycode);
    m_restored.reset(keycode);
    m_lifted.set(keycode, isHeldByUser);
}

void ExactModifiers::hold(Keycode keycode, bool isHeldByUser, FakeKeys& fakes)
{
    // The server drops the press of a modifier that is down on the faking device already: because the user had it down
    // as well and let go, or because a predecessor was killed. The applications know it to be up and see nothing of
    // this.
    fakes.push_back({keycode, FakeMotion::release});
    fakes.push_back({keycode, FakeMotion::press});
    m_lifted.reset(keycode);
    m_pressed.set(keycode, !isHeldByUser);
    m_restored.set(keycode, isHeldByUser);
}

} // namespace tarvin::x11
