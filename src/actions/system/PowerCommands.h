#pragma once

#include "platform/ports/SystemCommands.h"

namespace tarvin {

class AppleMenu;
class Scheduler;
class ScriptRunner;

/// Puts the machine to sleep and ends its run. Each command goes out by several roads at once, of which any may be
/// closed to the program; none is waited for. The caller has seen to test-safe mode. Main thread only.
class PowerCommands
{
public:
    struct Collaborators
    {
        SystemCommands& commands;
        LoginWindow& loginWindow;
        AppleMenu& appleMenu;
        ScriptRunner& scripts;
        Scheduler& scheduler;
    };

    explicit PowerCommands(const Collaborators& collaborators);

    void sleepSystem();
    void sleepDisplay();
    void shutDownSystem();
    void restartSystem();

private:
    void run(const SystemCommand& command);
    void sendLoginWindowEvent(PowerEvent event);

    Collaborators m_with;
};

} // namespace tarvin
