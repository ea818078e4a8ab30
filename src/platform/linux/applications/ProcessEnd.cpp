#include "platform/linux/applications/ProcessEnd.h"

#include "platform/linux/desktop/ProcessFacts.h"

#include <QFile>

#include <csignal>
#include <unistd.h>

namespace tarvin::applications {

bool hasEnded(ProcessIdentifier process)
{
    if (!desktop::isRunning(process))
        return true;
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    if (!file.open(QIODevice::ReadOnly))
        return !desktop::isRunning(process);
    // The state follows the name, which stands in brackets and may hold brackets itself.
    const QByteArray line = file.readAll();
    const char state = line.mid(line.lastIndexOf(')') + 1).trimmed().left(1).append('?').at(0);
    return state == 'Z' || state == 'X';
}

bool endByForce(ProcessIdentifier process)
{
    return process > 1 && process != getpid() && ::kill(process, SIGKILL) == 0;
}

} // namespace tarvin::applications
