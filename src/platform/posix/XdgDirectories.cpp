#include "platform/posix/XdgDirectories.h"

#include <QDir>
#include <QStringBuilder>

namespace tarvin::posix {

namespace {

QString baseDirectory(const char* variable, QStringView belowHome)
{
    const QString directory = qEnvironmentVariable(variable);
    return directory.startsWith(u'/') ? directory : QString(QDir::homePath() % u'/' % belowHome);
}

} // namespace

QString applicationSupportDirectory()
{
    return baseDirectory("XDG_DATA_HOME", u".local/share") % u"/Tarvin";
}

QString settingsFile()
{
    return baseDirectory("XDG_CONFIG_HOME", u".config") % u"/Tarvin/settings.json";
}

} // namespace tarvin::posix
