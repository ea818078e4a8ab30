#pragma once

#include "platform/ports/SystemCommands.h"

#include <QString>
#include <QStringList>

namespace tarvin {

/// A program of the system and what it is given.
struct ToolLaunch
{
    QString tool; ///< absolute path of the executable
    QStringList arguments{};
    friend bool operator==(const ToolLaunch&, const ToolLaunch&) = default;
};

/// The tool by which macOS carries out the command.
[[nodiscard]] ToolLaunch toolLaunch(const SystemCommand& command);

} // namespace tarvin
