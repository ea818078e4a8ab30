#pragma once

#include "platform/ports/SystemCommands.h"
#include "platform/simulated/EffectLog.h"

namespace tarvin::simulated {

/// Writes down the tool that each command starts.
class SimulatedSystemCommands final : public SystemCommands
{
public:
    explicit SimulatedSystemCommands(EffectLog& log)
        : m_log(log)
    { }

    void run(const SystemCommand& command) override;

    /// Why no tool starts from now on; nothing lets them start again.
    void setLaunchError(std::optional<QString> error) { m_launchError = std::move(error); }

private:
    EffectLog& m_log;
    std::optional<QString> m_launchError;
};

/// Writes down what the process of the login window is asked.
class SimulatedLoginWindow final : public LoginWindow
{
public:
    explicit SimulatedLoginWindow(EffectLog& log)
        : m_log(log)
    { }

    void send(PowerEvent event) override;

private:
    EffectLog& m_log;
};

} // namespace tarvin::simulated
