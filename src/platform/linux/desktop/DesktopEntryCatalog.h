#pragma once

#include "platform/linux/desktop/DesktopEntry.h"

#include <unordered_map>
#include <vector>

namespace tarvin::desktop {

/// What a window and its process tell about the application behind them. Unknown fields are empty.
struct ApplicationClues
{
    QString className; ///< second part of `WM_CLASS`
    QString instanceName; ///< first part of `WM_CLASS`
    QString desktopFile; ///< the id, or path, that the toolkit wrote on the window
    QString executable; ///< path of the process' program
    QStringList arguments; ///< of the process, the program first
};

/// The installed applications, and the search for the one behind a window. Immutable; shared freely between threads.
class DesktopEntryCatalog
{
public:
    DesktopEntryCatalog() = default;
    /// @param entries in order of precedence; of several with one id only the first may be given
    explicit DesktopEntryCatalog(std::vector<DesktopEntry> entries);

    [[nodiscard]] const std::vector<DesktopEntry>& entries() const { return m_entries; }
    [[nodiscard]] const DesktopEntry* entry(const QString& id) const;

    /// The entry behind a window, by the first of these that finds one:
    /// 1. the desktop file that the window itself names;
    /// 2. `StartupWMClass` equal to a part of `WM_CLASS`, as written, then without regard to case;
    /// 3. the id, then its last part ("org.kde.dolphin", "dolphin"), equal to a part of `WM_CLASS` without regard to
    /// case;
    /// 4. the program of `Exec` equal to that of the process.
    /// The class comes before the instance. Among equals an entry that runs the process' own program wins, then one
    /// that menus show, then the order of precedence.
    /// @return null if no entry fits
    [[nodiscard]] const DesktopEntry* match(const ApplicationClues& clues) const;

private:
    using Index = std::unordered_multimap<QString, std::size_t>;

    [[nodiscard]] const DesktopEntry* best(const Index& index, const QString& key, const ApplicationClues& clues) const;
    [[nodiscard]] const DesktopEntry* matchByProcess(const ApplicationClues& clues) const;

    std::vector<DesktopEntry> m_entries;
    Index m_byWindowClass;
    Index m_byFoldedWindowClass;
    Index m_byFoldedId;
    Index m_byFoldedLastPart;
    Index m_byProgramName;
};

} // namespace tarvin::desktop
