#include "platform/linux/x11/X11KeyRecording.h"

#include "platform/keycodes/KeyCodeTable.h"
#include "platform/linux/x11/KeyboardHold.h"
#include "platform/linux/x11/RecordedKeyName.h"

#include <QMetaObject>
#include <QSocketNotifier>

#include <utility>

namespace tarvin::x11 {

namespace {

/// For an object that may be in the middle of a call.
struct DeleteLater
{
    void operator()(QObject* object) const { object->deleteLater(); }
};

} // namespace

class X11KeyRecording::Session final : public KeyRecordingSession
{
public:
    Session(X11KeyRecording& owner, std::unique_ptr<KeyboardHold> hold, KeyHandler onKey, EndHandler onEnd)
        : m_owner(owner)
        , m_hold(std::move(hold))
        , m_onKey(std::make_shared<KeyHandler>(std::move(onKey)))
        , m_onEnd(std::move(onEnd))
        , m_notifier(new QSocketNotifier(m_hold->fileDescriptor(), QSocketNotifier::Read))
    {
        m_owner.setRecording(true);
        const auto handle = [this, alive = std::weak_ptr(m_alive)] {
            if (!alive.expired())
                handleEvents();
        };
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), handle);
        // What came together with the server's answers is no longer on the socket.
        QMetaObject::invokeMethod(m_notifier.get(), handle, Qt::QueuedConnection);
    }

    ~Session() override
    {
        m_notifier->setEnabled(false);
        // The tap takes its keys again only when the keyboard is free.
        m_hold.reset();
        m_owner.setRecording(false);
    }

    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    Session(Session&&) = delete;
    Session& operator=(Session&&) = delete;

private:
    void handleEvents()
    {
        const std::weak_ptr<bool> alive = m_alive;
        while (const auto event = m_hold->next()) {
            if (std::holds_alternative<HoldLost>(*event)) {
                m_notifier->setEnabled(false);
                if (const EndHandler onEnd = std::exchange(m_onEnd, {}))
                    onEnd();
                return;
            }
            tell(std::get<HeldPress>(*event));
            if (alive.expired())
                return;
        }
    }

    void tell(const HeldPress& press)
    {
        const KeyCodeRow* const row = keyRowOfXKeycode(press.keycode);
        if (row == nullptr || row->form != KeyForm::key)
            return;
        const EventFlags flags = m_owner.m_thread.shared().masks.load().flagsOf(press.modifiers);
        xkb_keymap* const keymap = m_hold->keymapOf(press.source);
        const QString characters =
            keymap != nullptr ? recordedKeyName(*keymap, press.keycode, press.layout, flags) : QString();
        // Lives through its own call, even if that ends the session.
        const auto onKey = m_onKey;
        static_cast<void>((*onKey)({.keyCode = row->code, .flags = flags, .characters = characters}));
    }

    X11KeyRecording& m_owner;
    std::unique_ptr<KeyboardHold> m_hold;
    std::shared_ptr<KeyHandler> m_onKey;
    EndHandler m_onEnd;
    std::shared_ptr<bool> m_alive = std::make_shared<bool>(true);
    std::unique_ptr<QSocketNotifier, DeleteLater> m_notifier;
};

X11KeyRecording::X11KeyRecording(InputThread& thread, QByteArray display, HoldObserver observer)
    : m_thread(thread)
    , m_display(std::move(display))
    , m_observer(std::move(observer))
{ }

void X11KeyRecording::setRecording(bool recording)
{
    m_isRecording = recording;
    m_thread.setRecording(recording);
    if (m_observer)
        m_observer(recording);
}

std::unique_ptr<KeyRecordingSession> X11KeyRecording::start(KeyHandler onKey, EndHandler onEnd)
{
    if (m_isRecording)
        return nullptr;
    std::unique_ptr<KeyboardHold> hold = KeyboardHold::take(m_display);
    if (!hold)
        return nullptr;
    return std::make_unique<Session>(*this, std::move(hold), std::move(onKey), std::move(onEnd));
}

} // namespace tarvin::x11
