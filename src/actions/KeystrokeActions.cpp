#include "actions/KeystrokeActions.h"

#include "actions/KeystrokeActionTable.h"
#include "actions/KeystrokeSynthesis.h"
#include "actions/ScriptRunner.h"
#include "actions/TargetApplication.h"
#include "interception/TriggerNotice.h"

namespace tarvin {

KeystrokeActions::KeystrokeActions(
    KeystrokeSynthesis& synthesis, TargetApplication& targets, ScriptRunner& scripts, TriggerNotice& notice)
    : m_synthesis(synthesis)
    , m_targets(targets)
    , m_scripts(scripts)
    , m_notice(notice)
{ }

void KeystrokeActions::perform(KeyAction action)
{
    const KeystrokeActionRow* row = keystrokeActionRow(action);
    if (!row)
        return;
    switch (row->addressee) {
    case Addressee::whoeverIsInFront:
        play(*row);
        return;
    case Addressee::workingApplication:
        m_targets.prepareTargetAppIfTarvinActive([this, row] { play(*row); });
        return;
    }
}

void KeystrokeActions::play(const KeystrokeActionRow& row)
{
    m_synthesis.simulateKeyStroke(row.keystroke.keyCode, row.keystroke.flags, KeystrokeOrigin::builtIn);
    if (row.second)
        m_synthesis.simulateKeyStroke(row.second->keyCode, row.second->flags, KeystrokeOrigin::builtIn);
    if (row.echo == ScriptEcho::sameKey)
        m_scripts.runAsyncAppleScript(PressKeyByScript{row.keystroke.keyCode, row.keystroke.flags});
    if (!row.notice.isEmpty())
        m_notice.recordTriggerDirectly(row.notice.toString());
}

} // namespace tarvin
