#pragma once

#include "studio/applications/ApplicationList.h"

#include <QObject>
#include <QString>

#include <functional>

namespace tarvin {

class ApplicationFolders;
class KeyProfile;

/// What the sheet shows from which the user picks an application that is to have a profile of its own. Main thread
/// only; the folders outlive a scan under way.
class AddAppSheetModel : public QObject
{
    Q_OBJECT

public:
    static constexpr QStringView title = u"Add Application Profile";
    static constexpr QStringView searchPrompt = u"Search installed applications...";
    static constexpr QStringView emptyTitle = u"No applications found";
    static constexpr QStringView clearSearchText = u"Clear Search";
    static constexpr QStringView profileIcon = u"app.fill";

    /// Starts the scan.
    /// @param close asks the owner to take the sheet away
    AddAppSheetModel(
        KeyProfile& profile, const ApplicationFolders& folders, Scheduler& scheduler, std::function<void()> close);

    [[nodiscard]] const QString& searchText() const { return m_searchText; }
    void setSearchText(const QString& text);
    [[nodiscard]] bool isSearching() const;
    /// The rows; empty while the scan runs.
    [[nodiscard]] QList<InstalledApplication> filteredApps() const { return m_list.search().ranked(m_searchText); }
    /// The second line of the empty state; empty unless searching.
    [[nodiscard]] QString emptyDetail() const;

    /// Adds the profile, selects it and closes the sheet. Closes too where the application's identifier is a profile
    /// already.
    void choose(const InstalledApplication& application);
    void close() { m_close(); }

Q_SIGNALS:
    /// Anything shown may differ.
    void changed();

private:
    KeyProfile& m_profile;
    ApplicationList m_list;
    std::function<void()> m_close;
    QString m_searchText;
};

} // namespace tarvin
