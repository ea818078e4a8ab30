#include "platform/linux/desktop/MimeDefaults.h"

#include "platform/linux/desktop/KeyFile.h"

namespace tarvin::desktop {

MimeDefaults::MimeDefaults(const std::vector<QByteArray>& files)
{
    for (const QByteArray& file : files) {
        readKeyFile(file, [this](const KeyFileLine& line) {
            // Only the types that a role asks for: addresses, pages and folders.
            const bool isWanted = line.group == "Default Applications"
                && (line.key.startsWith("x-scheme-handler/") || line.key == "text/html"
                    || line.key == "inode/directory");
            if (!isWanted)
                return true;
            QStringList& applications = m_applications[QString::fromUtf8(line.key)];
            const QStringList ids = listValue(line.value);
            for (QString id : ids) {
                if (id.endsWith(u".desktop"))
                    id.chop(8);
                if (!applications.contains(id))
                    applications += id;
            }
            return true;
        });
    }
}

QStringList MimeDefaults::applicationsFor(const QString& contentType) const
{
    const auto found = m_applications.find(contentType);
    return found == m_applications.end() ? QStringList() : found->second;
}

QStringList mimeAppsPaths(
    const QStringList& configDirectories, const QStringList& applicationDirectories, const QString& currentDesktop)
{
    QStringList names;
    const QStringList desktops = currentDesktop.toLower().split(u':', Qt::SkipEmptyParts);
    for (const QString& desktop : desktops)
        names += desktop + QStringLiteral("-mimeapps.list");
    names += QStringLiteral("mimeapps.list");

    QStringList paths;
    for (const QString& directory : configDirectories + applicationDirectories) {
        for (const QString& name : names)
            paths += directory + u'/' + name;
    }
    return paths;
}

} // namespace tarvin::desktop
