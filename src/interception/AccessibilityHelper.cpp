#include "interception/AccessibilityHelper.h"

#include "platform/ports/Permission.h"
#include "platform/ports/Scheduler.h"
#include "platform/ports/Script.h"

#include <tuple>

namespace tarvin {

AccessibilityHelper::AccessibilityHelper(Permission& permission, Scripts& scripts, Scheduler& scheduler)
    : m_permission(permission)
    , m_scripts(scripts)
    , m_scheduler(scheduler)
{ }

bool AccessibilityHelper::isProcessTrusted() const
{
    return m_permission.isProcessTrusted();
}

void AccessibilityHelper::requestPermission()
{
    m_permission.promptForTrust();
}

void AccessibilityHelper::openAccessibilitySettings()
{
    requestPermission();
    m_scheduler.runInBackground(
        BackgroundQueue::userInitiated, [&scripts = m_scripts] { std::ignore = scripts.run(OpenAccessibilityPage{}); });
}

} // namespace tarvin
