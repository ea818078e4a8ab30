#include "platform/linux/services/Programs.h"

#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <unistd.h>

namespace tarvin::services {

bool startProgram(const QString& program, const QStringList& arguments)
{
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty())
        return false;
    QProcess process;
    process.setProgram(path);
    process.setArguments(arguments);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

bool isProgramRunning(QStringView name)
{
    // The kernel cuts names after 15 bytes.
    constexpr qsizetype longestName = 15;
    const QByteArray wanted = name.left(longestName).toUtf8();
    QDirIterator processes(QStringLiteral("/proc"), QDir::Dirs | QDir::NoDotAndDotDot);
    while (processes.hasNext()) {
        const QString path = processes.next();
        if (!processes.fileName().front().isDigit() || processes.fileInfo().ownerId() != getuid())
            continue;
        QFile file(path + QStringLiteral("/comm"));
        if (file.open(QIODevice::ReadOnly) && file.readAll().trimmed() == wanted)
            return true;
    }
    return false;
}

bool isProgramInstalled(const QString& name)
{
    return !QStandardPaths::findExecutable(name).isEmpty();
}

} // namespace tarvin::services
