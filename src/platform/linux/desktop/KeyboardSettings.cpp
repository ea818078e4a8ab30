#include "platform/linux/desktop/KeyboardSettings.h"

#include <QProcess>
#include <QStandardPaths>

#include <array>

namespace tarvin::desktop {

namespace {

struct SettingsRow
{
    QStringView desktop; ///< as the desktop calls itself
    QStringView program;
    QStringView page;
};

constexpr auto settingsRows = std::to_array<SettingsRow>({
    {u"GNOME", u"gnome-control-center", u"keyboard"},
    {u"KDE", u"systemsettings", u"kcm_keyboard"},
    {u"KDE", u"systemsettings5", u"kcm_keyboard"},
    {u"XFCE", u"xfce4-keyboard-settings", u""},
    {u"X-Cinnamon", u"cinnamon-settings", u"keyboard"},
    {u"MATE", u"mate-keyboard-properties", u""},
    {u"LXQt", u"lxqt-config-input", u""},
    {u"Budgie", u"budgie-control-center", u"keyboard"},
});

std::optional<QStringList> installedCommand(const SettingsRow& row, const QStringList& searchPath)
{
    const QString program = QStandardPaths::findExecutable(row.program.toString(), searchPath);
    if (program.isEmpty())
        return std::nullopt;
    QStringList command{program};
    if (!row.page.isEmpty())
        command += row.page.toString();
    return command;
}

} // namespace

std::optional<QStringList> keyboardSettingsCommand(const QString& currentDesktop, const QStringList& searchPath)
{
    const QStringList names = currentDesktop.split(u':', Qt::SkipEmptyParts);
    for (const bool isOfRunningDesktop : {true, false}) {
        for (const SettingsRow& row : settingsRows) {
            if (names.contains(row.desktop, Qt::CaseInsensitive) != isOfRunningDesktop)
                continue;
            if (auto command = installedCommand(row, searchPath))
                return command;
        }
    }
    return std::nullopt;
}

bool openKeyboardSettings()
{
    auto command = keyboardSettingsCommand(qEnvironmentVariable("XDG_CURRENT_DESKTOP"));
    return command && QProcess::startDetached(command->takeFirst(), *command);
}

} // namespace tarvin::desktop
