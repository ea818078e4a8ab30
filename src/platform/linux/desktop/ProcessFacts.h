#pragma once

#include "platform/ports/Workspace.h"

#include <QString>
#include <QStringList>

namespace tarvin::desktop {

/// What /proc shows of a process. Empty for one that has gone or belongs to another user.
struct ProcessFacts
{
    QString executable; ///< path of the program
    QStringList arguments; ///< the program first
};

[[nodiscard]] ProcessFacts readProcess(ProcessIdentifier process);

/// Whether the process exists, whoever owns it.
[[nodiscard]] bool isRunning(ProcessIdentifier process);

} // namespace tarvin::desktop
