#include "platform/linux/desktop/LinuxProcessInfo.h"

#include "platform/linux/desktop/ApplicationId.h"
#include "platform/linux/desktop/ProcessFacts.h"

#include <unistd.h>

namespace tarvin::desktop {

LinuxProcessInfo::LinuxProcessInfo(QStringList arguments)
    : m_arguments(std::move(arguments))
    , m_executable(readProcess(getpid()).executable)
{ }

QString LinuxProcessInfo::processName() const
{
    return m_executable.section(u'/', -1);
}

QString LinuxProcessInfo::bundlePath() const
{
    return m_executable.section(u'/', 0, -2);
}

std::optional<QString> LinuxProcessInfo::bundleIdentifier() const
{
    return applicationId.toString();
}

std::optional<QString> LinuxProcessInfo::bundleName() const
{
    return applicationName.toString();
}

} // namespace tarvin::desktop
