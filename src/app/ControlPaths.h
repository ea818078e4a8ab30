#pragma once

#include "platform/linux/desktop/SingleInstance.h"

namespace tarvin {

/// Where commands and the running program meet, in the user's run-time folder.
struct ControlPaths
{
    QString control; ///< the socket of the running program
    QString edit; ///< the lock of whoever edits the files while no program runs

    [[nodiscard]] static ControlPaths fromEnvironment()
    {
        const QString folder = desktop::SingleInstance::defaultRuntimeDirectory();
        return {folder + QStringLiteral("/tarvin.control"), folder + QStringLiteral("/tarvin.edit.lock")};
    }
};

} // namespace tarvin
