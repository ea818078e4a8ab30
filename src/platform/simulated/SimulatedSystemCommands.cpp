#include "platform/simulated/SimulatedSystemCommands.h"

#include "platform/macrequests/ToolLaunch.h"

namespace tarvin::simulated {

void SimulatedSystemCommands::run(const SystemCommand& command)
{
    m_log.expectBackgroundQueue("SystemCommands::run");
    const ToolLaunch launch = toolLaunch(command);
    m_log.record(ToolLaunched{launch.tool, launch.arguments, m_launchError});
}

void SimulatedLoginWindow::send(PowerEvent event)
{
    m_log.expectBackgroundQueue("LoginWindow::send");
    m_log.record(LoginWindowAsked{event});
}

} // namespace tarvin::simulated
