#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <optional>

namespace tarvin::applications {

/// What a desktop entry says on how its application is started.
struct LaunchEntry
{
    QString name; ///< untranslated
    QStringList command; ///< program and arguments, without places for files
    QString folder; ///< to start in; empty for the user's home
    QString windowClass; ///< `StartupWMClass`, empty if the entry has none
    bool runsInTerminal = false;
    bool notifiesStartup = false; ///< the application answers a startup id
    bool isBusActivated = false; ///< it is asked over the session bus, by the entry's id
};

/// @return nothing for an entry that starts nothing
[[nodiscard]] std::optional<LaunchEntry> readLaunchEntry(QByteArrayView content);

} // namespace tarvin::applications
