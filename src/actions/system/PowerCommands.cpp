#include "actions/system/PowerCommands.h"

#include "actions/ScriptRunner.h"
#include "actions/system/AppleMenuItem.h"
#include "platform/ports/Scheduler.h"

namespace tarvin {

PowerCommands::PowerCommands(const Collaborators& collaborators)
    : m_with(collaborators)
{ }

void PowerCommands::sleepSystem()
{
    run(SleepNow{});
    m_with.scheduler.post([&menu = m_with.appleMenu] { triggerAppleMenuActionViaAccessibility(menu, {u"Sleep"_qs}); });
    m_with.scripts.runAsyncAppleScript(RequestPowerByScript{PowerRequest::sleep, PowerAddressee::finder});
    m_with.scripts.runAsyncAppleScript(RequestPowerByScript{PowerRequest::sleep, PowerAddressee::systemEvents});
}

void PowerCommands::sleepDisplay()
{
    run(DisplaySleepNow{});
}

void PowerCommands::shutDownSystem()
{
    sendLoginWindowEvent(PowerEvent::shutDown);
    run(RequestPowerEvent{PowerEvent::shutDown});
    m_with.scripts.runAsyncAppleScript(RequestPowerByScript{PowerRequest::shutDown, PowerAddressee::systemEvents});
    m_with.scripts.runAsyncAppleScript(RequestPowerByScript{PowerRequest::shutDown, PowerAddressee::finder});
    m_with.scheduler.post([&menu = m_with.appleMenu] {
        triggerAppleMenuActionViaAccessibility(menu, {u"Shut Down"_qs, u"Shut Down…"_qs});
    });
}

void PowerCommands::restartSystem()
{
    sendLoginWindowEvent(PowerEvent::restart);
    run(RequestPowerEvent{PowerEvent::restart});
    m_with.scripts.runAsyncAppleScript(RequestPowerByScript{PowerRequest::restart, PowerAddressee::systemEvents});
    m_with.scripts.runAsyncAppleScript(RequestPowerByScript{PowerRequest::restart, PowerAddressee::finder});
    m_with.scheduler.post([&menu = m_with.appleMenu] {
        triggerAppleMenuActionViaAccessibility(menu, {u"Restart"_qs, u"Restart…"_qs});
    });
}

void PowerCommands::run(const SystemCommand& command)
{
    m_with.scheduler.runInBackground(
        BackgroundQueue::userInitiated, [&commands = m_with.commands, command] { commands.run(command); });
}

void PowerCommands::sendLoginWindowEvent(PowerEvent event)
{
    m_with.scheduler.runInBackground(
        BackgroundQueue::userInitiated, [&loginWindow = m_with.loginWindow, event] { loginWindow.send(event); });
}

} // namespace tarvin
