#pragma once

#include "platform/ports/Permission.h"
#include "platform/simulated/EffectLog.h"

namespace tarvin::simulated {

/// Granted at first; the prompt is recorded and grants nothing by itself.
class SimulatedPermission final : public Permission
{
public:
    explicit SimulatedPermission(EffectLog& log)
        : m_log(log)
    { }

    [[nodiscard]] bool isProcessTrusted() const override { return m_trusted; }
    void promptForTrust() override
    {
        m_log.expectMainThread("Permission::promptForTrust");
        m_log.record(PermissionPrompted{});
    }

    void setTrusted(bool trusted) { m_trusted = trusted; }

private:
    EffectLog& m_log;
    bool m_trusted = true;
};

} // namespace tarvin::simulated
