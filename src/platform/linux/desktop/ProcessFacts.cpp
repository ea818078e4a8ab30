#include "platform/linux/desktop/ProcessFacts.h"

#include <QFile>

#include <cerrno>
#include <csignal>

namespace tarvin::desktop {

ProcessFacts readProcess(ProcessIdentifier process)
{
    if (process <= 0)
        return {};
    const QString directory = QStringLiteral("/proc/%1/").arg(process);
    ProcessFacts facts;
    facts.executable = QFile::symLinkTarget(directory + QStringLiteral("exe"));
    // The system marks a program whose file was replaced while it runs, as an update does.
    const QString mark = QStringLiteral(" (deleted)");
    if (facts.executable.endsWith(mark))
        facts.executable.chop(mark.size());
    QFile commandLine(directory + QStringLiteral("cmdline"));
    if (commandLine.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> words = commandLine.readAll().split('\0');
        for (const QByteArray& word : words)
            facts.arguments += QFile::decodeName(word);
        if (!facts.arguments.isEmpty())
            facts.arguments.removeLast(); // what follows the last zero byte
    }
    return facts;
}

bool isRunning(ProcessIdentifier process)
{
    return process > 0 && (kill(process, 0) == 0 || errno == EPERM);
}

} // namespace tarvin::desktop
