#pragma once

#include "platform/ports/Script.h"
#include "platform/simulated/EffectLog.h"

#include <vector>

namespace tarvin::simulated {

/// Writes down the exact source of each script, and answers as told.
class SimulatedScripts final : public Scripts
{
public:
    explicit SimulatedScripts(EffectLog& log)
        : m_log(log)
    { }

    [[nodiscard]] std::optional<ScriptResult> run(const Script& script) override;

    /// What every script answers from now on; success without text at first.
    void setResult(ScriptResult result) { m_result = std::move(result); }
    /// Whether a script can be built at all.
    void setCanBuild(bool canBuild) { m_canBuild = canBuild; }
    /// Every script that was asked for, in order.
    [[nodiscard]] const std::vector<Script>& scripts() const { return m_scripts; }

private:
    EffectLog& m_log;
    ScriptResult m_result{};
    bool m_canBuild = true;
    std::vector<Script> m_scripts;
};

} // namespace tarvin::simulated
