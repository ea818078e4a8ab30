#include "actions/TestEnvironment.h"

#include "platform/ports/ProcessInfo.h"

#include <algorithm>

namespace tarvin {

TestEnvironment::TestEnvironment(const ProcessInfo& processInfo)
    : m_processInfo(processInfo)
{ }

std::optional<QString> TestEnvironment::cause() const
{
    if (m_suppressSystemPowerCommandsForTesting)
        return QStringLiteral("it is forced on");
    if (m_processInfo.processName().contains(u"xctest"))
        return QStringLiteral("the process is called \"%1\"").arg(m_processInfo.processName());
    // Whatever contains "xctest" contains "test", so one search answers for both.
    const QStringList arguments = m_processInfo.arguments();
    const auto found =
        std::ranges::find_if(arguments, [](const QString& argument) { return argument.contains(u"test"); });
    if (found != arguments.end()) {
        return (found == arguments.begin() ? QStringLiteral("the path \"%1\" contains \"test\"")
                                           : QStringLiteral("the argument \"%1\" contains \"test\""))
            .arg(*found);
    }
    if (m_processInfo.bundlePath().endsWith(u".xctest"))
        return QStringLiteral("the program lies in \"%1\"").arg(m_processInfo.bundlePath());
    return std::nullopt;
}

} // namespace tarvin
