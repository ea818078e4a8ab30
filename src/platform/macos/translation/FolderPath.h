#pragma once

#include <QString>

namespace tarvin::macos {

/// A folder as the ports write it: without a slash at the end, except for the root.
[[nodiscard]] inline QString folderPath(QString path)
{
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

/// The program's own folder in one of the user's.
[[nodiscard]] inline QString programFolder(const QString& userFolder)
{
    return userFolder + QStringLiteral("/Tarvin");
}

} // namespace tarvin::macos
