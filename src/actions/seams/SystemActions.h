#pragma once

namespace tarvin {

/// The actions that talk to the system rather than to an application. Main thread only; each call returns once its
/// work has started.
class SystemActions
{
public:
    virtual ~SystemActions() = default;

    // The system's own keys: they act in test-safe mode too. Each gives its notice itself.

    /// @param delta percentage points, negative for quieter
    virtual void adjustVolume(int delta) = 0;
    virtual void toggleMute() = 0;
    /// @param delta part of the full brightness, negative for darker
    virtual void adjustBrightness(double delta) = 0;
    virtual void executeMediaPlayPause() = 0;
    virtual void executeMediaNext() = 0;
    virtual void executeMediaPrevious() = 0;
    virtual void toggleMicrophoneMute() = 0;

    // The bare commands, never called in test-safe mode. The notice has been given.

    virtual void sleepSystem() = 0;
    virtual void sleepDisplay() = 0;
    virtual void shutDownSystem() = 0;
    virtual void restartSystem() = 0;

    // Never called in test-safe mode. Each gives its notice itself.

    virtual void forceQuitFrontmostApplication() = 0;
    virtual void openSystemForceQuitDialog() = 0;
};

} // namespace tarvin
