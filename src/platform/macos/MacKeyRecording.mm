#include "platform/macos/MacKeyRecording.h"

#include "platform/macos/NotificationToken.h"
#include "platform/macos/TextBridge.h"
#include "platform/macos/translation/EventRecord.h"
#include "platform/macos/translation/RecordingGate.h"

#import <AppKit/AppKit.h>

#include <utility>

namespace tarvin::macos {

class MacKeyRecording::Session final : public KeyRecordingSession
{
public:
    Session(MacKeyRecording& recording, KeyHandler onKey, EndHandler onEnd)
        : m_recording(recording)
        , m_handlers(std::make_shared<Handlers>(Handlers{std::move(onKey), std::move(onEnd)}))
        , m_resigned(NSNotificationCenter.defaultCenter, NSWindowDidResignKeyNotification,
              NotificationDelivery::whilePosted, [handlers = m_handlers](NSNotification*) { handlers->end(); })
    {
        m_recording.setRecording(true);
        const auto handlers = m_handlers;
        m_monitor = [NSEvent addLocalMonitorForEventsMatchingMask:NSEventMaskKeyDown
                                                          handler:^NSEvent*(NSEvent* event) {
                                                              const auto alive = handlers;
                                                              return alive->press(event);
                                                          }];
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session() override
    {
        m_handlers->areTold = false;
        if (m_monitor)
            [NSEvent removeMonitor:m_monitor];
        m_recording.setRecording(false);
    }

    [[nodiscard]] bool hasKeyboard() const { return m_monitor != nil; }

private:
    /// What the system's callbacks share with the session, which a handler may destroy.
    struct Handlers
    {
        KeyHandler onKey;
        EndHandler onEnd;
        bool areTold = true;

        NSEvent* press(NSEvent* event)
        {
            if (!areTold)
                return event;
            if (event.ARepeat)
                return nil;
            const RecordingVerdict verdict = onKey({
                .keyCode = event.keyCode,
                .flags = eventFlagsOf(event.modifierFlags),
                .characters = recordedCharacters(qString(event.charactersIgnoringModifiers)),
            });
            return verdict == RecordingVerdict::handOn ? event : nil;
        }
        void end()
        {
            if (std::exchange(areTold, false) && onEnd)
                onEnd();
        }
    };

    MacKeyRecording& m_recording;
    const std::shared_ptr<Handlers> m_handlers;
    NotificationToken m_resigned;
    id m_monitor = nil; ///< retained here; the toolkit's own reference ends with the removal
};

MacKeyRecording::MacKeyRecording(HoldObserver observer)
    : m_observer(std::move(observer))
{ }

std::unique_ptr<KeyRecordingSession> MacKeyRecording::start(KeyHandler onKey, EndHandler onEnd)
{
    if (m_isRecording)
        return nullptr;
    auto session = std::make_unique<Session>(*this, std::move(onKey), std::move(onEnd));
    return session->hasKeyboard() ? std::move(session) : nullptr;
}

void MacKeyRecording::setRecording(bool isRecording)
{
    m_isRecording = isRecording;
    if (m_observer)
        m_observer(isRecording);
}

} // namespace tarvin::macos
