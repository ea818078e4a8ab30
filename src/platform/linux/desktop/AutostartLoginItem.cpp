#include "platform/linux/desktop/AutostartLoginItem.h"

#include "platform/linux/desktop/ApplicationId.h"
#include "platform/linux/desktop/ExecLine.h"
#include "platform/linux/desktop/KeyFile.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>

namespace tarvin::desktop {

namespace {

const QString entryName = QStringLiteral("tarvin.desktop");

/// Marks an entry that hides the system's because Tarvin was told not to open at login.
constexpr QByteArrayView ownHidingKey = "X-Tarvin-NotAtLogin";

struct AutostartEntry
{
    bool isHidden = false; ///< by the standard key
    bool isSwitchedOffByGnome = false;
    bool isHiddenByUs = false;
    QString exec;

    [[nodiscard]] bool isSwitchedOff() const { return isHidden || isSwitchedOffByGnome; }
    [[nodiscard]] bool isSwitchedOffByUser() const { return isSwitchedOff() && !isHiddenByUs; }
};

std::optional<AutostartEntry> readEntry(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    AutostartEntry entry;
    readKeyFile(file.readAll(), [&](const KeyFileLine& line) {
        if (line.group != "Desktop Entry")
            return true;
        if (line.key == "Hidden")
            entry.isHidden = line.value == "true";
        else if (line.key == "X-GNOME-Autostart-enabled")
            entry.isSwitchedOffByGnome = line.value == "false";
        else if (line.key == ownHidingKey)
            entry.isHiddenByUs = line.value == "true";
        else if (line.key == "Exec")
            entry.exec = unescapedValue(line.value);
        return true;
    });
    return entry;
}

QString execLineFor(const QString& executable)
{
    return quotedExecArgument(executable) + QStringLiteral(" --startup");
}

QByteArray contentFor(const QString& executable, bool isHiding)
{
    QString content = QStringLiteral("[Desktop Entry]\n"
                                     "Type=Application\n"
                                     "Name=%1\n"
                                     "Comment=Custom keys from the moment you log in\n"
                                     "Exec=%2\n"
                                     "Icon=%3\n"
                                     "Terminal=false\n"
                                     "StartupNotify=false\n")
                          .arg(applicationName, escapedValue(execLineFor(executable)), applicationId);
    if (isHiding)
        content += QStringLiteral("Hidden=true\n%1=true\n").arg(QLatin1String(ownHidingKey));
    return content.toUtf8();
}

std::optional<QString> write(const QString& path, const QByteArray& content)
{
    QDir().mkpath(path.section(u'/', 0, -2));
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit())
        return std::nullopt;
    return QStringLiteral("%1: %2").arg(path, file.errorString());
}

} // namespace

AutostartLoginItem::AutostartLoginItem(QString executable, QStringList autostartDirectories)
    : m_executable(std::move(executable))
    , m_directories(std::move(autostartDirectories))
{ }

QStringList AutostartLoginItem::defaultDirectories()
{
    QStringList directories = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    for (QString& directory : directories)
        directory += QStringLiteral("/autostart");
    return directories;
}

bool AutostartLoginItem::isEnabled() const
{
    const std::optional<AutostartEntry> entry = readEntry(ownPath());
    return entry && !entry->isSwitchedOff() && splitExecLine(entry->exec) == splitExecLine(execLineFor(m_executable));
}

std::optional<QString> AutostartLoginItem::enable()
{
    const std::optional<AutostartEntry> entry = readEntry(ownPath());
    if (entry && entry->isSwitchedOffByUser())
        return QStringLiteral("%1 was switched off in the desktop's settings").arg(ownPath());
    return write(ownPath(), contentFor(m_executable, false));
}

std::optional<QString> AutostartLoginItem::disable()
{
    if (systemBringsEntry())
        return write(ownPath(), contentFor(m_executable, true));
    QFile file(ownPath());
    if (!file.exists() || file.remove())
        return std::nullopt;
    return QStringLiteral("%1: %2").arg(ownPath(), file.errorString());
}

QString AutostartLoginItem::ownPath() const
{
    return m_directories.value(0) + u'/' + entryName;
}

bool AutostartLoginItem::systemBringsEntry() const
{
    return std::any_of(m_directories.cbegin() + std::min<qsizetype>(1, m_directories.size()), m_directories.cend(),
        [](const QString& directory) { return QFile::exists(directory + u'/' + entryName); });
}

} // namespace tarvin::desktop
