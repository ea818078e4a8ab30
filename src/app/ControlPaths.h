#pragma once

#include <QString>

namespace tarvin {

/// Where commands and the running program meet, in a folder of the user's that nobody else can look into.
struct ControlPaths
{
    QString control; ///< the socket of the running program
    QString edit; ///< the lock of whoever edits the files while no program runs

    [[nodiscard]] static ControlPaths in(const QString& folder)
    {
        return {folder + QStringLiteral("/tarvin.control"), folder + QStringLiteral("/tarvin.edit.lock")};
    }
    /// Those of this desktop.
    [[nodiscard]] static ControlPaths fromEnvironment();
};

} // namespace tarvin
