#include "actions/ScriptRunner.h"

#include "actions/TestEnvironment.h"
#include "platform/ports/Scheduler.h"

namespace tarvin {

ScriptRunner::ScriptRunner(Scripts& scripts, Scheduler& scheduler, const TestEnvironment& testEnvironment)
    : m_scripts(scripts)
    , m_scheduler(scheduler)
    , m_testEnvironment(testEnvironment)
{ }

void ScriptRunner::runAsyncAppleScript(const Script& script)
{
    if (m_testEnvironment.isRunningInTestEnvironment())
        return;
    m_scheduler.runInBackground(
        BackgroundQueue::userInitiated, [&scripts = m_scripts, script] { static_cast<void>(scripts.run(script)); });
}

} // namespace tarvin
