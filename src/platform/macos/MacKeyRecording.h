#pragma once

#include "platform/ports/KeyRecording.h"

namespace tarvin::macos {

/// Records keys by a monitor of the program's own windows. Keystrokes that the system takes for itself before any
/// program sees them, such as the one for its search, are not told. Main thread only.
class MacKeyRecording final : public KeyRecording
{
public:
    /// Told before the keyboard is used and after it was given back.
    using HoldObserver = std::function<void(bool isRecording)>;

    /// @param observer for whoever else takes keys; may be empty
    explicit MacKeyRecording(HoldObserver observer);

    [[nodiscard]] std::unique_ptr<KeyRecordingSession> start(KeyHandler onKey, EndHandler onEnd) override;

private:
    class Session;

    void setRecording(bool isRecording);

    const HoldObserver m_observer;
    bool m_isRecording = false;
};

} // namespace tarvin::macos
