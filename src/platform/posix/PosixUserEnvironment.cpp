#include "platform/posix/PosixUserEnvironment.h"

#include <QDateTime>
#include <QDir>
#include <QStandardPaths>

namespace tarvin::posix {

QString PosixUserEnvironment::homeDirectory() const
{
    return QDir::homePath();
}

QString PosixUserEnvironment::desktopDirectory() const
{
    const QString desktop = QDir::cleanPath(QStandardPaths::writableLocation(QStandardPaths::DesktopLocation));
    return QDir(desktop).exists() ? desktop : homeDirectory();
}

std::chrono::seconds PosixUserEnvironment::utcOffset(Scheduler::WallClock instant) const
{
    const auto sinceEpoch = std::chrono::duration_cast<std::chrono::milliseconds>(instant.time_since_epoch());
    return std::chrono::seconds(QDateTime::fromMSecsSinceEpoch(sinceEpoch.count(), Qt::LocalTime).offsetFromUtc());
}

} // namespace tarvin::posix
