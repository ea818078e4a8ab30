#pragma once

#include "actions/seams/SystemActions.h"
#include "platform/ports/Script.h"
#include "platform/ports/SystemKeys.h"

#include <QStringView>

namespace tarvin {

class DisplayBrightness;
class ForceQuit;
class PowerCommands;
class Scheduler;
class ScriptRunner;
class SystemKeyPresses;
class TriggerNotice;

/// Volume, mute, media, brightness and the microphone, and the way to power and force quit. Sound goes out by two
/// roads, a script and a key; what comes of either is not read.
class SystemPerformer final : public SystemActions
{
public:
    struct Collaborators
    {
        SystemKeyPresses& keys;
        ScriptRunner& scripts; ///< silent in test-safe mode
        Scripts& unguardedScripts; ///< for the microphone, which is toggled in test-safe mode too
        const DisplayBrightness& brightness;
        PowerCommands& power;
        ForceQuit& forceQuit;
        TriggerNotice& notice;
        Scheduler& scheduler;
    };

    explicit SystemPerformer(const Collaborators& collaborators);

    void adjustVolume(int delta) override;
    void toggleMute() override;
    void adjustBrightness(double delta) override;
    void executeMediaPlayPause() override;
    void executeMediaNext() override;
    void executeMediaPrevious() override;
    /// The notice is what the script answers, and comes when it has.
    void toggleMicrophoneMute() override;

    void sleepSystem() override;
    void sleepDisplay() override;
    void shutDownSystem() override;
    void restartSystem() override;

    void forceQuitFrontmostApplication() override;
    void openSystemForceQuitDialog() override;

private:
    void control(SystemKey key, MediaCommand command, QStringView title);

    Collaborators m_with;
};

} // namespace tarvin
