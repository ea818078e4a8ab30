#include "platform/linux/applications/LaunchEntry.h"

#include "platform/linux/desktop/ExecLine.h"
#include "platform/linux/desktop/KeyFile.h"

namespace tarvin::applications {

std::optional<LaunchEntry> readLaunchEntry(QByteArrayView content)
{
    LaunchEntry entry;
    desktop::readKeyFile(content, [&](const desktop::KeyFileLine& line) {
        if (line.group != "Desktop Entry")
            return true;
        if (line.key == "Name")
            entry.name = desktop::unescapedValue(line.value);
        else if (line.key == "Exec")
            entry.command = desktop::splitExecLine(desktop::unescapedValue(line.value));
        else if (line.key == "Path")
            entry.folder = desktop::unescapedValue(line.value);
        else if (line.key == "StartupWMClass")
            entry.windowClass = desktop::unescapedValue(line.value);
        else if (line.key == "Terminal")
            entry.runsInTerminal = line.value == "true";
        else if (line.key == "StartupNotify")
            entry.notifiesStartup = line.value == "true";
        else if (line.key == "DBusActivatable")
            entry.isBusActivated = line.value == "true";
        return true;
    });
    return entry.command.isEmpty() && !entry.isBusActivated ? std::nullopt : std::optional(entry);
}

} // namespace tarvin::applications
