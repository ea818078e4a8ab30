#include "platform/linux/desktop/ApplicationRoles.h"

#include "platform/linux/desktop/DesktopEntryCatalog.h"
#include "platform/linux/desktop/ExecLine.h"
#include "platform/linux/desktop/MimeDefaults.h"

#include <array>
#include <span>

namespace tarvin::desktop {

namespace {

constexpr std::array<QStringView, 3> browserTypes{u"x-scheme-handler/https", u"x-scheme-handler/http", u"text/html"};
constexpr std::array<QStringView, 1> folderTypes{u"inode/directory"};

/// The desktops' own tools for roles that no category tells, the commonest first.
constexpr std::array<QStringView, 7> notesIds{u"org.gnome.Notes", u"org.gnome.Gnote", u"gnote", u"org.kde.knotes",
    u"org.kde.marknote", u"sticky", u"xfce4-notes"};
constexpr std::array<QStringView, 10> settingsIds{u"org.gnome.Settings", u"gnome-control-center", u"systemsettings",
    u"kdesystemsettings", u"xfce-settings-manager", u"cinnamon-settings", u"matecc", u"lxqt-config",
    u"io.elementary.settings", u"org.buddiesofbudgie.ControlCenter"};

/// How a role is filled. The user's default for one of `defaultForTypes` alone fills it, if that entry is of the
/// category; where nobody chose a default, every entry of the category does, and every one of `ids`.
struct RoleRow
{
    QStringView wellKnownIdentifier;
    std::span<const QStringView> defaultForTypes;
    bool asksBrowserVariable;
    QStringView category;
    std::span<const QStringView> ids;
};

constexpr auto roleRows = std::to_array<RoleRow>({
    {u"com.apple.Safari", browserTypes, true, u"WebBrowser", {}},
    {terminalRole, {}, false, u"TerminalEmulator", {}},
    {u"com.apple.finder", folderTypes, false, u"FileManager", {}},
    {u"com.apple.calculator", {}, false, u"Calculator", {}},
    {u"com.apple.Notes", {}, false, {}, notesIds},
    {u"com.apple.systempreferences", {}, false, {}, settingsIds},
    {u"com.apple.dt.Xcode", {}, false, u"IDE", {}},
});

bool isOfCategory(const DesktopEntry& entry, const RoleRow& row)
{
    return entry.categories.contains(row.category);
}

/// The entry that the user chose for the role, empty if none.
QString chosenApplication(const RoleRow& row, const DesktopEntryCatalog& catalog, const MimeDefaults& defaults,
    const QString& browserVariable)
{
    for (const QStringView type : row.defaultForTypes) {
        const QStringList ids = defaults.applicationsFor(type.toString());
        for (const QString& id : ids) {
            const DesktopEntry* entry = catalog.entry(id);
            // An editor that registered for folders, or a chooser for addresses, is no file manager and no browser.
            if (entry && isOfCategory(*entry, row))
                return id;
        }
    }
    if (!row.asksBrowserVariable)
        return {};
    // The variable holds commands between colons, each perhaps with arguments.
    const QStringList commands = browserVariable.split(u':', Qt::SkipEmptyParts);
    for (const QString& command : commands) {
        ApplicationClues clues;
        clues.executable = splitExecLine(command).value(0);
        const DesktopEntry* entry = catalog.match(clues);
        if (entry && isOfCategory(*entry, row))
            return entry->id;
    }
    return {};
}

QStringList applicationsOfKind(const RoleRow& row, const DesktopEntryCatalog& catalog)
{
    QStringList shown;
    QStringList others;
    for (const QStringView id : row.ids) {
        if (catalog.entry(id.toString()))
            shown += id.toString();
    }
    for (const DesktopEntry& entry : catalog.entries()) {
        if (!row.category.isEmpty() && isOfCategory(entry, row))
            (entry.isShown ? shown : others) += entry.id;
    }
    return shown + others;
}

} // namespace

ApplicationRoles::ApplicationRoles(
    const DesktopEntryCatalog& catalog, const MimeDefaults& defaults, const QString& browserVariable)
{
    for (const RoleRow& row : roleRows) {
        const QString chosen = chosenApplication(row, catalog, defaults, browserVariable);
        const QStringList applications = chosen.isEmpty() ? applicationsOfKind(row, catalog) : QStringList{chosen};
        const QString role = row.wellKnownIdentifier.toString();
        for (const QString& id : applications)
            m_identifiersOf[id] += role;
        m_applicationsOf.emplace(role, applications);
    }
}

} // namespace tarvin::desktop
