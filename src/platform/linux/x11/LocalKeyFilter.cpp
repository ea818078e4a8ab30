#include "platform/linux/x11/LocalKeyFilter.h"

#include <QKeyEvent>

#include <utility>

namespace tarvin::x11 {

namespace {

/// No key has it.
constexpr KeyCode noKeyCode = 0xFFFF;

} // namespace

LocalKeyFilter::LocalKeyFilter(InputShared& shared, InputTaps::LocalMonitorHandler handler)
    : m_shared(shared)
    , m_handler(std::move(handler))
{ }

bool LocalKeyFilter::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::ShortcutOverride && type != QEvent::KeyPress && type != QEvent::KeyRelease)
        return false;
    // What a window gets from the server is spontaneous; what its widgets then get is the same event again.
    if (!watched->isWindowType() || !event->spontaneous())
        return false;
    const auto& keyEvent = static_cast<const QKeyEvent&>(*event);
    const quint32 scanCode = keyEvent.nativeScanCode();
    if (scanCode == 0 || scanCode >= keycodeCount)
        return false;
    const auto keycode = static_cast<Keycode>(scanCode);
    auto verdict = EventVerdict::pass;
    if (type == QEvent::ShortcutOverride)
        verdict = judgeOverride(keyEvent, keycode);
    else
        verdict = type == QEvent::KeyPress ? judgePress(keyEvent, keycode) : judgeRelease(keyEvent, keycode);
    if (verdict == EventVerdict::pass)
        return false;
    // An accepted override keeps the shortcuts away and lets the press itself come.
    event->accept();
    return true;
}

EventVerdict LocalKeyFilter::judgeOverride(const QKeyEvent& event, Keycode keycode)
{
    const EventVerdict verdict = ask(event, keycode, event.isAutoRepeat() ? KeyMotion::repeat : KeyMotion::press);
    m_announced = {.keycode = keycode, .time = static_cast<ServerTime>(event.timestamp()), .verdict = verdict};
    m_pressVerdicts[keycode] = verdict;
    return verdict;
}

EventVerdict LocalKeyFilter::judgePress(const QKeyEvent& event, Keycode keycode)
{
    const auto announced = std::exchange(m_announced, std::nullopt);
    if (!announced || announced->keycode != keycode || announced->time != static_cast<ServerTime>(event.timestamp()))
        m_pressVerdicts[keycode] = ask(event, keycode, event.isAutoRepeat() ? KeyMotion::repeat : KeyMotion::press);
    return m_pressVerdicts[keycode];
}

EventVerdict LocalKeyFilter::judgeRelease(const QKeyEvent& event, Keycode keycode)
{
    if (event.isAutoRepeat())
        return m_pressVerdicts[keycode];
    return ask(event, keycode, KeyMotion::release);
}

EventVerdict LocalKeyFilter::ask(const QKeyEvent& event, Keycode keycode, KeyMotion motion)
{
    auto keyEvent = makeKeyEvent(keycode, motion, flagsAfter(event, keycode, motion));
    const FakeKey fake{keycode, motion == KeyMotion::release ? FakeMotion::release : FakeMotion::press};
    const auto ownData = m_shared.ledger.takeOwn(fake, static_cast<ServerTime>(event.timestamp()));
    if (!keyEvent && !ownData)
        return EventVerdict::pass;
    // What we post is ours whether or not we have a word for the key, as the one that covers a modifier.
    if (!keyEvent)
        keyEvent = {.type = motion == KeyMotion::release ? InputEventType::keyUp : InputEventType::keyDown,
            .keyCode = noKeyCode};
    keyEvent->userData = ownData.value_or(0);
    return m_handler(*keyEvent);
}

EventFlags LocalKeyFilter::flagsAfter(const QKeyEvent& event, Keycode keycode, KeyMotion motion) const
{
    // The event tells of the modifiers before it.
    const auto state = static_cast<ModifierMask>(event.nativeModifiers());
    const EventFlags before = m_shared.masks.load().flagsOf(state);
    const EventFlags own = ownFlagOf(keycode);
    if (motion != KeyMotion::release)
        return before | own;
    const bool isTwinHeld = (m_shared.heldSides & twinBitOf(keycode)) != 0;
    return isTwinHeld ? before : without(before, own);
}

} // namespace tarvin::x11
