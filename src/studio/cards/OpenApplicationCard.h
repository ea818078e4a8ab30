#pragma once

#include "platform/ports/ApplicationChooser.h"
#include "platform/ports/ApplicationFolders.h"
#include "studio/applications/ApplicationList.h"
#include "studio/cards/KeyRecord.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

namespace tarvin {

class ApplicationControl;

/// The card that says which application a key opens, with the list to choose it from. Lives as long as the picker and
/// reads the list once. Main thread only; the folders outlive a scan under way.
class OpenApplicationCard : public QObject
{
    Q_OBJECT

public:
    static constexpr QStringView placeholderSymbol = u"app.fill";
    static constexpr QStringView placeholderText = u"Select any application bundle from your Mac";
    static constexpr QStringView changeText = u"Change";
    static constexpr QStringView browseText = u"Browse...";
    static constexpr QStringView searchPrompt = u"Search installed apps...";
    static constexpr QStringView fileDialogTitle = u"Select Application";

    struct Collaborators
    {
        const ApplicationFolders& folders;
        const ApplicationControl& applications;
        ApplicationChooser& chooser;
        Scheduler& scheduler;
    };

    OpenApplicationCard(const KeyRecord& record, Collaborators collaborators);

    /// What the card does when it is first shown: reads what is installed.
    void load() { m_list.load(); }

    [[nodiscard]] bool hasApplication() const;
    [[nodiscard]] QString applicationName() const;
    /// Where the chosen application is; absent if it isn't installed any more.
    [[nodiscard]] std::optional<QString> resolvedAppPath() const;
    /// The icon of what is there, see `ApplicationBundle`; empty if there is none. Reads a small file at times.
    [[nodiscard]] QString resolvedAppIcon() const;
    [[nodiscard]] QString pressHint() const;
    [[nodiscard]] QStringView changeSymbol() const;
    [[nodiscard]] QString fileDialogMessage() const;
    /// Where the file dialog begins and what it offers.
    [[nodiscard]] ApplicationBrowsing browsing() const { return m_with.folders.browsing(); }

    /// Whether the list is there: asked for, or needed because nothing is chosen yet.
    [[nodiscard]] bool showsList() const { return m_isPickerPresented || !hasApplication(); }
    void toggleList();
    [[nodiscard]] const QString& searchText() const { return m_searchText; }
    void setSearchText(const QString& text);
    [[nodiscard]] QList<InstalledApplication> filteredInstalledApps() const;
    /// Of all that are installed, whatever is searched for.
    [[nodiscard]] qsizetype installedCount() const { return m_list.search().applications().size(); }
    /// Of the entry that carries the mark.
    [[nodiscard]] std::optional<QString> chosenBundleIdentifier() const { return m_record.config().customAppBundleId; }

    /// Makes the key open the application, and closes the list.
    void choose(const InstalledApplication& application);
    /// Opens the system's own dialog for an application, unless it is open. What the user chooses there is written; the
    /// dialog goes away with the card.
    /// @return whether the system has one; where it has none, a dialog of the view's serves, and `chooseFile`
    [[nodiscard]] bool browse();
    /// The same as `choose` for what the user found by a file dialog; nothing for what has no bundle identifier.
    void chooseFile(const QString& path);

Q_SIGNALS:
    /// Anything shown may differ.
    void changed();

private:
    KeyRecord m_record;
    Collaborators m_with;
    ApplicationList m_list;
    QString m_searchText;
    bool m_isPickerPresented = false;
    std::unique_ptr<ApplicationDialog> m_dialog; ///< while it is open
};

} // namespace tarvin
