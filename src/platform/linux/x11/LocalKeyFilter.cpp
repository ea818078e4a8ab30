#include "platform/linux/x11/LocalKeyFilter.h"

#include "platform/linux/x11/XcbHandles.h"
#include "platform/linux/x11/XcbXkb.h"

#include <QGuiApplication>
#include <QKeyEvent>

#include <utility>

namespace tarvin::x11 {

namespace {

/// No key has it.
constexpr KeyCode noKeyCode = 0xFFFF;

void askForRepeatsWithoutReleases(xcb_connection_t* connection)
{
    constexpr std::uint32_t flag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const XcbOwned<xcb_xkb_per_client_flags_reply_t> reply(xcb_xkb_per_client_flags_reply(
        connection, xcb_xkb_per_client_flags(connection, XCB_XKB_ID_USE_CORE_KBD, flag, flag, 0, 0, 0), nullptr));
}

} // namespace

LocalKeyFilter::LocalKeyFilter(InputShared& shared, InputTaps::LocalMonitorHandler handler)
    : m_shared(shared)
    , m_handler(std::move(handler))
{
    if (const auto* const session = qGuiApp->nativeInterface<QNativeInterface::QX11Application>())
        askForRepeatsWithoutReleases(session->connection());
}

bool LocalKeyFilter::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    // A release that comes from now on goes to another program.
    if (type == QEvent::ApplicationStateChange && qGuiApp->applicationState() != Qt::ApplicationActive)
        m_isDown.reset();
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

KeyMotion LocalKeyFilter::motionOfPress(const QKeyEvent& event, Keycode keycode)
{
    const bool wasDown = m_isDown[keycode];
    m_isDown.set(keycode);
    return wasDown || event.isAutoRepeat() ? KeyMotion::repeat : KeyMotion::press;
}

EventVerdict LocalKeyFilter::judgeOverride(const QKeyEvent& event, Keycode keycode)
{
    const EventVerdict verdict = ask(event, keycode, motionOfPress(event, keycode));
    m_announced = {.keycode = keycode, .time = static_cast<ServerTime>(event.timestamp()), .verdict = verdict};
    m_pressVerdicts[keycode] = verdict;
    return verdict;
}

EventVerdict LocalKeyFilter::judgePress(const QKeyEvent& event, Keycode keycode)
{
    const auto announced = std::exchange(m_announced, std::nullopt);
    if (!announced || announced->keycode != keycode || announced->time != static_cast<ServerTime>(event.timestamp()))
        m_pressVerdicts[keycode] = ask(event, keycode, motionOfPress(event, keycode));
    return m_pressVerdicts[keycode];
}

EventVerdict LocalKeyFilter::judgeRelease(const QKeyEvent& event, Keycode keycode)
{
    if (event.isAutoRepeat())
        return m_pressVerdicts[keycode];
    m_isDown.reset(keycode);
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
