#pragma once

#include "platform/linux/x11/InputThread.h"
#include "platform/ports/KeyRecording.h"

#include <QByteArray>

#include <functional>

namespace tarvin::x11 {

/// Records keys by holding the keyboard of the X session, over a connection of its own: whatever ends the program, the
/// server then gives the keyboard back. The session tap lets go of its keys meanwhile. Main thread only; the event loop
/// must run.
///
/// The window that has the focus keeps it. The recording ends when that window loses it
/// or goes away. No key is handed on: the server has no way back from such a grab.
class X11KeyRecording final : public KeyRecording
{
public:
    /// Told before the keyboard is used and after it was given back.
    using HoldObserver = std::function<void(bool isRecording)>;

    /// @param display as in DISPLAY; empty for the environment's
    /// @param observer for whoever else takes keys, in front of the session; may be empty
    X11KeyRecording(InputThread& thread, QByteArray display, HoldObserver observer = {});

    [[nodiscard]] std::unique_ptr<KeyRecordingSession> start(KeyHandler onKey, EndHandler onEnd) override;

private:
    class Session;

    void setRecording(bool recording);

    InputThread& m_thread;
    const QByteArray m_display;
    const HoldObserver m_observer;
    bool m_isRecording = false;
};

} // namespace tarvin::x11
