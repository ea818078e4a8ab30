#pragma once

#include "platform/ports/LoginItem.h"

#include <QStringList>

namespace tarvin::desktop {

/// The login item as an autostart entry, `tarvin.desktop` in the user's `autostart` folder.
///
/// What a desktop's own settings write into that entry to switch it off (`Hidden=true`, or GNOME's key) is the user's
/// word: the item then counts as not enabled, and enabling it is refused with a message, until the user switches it on
/// where it was switched off. Disabling removes the entry; only where the system brings one for all users a hiding
/// entry of ours takes its place, which carries a mark that tells it from the user's.
class AutostartLoginItem : public LoginItem
{
public:
    /// @param executable absolute path of the program
    /// @param autostartDirectories the user's own first, then those of the system
    AutostartLoginItem(QString executable, QStringList autostartDirectories);

    /// The `autostart` folders by the environment.
    [[nodiscard]] static QStringList defaultDirectories();

    /// Whether the entry exists, is not switched off and starts this very program.
    [[nodiscard]] bool isEnabled() const override;
    [[nodiscard]] std::optional<QString> enable() override;
    [[nodiscard]] std::optional<QString> disable() override;

private:
    [[nodiscard]] QString ownPath() const;
    [[nodiscard]] bool systemBringsEntry() const;

    const QString m_executable;
    const QStringList m_directories;
};

} // namespace tarvin::desktop
