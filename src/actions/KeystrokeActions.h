#pragma once

#include "model/KeyAction.h"

namespace tarvin {

class KeystrokeSynthesis;
class ScriptRunner;
class TargetApplication;
class TriggerNotice;
struct KeystrokeActionRow;

/// Performs the actions that are keystrokes of their own. Main thread only; outlives what is still to be posted.
class KeystrokeActions
{
public:
    KeystrokeActions(
        KeystrokeSynthesis& synthesis, TargetApplication& targets, ScriptRunner& scripts, TriggerNotice& notice);

    /// Posts the keystroke, then asks for it by script where the action is sent twice, then gives the notice. All of it
    /// waits while the application that the user works in comes forward. Nothing for an action without a keystroke.
    void perform(KeyAction action);

private:
    void play(const KeystrokeActionRow& row);

    KeystrokeSynthesis& m_synthesis;
    TargetApplication& m_targets;
    ScriptRunner& m_scripts;
    TriggerNotice& m_notice;
};

} // namespace tarvin
