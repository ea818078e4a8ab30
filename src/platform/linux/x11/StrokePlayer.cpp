#include "platform/linux/x11/StrokePlayer.h"

#include "platform/keycodes/KeyCodeTable.h"

#include <algorithm>

namespace tarvin::x11 {

namespace {

void addModifiers(const std::vector<FakeKey>& keys, StrokePlayer::Fakes& fakes)
{
    for (const FakeKey& key : keys)
        fakes.push_back({key, selfPostedMarker});
}

std::optional<Keycode> keycodeFor(const DesktopKeystroke& keystroke, const KeyboardMoment& moment)
{
    // A layout without the letter, such as a Cyrillic one, leaves it to the applications to look at the key's place.
    if (const auto keycode = moment.map.keycodeTyping(keystroke.letter, moment.layout))
        return keycode;
    const KeyCodeRow* const row = keyRowOfKeyCode(keystroke.keyCode);
    return row == nullptr ? std::nullopt : xKeycodeOf(*row);
}

} // namespace

StrokePlayer::Fakes StrokePlayer::play(const Stroke& stroke, const KeyboardMoment& moment)
{
    Fakes fakes;
    if (stroke.state == KeyState::up) {
        end(stroke, moment, fakes);
    } else if (const auto keycode = keycodeFor(stroke.keystroke, moment)) {
        begin(stroke, *keycode, moment, fakes);
    }
    return fakes;
}

void StrokePlayer::begin(const Stroke& stroke, Keycode keycode, const KeyboardMoment& moment, Fakes& fakes)
{
    addModifiers(
        m_modifiers.prepare(stroke.keystroke.flags, moment.down, moment.heldByUser, moment.map.modifierKeys()), fakes);
    // A press of what is down already, by the user or by a stroke under way, would reach nobody.
    if (moment.down[keycode])
        fakes.push_back({{keycode, FakeMotion::release}, stroke.userData});
    fakes.push_back({{keycode, FakeMotion::press}, stroke.userData});
    m_open.push_back({stroke.keystroke, keycode});
}

void StrokePlayer::end(const Stroke& stroke, const KeyboardMoment& moment, Fakes& fakes)
{
    const auto found = std::ranges::find_if(m_open, [&](const OpenStroke& open) {
        return open.keystroke.keyCode == stroke.keystroke.keyCode && open.keystroke.letter == stroke.keystroke.letter;
    });
    if (found == m_open.end())
        return;
    addModifiers(
        m_modifiers.prepare(stroke.keystroke.flags, moment.down, moment.heldByUser, moment.map.modifierKeys()), fakes);
    fakes.push_back({{found->keycode, FakeMotion::release}, stroke.userData});
    m_open.erase(found);
    if (m_open.empty())
        addModifiers(m_modifiers.finish(moment.heldByUser, moment.map.modifierKeys()), fakes);
}

StrokePlayer::Fakes StrokePlayer::noteUserRelease(Keycode keycode)
{
    Fakes fakes;
    addModifiers(m_modifiers.noteUserRelease(keycode), fakes);
    return fakes;
}

StrokePlayer::Fakes StrokePlayer::abandon()
{
    Fakes fakes;
    for (const OpenStroke& open : m_open)
        fakes.push_back({{open.keycode, FakeMotion::release}, selfPostedMarker});
    m_open.clear();
    addModifiers(m_modifiers.abandon(), fakes);
    return fakes;
}

} // namespace tarvin::x11
