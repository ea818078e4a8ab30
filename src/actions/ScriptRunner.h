#pragma once

#include "platform/ports/Script.h"

namespace tarvin {

class Scheduler;
class TestEnvironment;

/// Runs the scripts of actions. Main thread only.
class ScriptRunner
{
public:
    ScriptRunner(Scripts& scripts, Scheduler& scheduler, const TestEnvironment& testEnvironment);

    /// Starts the script away from the main thread and returns; its result and its failure are of no interest. Nothing
    /// in test-safe mode.
    void runAsyncAppleScript(const Script& script);

private:
    Scripts& m_scripts;
    Scheduler& m_scheduler;
    const TestEnvironment& m_testEnvironment;
};

} // namespace tarvin
