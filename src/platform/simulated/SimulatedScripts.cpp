#include "platform/simulated/SimulatedScripts.h"

#include "platform/applescript/AppleScriptText.h"

namespace tarvin::simulated {

std::optional<ScriptResult> SimulatedScripts::run(const Script& script)
{
    m_log.expectBackgroundQueue("Scripts::run");
    m_scripts.push_back(script);
    const QString source = appleScriptSource(script);
    if (!m_canBuild) {
        m_log.record(ScriptRun{source, QStringLiteral("the script cannot be built")});
        return std::nullopt;
    }
    m_log.record(ScriptRun{source, m_result.error});
    return m_result;
}

} // namespace tarvin::simulated
