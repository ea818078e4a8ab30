#pragma once

#include "platform/linux/desktop/ApplicationRoles.h"
#include "platform/linux/desktop/DesktopEntryCatalog.h"
#include "platform/linux/desktop/DirectoryWatch.h"

#include "platform/ports/Scheduler.h"

#include <QObject>

#include <memory>

namespace tarvin::desktop {

/// Where the description of the installed applications lies.
struct ApplicationLocations
{
    QStringList applicationDirectories; ///< the folders `applications`, the user's own first
    QStringList mimeAppsPaths; ///< highest precedence first
    QStringList locales; ///< suffixes of translated names, best first
    QString browserVariable;

    /// As the environment says, by the base directory rules.
    [[nodiscard]] static ApplicationLocations fromEnvironment();
};

/// One reading of everything installed.
struct ApplicationIndex
{
    DesktopEntryCatalog catalog;
    ApplicationRoles roles;
    QStringList visitedDirectories; ///< folders read, subfolders included
};

/// Reads everything at once; slow, for a background thread.
[[nodiscard]] ApplicationIndex readInstalledApplications(const ApplicationLocations& locations);

/// The installed applications as they are now. The first reading and those after a change run in the background, so
/// the index is empty for the first moments. Main thread only.
class InstalledApplications : public QObject
{
    Q_OBJECT

public:
    InstalledApplications(Scheduler& scheduler, ApplicationLocations locations);

    [[nodiscard]] const ApplicationIndex& index() const { return *m_index; }

Q_SIGNALS:
    /// Another index is in force; pointers into the old one are dead.
    void changed();

private:
    void readSoon();
    void startReading();
    void take(int reading, std::shared_ptr<const ApplicationIndex> index);
    void watchDirectories();

    Scheduler& m_scheduler;
    const ApplicationLocations m_locations;
    std::shared_ptr<const ApplicationIndex> m_index = std::make_shared<ApplicationIndex>();
    DirectoryWatch m_watch;
    std::unique_ptr<Timer> m_pendingReading;
    int m_lastReading = 0; ///< number of the reading started last; earlier ones that end later are dropped
    /// Held weakly by readings under way, which may end after this object.
    std::shared_ptr<InstalledApplications*> m_self = std::make_shared<InstalledApplications*>(this);
};

} // namespace tarvin::desktop
