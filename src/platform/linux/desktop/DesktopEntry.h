#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <optional>

namespace tarvin::desktop {

/// What the program wants to know of one installed application.
struct DesktopEntry
{
    QString id; ///< the file's path below the folder `applications`, slashes as dashes, without suffix
    QString path; ///< of the file
    QString name; ///< in the user's language
    QString windowClass; ///< `StartupWMClass`, empty if the entry has none
    /// The program of `Exec`; empty if that is a generic launcher, or if the entry runs in a terminal and has no
    /// window.
    QString executable;
    QStringList categories;
    QString icon{}; ///< `Icon`: the name of a themed icon, or a path; empty if the entry has none
    bool isShown = true; ///< false for entries that no menu shows (`NoDisplay`)
};

/// The outcome of reading one file.
struct DesktopEntryFile
{
    /// The user or the administrator deleted the application by this file: it masks one of the same id further down.
    bool isDeleted = false;
    std::optional<DesktopEntry> entry; ///< absent for links, folders and broken files
};

/// Whether a program of this file name runs other programs (interpreters, `env`, sandboxes): a process of it says
/// nothing about the application.
[[nodiscard]] bool isGenericLauncher(QStringView programName);

/// The locale suffixes to look for, best first, for a value of `LC_MESSAGES` such as "de_AT.UTF-8@euro": "de_AT@euro",
/// "de_AT", "de@euro", "de". Empty for "C" and "POSIX".
[[nodiscard]] QStringList localeSuffixes(const QString& locale);

/// The locale of messages that the environment asks for.
[[nodiscard]] QString messageLocale();

[[nodiscard]] DesktopEntryFile readDesktopEntry(
    QByteArrayView content, const QString& id, const QString& path, const QStringList& locales);

} // namespace tarvin::desktop
